// Replaces the file that is its second argument, with a fault of its own: one that the search for faults has
// to find.

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

char const text[] = "the new text\n";

/// Nothing is wrong with it.
bool replace(std::string const & file, bool leaves)
{
    auto const beside = file + ".new";
    int const made = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (made < 0)
        return false;
    bool good = ::write(made, text, sizeof text - 1) == sizeof text - 1;
    good = ::fsync(made) == 0 && good;
    ::close(made);
    good = good && ::rename(beside.c_str(), file.c_str()) == 0;
    if (!good && !leaves)
        ::unlink(beside.c_str());
    return good;
}

bool replace_ignoring(std::string const & file)
{
    int const made = ::open(file.c_str(), O_WRONLY | O_TRUNC);
    if (made < 0)
        return false;
    [[maybe_unused]] auto const ignored = ::write(made, text, sizeof text - 1);
    return ::close(made) == 0;
}

} // namespace

int main(int argc, char ** argv)
{
    if (argc != 3)
        return 2;
    std::string const fault = argv[1];
    std::string const file = argv[2];
    // What this throws where there is no memory, nobody catches.
    std::vector<char> const room(fault == "crashes" ? 1000 : 0);
    bool const good = fault == "ignores" ? replace_ignoring(file) : replace(file, fault == "leaves");
    if (!good && fault != "keeps silent")
        std::printf("%s could not be replaced\n", argv[2]);
    return good || fault == "boasts" ? 0 : 1;
}
