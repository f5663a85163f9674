#pragma once

#include <memory>
#include <string>

#include "ap/apPathName.h"

#include <wx/fileconf.h>

/// The toolkit's configuration store on this platform: a file in the user's configuration directory, which is
/// made when the first value is kept, and behind it one of the system, whose values count where the user's
/// file has none. Only the wxConfigBase interface of it is used.
///
/// Nothing here says a word. What cannot be read of a file is passed over, whatever the file is; before a
/// user's file of which something was passed over is written again, it is kept beside under its name with
/// ".damaged" behind it. Values stand for themselves: no variables of the environment are put into them.
class sglConfigStore : public wxFileConfig {
public:
    explicit sglConfigStore(wxString const & application);
    ~sglConfigStore() override; ///< keeps what was changed

    bool HasEntry(wxString const & key) const override;
    /// False when the file cannot be written; then it is as it was.
    bool Flush(bool current_only = false) override;

protected:
    bool DoReadString(wxString const & key, wxString * value) const override;
    bool DoWriteString(wxString const & key, wxString const & value) override;

private:
    struct File;
    class Source;

    sglConfigStore(wxString const & application, File const & users, File const & systems);
    wxString absolute(wxString const & key) const;
    std::string text_to_keep();
    bool replace_damaged_file(std::string const & text) const;

    apPathName m_path;
    bool m_damaged;
    std::string m_kept; // what the file holds, as far as it is known
    std::unique_ptr<wxFileConfig> m_system;
};
