#include "windows/program/kitScreen.h"

#include "windows/kit/kitDisplay.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

Display * own_connection()
{
    kit_have_display();
    return XOpenDisplay(nullptr);
}

} // namespace

struct kitScreen::Connection {
    Display * display = own_connection();

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
    std::vector<Window> of_process(pid_t process) const
    {
        std::vector<Window> windows;
        for (long const window : numbers(root(), "_NET_CLIENT_LIST"))
            if (belongs(static_cast<Window>(window), process))
                windows.push_back(static_cast<Window>(window));
        return windows;
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
    return static_cast<int>(m_connection->of_process(process).size());
}

int kitScreen::windows_on_top(pid_t process) const
{
    ErrorsIgnored const ignored;
    auto const above = static_cast<long>(m_connection->atom("_NET_WM_STATE_ABOVE"));
    int count = 0;
    for (Window const window : m_connection->of_process(process)) {
        auto const states = m_connection->numbers(window, "_NET_WM_STATE");
        count += std::find(states.begin(), states.end(), above) != states.end();
    }
    return count;
}
