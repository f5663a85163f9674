#pragma once

/// What stands between the directories of a path on this platform.
inline constexpr char apPathSeparator = '/';
