#pragma once

#include <functional>

#include "ap/apString.h"

/// Why the dialog about usage data appears.
enum aniUsageDialogsShow {
    aniUsageDialogsFromMenu = 0,
    aniUsageDialogsAtStartUp = 1,
};

/// The dialog in which a user decides whether the program may report how it is used. What draws windows
/// registers a presenter for it; a program without windows has none and asks nothing. Graphical thread.
class aniUsageDialogs {
public:
    /// Shows the dialog on a native parent window, which may be null; returns non-zero when the user agreed.
    using Presenter = std::function<int(aniUsageDialogsShow show, void * parent, apString text)>;

    static void set_presenter(Presenter presenter); ///< replaces the one before; an empty one takes it away

    /// What the presenter returns, 0 without one. `parent` is a native window handle.
    static int display_dialog(aniUsageDialogsShow show, void * parent, apString text);
};
