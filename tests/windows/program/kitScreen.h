#pragma once

#include <memory>
#include <string>
#include <sys/types.h>
#include <wx/gdicmn.h>

/// The windows on the display of the tests as the window manager tells of them: those of all programs. The
/// display is made where there is none yet. Throws std::runtime_error when it takes no connection.
class kitScreen {
public:
    kitScreen();
    ~kitScreen();
    kitScreen(kitScreen const &) = delete;
    kitScreen & operator=(kitScreen const &) = delete;

    /// The title of the window that has the focus, where that is one of the process; else empty.
    std::string active_title(pid_t process) const;
    /// Where that window stands on the display, without its frame; empty where there is none.
    wxRect active_place(pid_t process) const;
    /// How many windows the process has on the display.
    int windows(pid_t process) const;
    /// How many of them stay in front of all others.
    int windows_on_top(pid_t process) const;

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection;
};
