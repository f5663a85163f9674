#include "windows/program/kitScreen.h"

#include "windows/kit/kitDisplay.h"

#include <stdexcept>
#include <vector>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

struct kitScreen::Connection {
    Connection()
    {
        kit_have_display();
        display = XOpenDisplay(nullptr);
    }

    Display * display = nullptr;

    Atom atom(char const * name) const { return XInternAtom(display, name, False); }
    Window root() const { return DefaultRootWindow(display); }

    /// The bytes of a property; those of 32 bits come as longs.
    std::string property(Window window, char const * name) const
    {
        Atom type = None;
        int format = 0;
        unsigned long count = 0, left = 0;
        unsigned char * data = nullptr;
        XGetWindowProperty(display, window, atom(name), 0, 1024, False, AnyPropertyType, &type, &format,
                           &count, &left, &data);
        std::string const bytes(reinterpret_cast<char *>(data),
                                data ? count * (format == 32 ? sizeof(long) : format / 8U) : 0U);
        if (data)
            XFree(data);
        return bytes;
    }
    std::vector<long> numbers(Window window, char const * name) const
    {
        auto const bytes = property(window, name);
        auto const * const first = reinterpret_cast<long const *>(bytes.data());
        return {first, first + bytes.size() / sizeof(long)};
    }
    Window active() const
    {
        auto const windows = numbers(root(), "_NET_ACTIVE_WINDOW");
        return windows.empty() ? None : static_cast<Window>(windows[0]);
    }
    bool belongs(Window window, pid_t process) const
    {
        auto const owner = window ? numbers(window, "_NET_WM_PID") : std::vector<long>();
        return !owner.empty() && owner[0] == process;
    }
};

namespace {

/// A window may go while it is asked; that is no fault of the test.
int ignore(Display *, XErrorEvent *)
{
    return 0;
}

class ErrorsIgnored {
public:
    ErrorsIgnored() : m_before(XSetErrorHandler(ignore)) {}
    ~ErrorsIgnored() { XSetErrorHandler(m_before); }
    ErrorsIgnored(ErrorsIgnored const &) = delete;
    ErrorsIgnored & operator=(ErrorsIgnored const &) = delete;

private:
    XErrorHandler m_before;
};

} // namespace

kitScreen::kitScreen() : m_connection(std::make_unique<Connection>())
{
    if (!m_connection->display)
        throw std::runtime_error("no display");
}

kitScreen::~kitScreen()
{
    XCloseDisplay(m_connection->display);
}

std::string kitScreen::active_title(pid_t process) const
{
    ErrorsIgnored const ignored;
    Window const window = m_connection->active();
    return m_connection->belongs(window, process) ? m_connection->property(window, "_NET_WM_NAME") : "";
}

wxRect kitScreen::active_place(pid_t process) const
{
    ErrorsIgnored const ignored;
    Window const window = m_connection->active();
    XWindowAttributes at{};
    int x = 0, y = 0;
    Window child = None;
    if (!m_connection->belongs(window, process) ||
        !XGetWindowAttributes(m_connection->display, window, &at) ||
        !XTranslateCoordinates(m_connection->display, window, m_connection->root(), 0, 0, &x, &y, &child))
        return {};
    return {x, y, at.width, at.height};
}

int kitScreen::windows(pid_t process) const
{
    ErrorsIgnored const ignored;
    int count = 0;
    for (long const window : m_connection->numbers(m_connection->root(), "_NET_CLIENT_LIST"))
        count += m_connection->belongs(static_cast<Window>(window), process);
    return count;
}
