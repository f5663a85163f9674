#pragma once

#include "windows/translation/kitProgress.h"

/// The windows with real data in them.
class Screens : public kitProgressTest {
protected:
    /// Fails the test when something in the window is cut off or lies over something else. Where the
    /// environment names a folder in VMR_SCREENS, writes the window, with the frame that the window manager
    /// draws, there as NAME.png.
    static void picture(wxWindow & window, std::string const & name);
    /// A real file of the installed samples, copied under a name of its own.
    std::string sample(std::string const & sample_name, std::string const & name);
};
