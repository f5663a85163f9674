#pragma once

#include "ut/utString.h"

class wxWindow;

/// Shows a finished text with the program's name as title and gives the toolkit's identifier of the button
/// that ended it. `style` is the toolkit's for message boxes: buttons and icon. A text for which the box
/// would be higher than the screen is shown in a window of the same buttons in which it can be scrolled.
int sgl_show_message(wxWindow * parent, utString const & text, long style);
