#pragma once

#include "windows/translation/kitProgress.h"

/// One picture of a window a test.
class Screens : public kitProgressTest {
protected:
    /// Writes the window, with the frame that the window manager draws, as NAME.png to the folder that the
    /// environment names in VMR_SCREENS.
    static void picture(wxWindow & window, std::string const & name);
    /// A real file of the installed samples, copied under a name of its own.
    std::string sample(std::string const & sample_name, std::string const & name);
};
