#include "screens/screens.h"

#include "screens/fit.h"

#include <gmock/gmock.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wx/stopwatch.h>

namespace fs = std::filesystem;

void Screens::picture(wxWindow & window, std::string const & name)
{
    settle();
    EXPECT_THAT(what_is_cut_off(window), testing::IsEmpty()) << name;
    char const * const folder = std::getenv("VMR_SCREENS");
    if (!folder)
        return;
    // What the theme fades in or out has come to its end by then.
    wxStopWatch watch;
    run_until([&] { return watch.Time() > 400; });
    auto const file = fs::path(folder) / (name + ".png");
    double const scale = wxGetTopLevelParent(&window)->GetContentScaleFactor();
    // The window manager draws its frame around what the toolkit calls the window.
    wxRect const inner = wxGetTopLevelParent(&window)->GetScreenRect();
    int const side = 6, top = 30;
    auto const pixels = [scale](int value) {
        return std::to_string(static_cast<int>(std::max(0, value) * scale));
    };
    std::string const region = pixels(inner.width + 2 * side) + "x" + pixels(inner.height + top + side) +
                               "+" + pixels(inner.x - side) + "+" + pixels(inner.y - top);
    std::string const path = file.string();
    char const * const command[] = {"maim", "-u", "-g", region.c_str(), path.c_str(), nullptr};
    pid_t child = 0;
    ASSERT_EQ(posix_spawnp(&child, command[0], nullptr, nullptr, const_cast<char **>(command), environ), 0);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << region;
}

std::string Screens::sample(std::string const & sample_name, std::string const & name)
{
    auto const copy = fs::path(folder() / name);
    fs::copy_file("/usr/share/opencascade/data/step/" + sample_name, copy,
                  fs::copy_options::overwrite_existing);
    return copy.string();
}
