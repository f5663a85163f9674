#pragma once

/// Questions to the locale of the C library.
class nlsUtils {
public:
    /// The decimal point of the locale in force for numbers; "." where it is not a single ASCII character.
    static char lookup_decimal_point();
};
