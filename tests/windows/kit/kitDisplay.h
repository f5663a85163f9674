#pragma once

/// A display that nobody sees, with a window manager, for this process alone. Made by the first call, before
/// the toolkit starts; gone with the process. Ends the process with a message when it cannot be had.
void kit_have_display();
