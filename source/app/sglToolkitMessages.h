#pragma once

/// Keeps the complaints of the window toolkit's platform library off standard error for the rest of the
/// process. For a run without a display: a dialog object that never becomes a window makes the library ask
/// for a display when the object ends, and what it says about that is no concern of the user's.
void sgl_silence_toolkit_messages();

/// Keeps failed assertions of the window toolkit from the user, for the rest of the process: they would stand
/// in a box in the way of the work, or on standard error, and the toolkit goes on after one. A development
/// build tells each on standard error, where the tests expect nothing.
void sgl_keep_toolkit_assertions_from_user();
