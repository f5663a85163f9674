#include "sdu/ubStreams.h"

#include <locale>

#include "sdu/sduFileFunctions.h"

namespace {

std::ios::openmode open_flags(int mode)
{
    std::ios::openmode result{};
    if (mode & ubOpenInput)
        result |= std::ios::in;
    if (mode & ubOpenOutput)
        result |= std::ios::out;
    if (mode & ubOpenAppend)
        result |= std::ios::app;
    return result;
}

} // namespace

ubIFStream::ubIFStream(utString const & path, int mode)
{
    imbue(std::locale::classic());
    // The C++ library opens a directory without complaint and fails at the first read.
    if (sdu_check_file_exists(path) == sduFileExists)
        open(path.c_str(), open_flags(mode));
    else
        setstate(std::ios::failbit);
}

ubOFStream::ubOFStream(utString const & path, int mode)
{
    imbue(std::locale::classic());
    open(path.c_str(), open_flags(mode));
}
