#include "windows/services/kitOtherProgram.h"

#include <X11/Xlib.h>

struct kitOtherProgram::Connection {
    Display * display = XOpenDisplay(nullptr);
    Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    Atom clipboard = XInternAtom(display, "CLIPBOARD", 0);

    ~Connection() { XCloseDisplay(display); }
};

kitOtherProgram::kitOtherProgram() : m_connection(std::make_unique<Connection>()) {}

kitOtherProgram::~kitOtherProgram() = default;

void kitOtherProgram::take_clipboard()
{
    XSetSelectionOwner(m_connection->display, m_connection->clipboard, m_connection->window, CurrentTime);
    XSync(m_connection->display, 0);
}

bool kitOtherProgram::has_clipboard() const
{
    return XGetSelectionOwner(m_connection->display, m_connection->clipboard) == m_connection->window;
}
