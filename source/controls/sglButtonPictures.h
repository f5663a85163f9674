#pragma once

class wxWindow;

/// Puts the pictures made for them on the buttons of a window that are known by their XRC name, beside their
/// texts. Their size goes with the height of the window's letters and with the scale of its screen. A picture
/// that is missing or damaged leaves its button with the text alone. Graphical thread.
void sgl_add_button_pictures(wxWindow & window);
