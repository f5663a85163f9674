#pragma once

#include "ut/utString.h"

class wxWindow;

/// Asks for a file or a directory. Each operation returns 0, with an empty result, when nothing was chosen.
class sglIFileChooser {
public:
    virtual int choose_input_file(utString const & filter, utString & file) const = 0;
    virtual int choose_output_file(utString const & filter, int confirm_overwrite, utString & file) const = 0;
    virtual int choose_output_directory(utString & directory) const = 0;
    virtual ~sglIFileChooser() = default;
};

/// The same with the toolkit's dialogs. Graphical thread.
class sglWxFileChooser : public sglIFileChooser {
public:
    explicit sglWxFileChooser(wxWindow * parent) : m_parent(parent) {} ///< not owned

    int choose_input_file(utString const & filter, utString & file) const override;
    int choose_output_file(utString const & filter, int confirm_overwrite, utString & file) const override;
    int choose_output_directory(utString & directory) const override;

protected:
    int file_dialog(utString const & title, utString const & filter, long style, utString & file) const;

private:
    wxWindow * m_parent;
};

/// Asks for a directory; 0, with an empty result, when none was chosen.
int sglBrowseDialog(wxWindow * parent, utString & directory);
