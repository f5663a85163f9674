#pragma once

#include <string>
#include <vector>

class wxWindow;

/// What of a window's texts and controls cannot be seen whole, a line each: controls that are smaller than
/// their texts need, that stick out of their parent, or that lie over each other. Looks at what is visible.
std::vector<std::string> what_is_cut_off(wxWindow & window);
