#pragma once

/// Keeps the complaints of the window toolkit's platform library off standard error for the rest of the
/// process. For a run without a display: a dialog object that never becomes a window makes the library ask
/// for a display when the object ends, and what it says about that is no concern of the user's.
void sgl_silence_toolkit_messages();
