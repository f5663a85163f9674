#pragma once

#include "ut/utString.h"

#include <functional>

class wxWindow;

/// Lets the key F1 do `open` for as long as the window lives. The menu bar of a window has the key by itself;
/// this is for dialogs.
void sgl_open_with_help_key(wxWindow & window, std::function<void()> open);

/// The same, with a topic of the program's help book. Nothing happens while `may_open` says no; help over a
/// dialog is a dialog, too, which would keep the one below it from closing by itself.
void sgl_help_with_help_key(wxWindow & window, utString const & topic,
                            std::function<bool()> may_open = nullptr);
