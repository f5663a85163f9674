#pragma once

#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// What sglMessageBox returns when the number has no text.
inline constexpr int sglMESSAGE_BOX_NO_TEXT = 16;

/// Shows a numbered message with the program's name as title, in front of the active window. `style` is the
/// toolkit's; the result is the toolkit's identifier of the button, or sglMESSAGE_BOX_NO_TEXT with nothing
/// shown when the number has no text. Without a display the text goes to standard error and the result is
/// that of the OK button, or of No where the box would have asked.
int sglMessageBoxWithArguments(char const * domain, unsigned int id, utTextArguments const & arguments,
                               unsigned int style);

template <class... Arguments>
int sglMessageBox(char const * domain, unsigned int id, unsigned int style, Arguments const &... arguments)
{
    return sglMessageBoxWithArguments(domain, id, ut_text_arguments(arguments...), style);
}

/// A finished text in a box with one button and the error icon, with no parent window; without a display it
/// goes to standard error.
void sgl_show_error_text(utString const & text);
