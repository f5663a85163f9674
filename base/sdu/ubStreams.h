#pragma once

#include <fstream>

#include "ut/utString.h"

/// How a stream is opened; values combine.
enum ubOpenMode { ubOpenInput = 1, ubOpenOutput = 2, ubOpenAppend = 8 };

/// A stream from a file. Its path may hold any bytes, numbers are read with "." whatever the locale, and a
/// directory does not open.
class ubIFStream : public std::ifstream {
public:
    explicit ubIFStream(utString const & path, int mode = ubOpenInput);
    int is_open() const { return std::ifstream::is_open() ? 1 : 0; }
};

/// A stream to a file, which is made, or emptied unless it is opened to append. Numbers are written with ".".
class ubOFStream : public std::ofstream {
public:
    explicit ubOFStream(utString const & path, int mode = ubOpenOutput);
    int is_open() const { return std::ofstream::is_open() ? 1 : 0; }
};
