#pragma once

#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>
#include <wx/gdicmn.h>

/// Another program on the display, out of whose window files can be dragged.
class kitFileManager {
public:
    explicit kitFileManager(std::vector<std::string> const & files);
    ~kitFileManager();
    kitFileManager(kitFileManager const &) = delete;
    kitFileManager & operator=(kitFileManager const &) = delete;

    bool ready();       ///< whether its window is there
    wxPoint middle();   ///< of the window, on the screen; once it is ready
    bool drags();       ///< whether the mouse is dragging the files at the moment
    bool has_dropped(); ///< whether the last drag ended over something that took the files
    std::string const & said() const { return m_said; }

private:
    void listen();

    pid_t m_process = -1;
    int m_answers = -1;
    std::string m_said;
};
