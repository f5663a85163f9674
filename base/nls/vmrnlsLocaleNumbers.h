#pragma once

/// How the user's locale writes numbers, kept from the moment at which it could be asked: the C library's own
/// setting is put back to "C" right after.
class vmrnlsLocaleNumbers {
public:
    /// Stores the decimal point of the locale in force for numbers or, where that is the default one, of the
    /// locale of the user's environment.
    static void save();

    static char decimal_point(); ///< "." before the first save(); any thread
};
