// How long a program takes from its start to its painted window, seen from outside.
//
//   window_start RUNS PROGRAM [ARGUMENTS...]
//
// Needs a display with nothing else on it. Starts the program, watches the display for its first window of
// the size of a main window, a picture that it shows at its start left aside, and for what is drawn there,
// and ends the program as soon as the window is painted: when what it shows at its top and at its bottom has
// the many colours of smoothed text. Prints the medians of the runs in milliseconds, to the window and to the
// painted window.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <set>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int smallest_main_window = 300;
constexpr std::size_t colours_of_text = 12;
constexpr auto give_up_after = std::chrono::seconds(60);

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Times {
    double shown = 0;
    double painted = 0;
};

class Watcher {
public:
    Watcher()
    {
        if (!m_display || !XDamageQueryExtension(m_display, &m_damage_event, &m_damage_error)) {
            std::puts("no display that tells of what is drawn");
            std::exit(1);
        }
        XSetErrorHandler([](Display *, XErrorEvent *) { return 0; });
        XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask);
        XSync(m_display, False);
    }
    ~Watcher() { XCloseDisplay(m_display); }
    Watcher(Watcher const &) = delete;
    Watcher & operator=(Watcher const &) = delete;

    Times watch(char ** command)
    {
        Times times;
        auto const begin = Clock::now();
        pid_t process = 0;
        if (posix_spawnp(&process, command[0], nullptr, nullptr, command, environ) != 0)
            std::exit(1);
        Window window = None;
        while (times.painted == 0) {
            XEvent event;
            if (!next_event(event, begin)) {
                std::printf("%s showed no window\n", command[0]);
                std::exit(1);
            }
            auto const now = Clock::now();
            if (event.type == MapNotify && !window && is_main(event.xmap.window)) {
                window = event.xmap.window;
                times.shown = milliseconds(now - begin);
                XDamageCreate(m_display, window, XDamageReportRawRectangles);
            } else if (event.type == m_damage_event + XDamageNotify && is_painted(window)) {
                times.painted = milliseconds(now - begin);
            }
        }
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
        await_empty_display();
        return times;
    }

private:
    bool next_event(XEvent & event, Clock::time_point begin)
    {
        while (!XPending(m_display)) {
            if (Clock::now() - begin > give_up_after)
                return false;
            pollfd readable{ConnectionNumber(m_display), POLLIN, 0};
            poll(&readable, 1, 1000);
        }
        XNextEvent(m_display, &event);
        return true;
    }
    bool is_main(Window window) const
    {
        XWindowAttributes about{};
        return XGetWindowAttributes(m_display, window, &about) && about.width >= smallest_main_window &&
               about.height >= smallest_main_window && !is_picture_of_the_start(window);
    }
    bool is_picture_of_the_start(Window window) const
    {
        Atom type = None;
        int format = 0;
        unsigned long count = 0, left = 0;
        unsigned char * value = nullptr;
        if (XGetWindowProperty(m_display, window, m_window_type, 0, 1, False, XA_ATOM, &type, &format, &count,
                               &left, &value) != Success)
            return false;
        bool const is = value && count == 1 && *reinterpret_cast<Atom *>(value) == m_splash;
        XFree(value);
        return is;
    }
    bool is_painted(Window window) const
    {
        XWindowAttributes about{};
        if (!window || !XGetWindowAttributes(m_display, window, &about))
            return false;
        int const part = about.height / 6;
        return has_text(window, 0, about.width, part) &&
               has_text(window, about.height - part, about.width, part);
    }
    bool has_text(Window window, int top, int width, int height) const
    {
        XImage * const image = XGetImage(m_display, window, 0, top, static_cast<unsigned>(width),
                                         static_cast<unsigned>(height), AllPlanes, ZPixmap);
        if (!image)
            return false;
        std::set<unsigned long> colours;
        for (int y = 0; y < height && colours.size() < colours_of_text; ++y)
            for (int x = 0; x < width; ++x)
                colours.insert(XGetPixel(image, x, y));
        XDestroyImage(image);
        return colours.size() >= colours_of_text;
    }
    /// The windows of a program that was ended go a moment after it.
    void await_empty_display()
    {
        for (bool there = true; there;) {
            Window root = None, parent = None;
            Window * all = nullptr;
            unsigned int count = 0;
            XQueryTree(m_display, DefaultRootWindow(m_display), &root, &parent, &all, &count);
            there = false;
            for (unsigned int i = 0; i < count; ++i) {
                XWindowAttributes about{};
                there = there || (XGetWindowAttributes(m_display, all[i], &about) &&
                                  about.map_state == IsViewable && about.width >= smallest_main_window);
            }
            XFree(all);
        }
        XEvent event;
        while (XPending(m_display))
            XNextEvent(m_display, &event);
    }

    Display * m_display = XOpenDisplay(nullptr);
    Atom m_window_type = XInternAtom(m_display, "_NET_WM_WINDOW_TYPE", False);
    Atom m_splash = XInternAtom(m_display, "_NET_WM_WINDOW_TYPE_SPLASH", False);
    int m_damage_event = 0;
    int m_damage_error = 0;
};

} // namespace

int main(int count, char ** words)
{
    if (count < 3)
        return 1;
    Watcher watcher;
    watcher.watch(words + 2); // what the system keeps in memory from now on
    std::vector<double> shown, painted;
    for (int run = 0; run < std::atoi(words[1]); ++run) {
        Times const times = watcher.watch(words + 2);
        shown.push_back(times.shown);
        painted.push_back(times.painted);
    }
    std::printf("%.1f %.1f\n", median(shown), median(painted));
    return 0;
}
