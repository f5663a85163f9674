#include "s2s/s2sPutInPlace.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "s2s/s2sFiles.h"

namespace fs = std::filesystem;

namespace {

struct Move {
    fs::path from;
    fs::path to;
    enum { added, exchanged, replaced } how = added; // exchanged: what `to` held before now lies at `from`
};

std::error_code last_error()
{
    return {errno, std::generic_category()};
}

// All files below the folder; the one with the name of the output comes last.
std::vector<Move> moves(fs::path const & staging, fs::path const & output, std::error_code & error)
{
    std::vector<Move> all;
    for (auto entry = fs::recursive_directory_iterator(staging, error);
         !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        if (entry->symlink_status(error).type() != fs::file_type::directory)
            all.push_back({entry->path(), output.parent_path() / entry->path().lexically_relative(staging)});
    }
    std::stable_partition(all.begin(), all.end(), [&](Move const & move) { return move.to != output; });
    return all;
}

std::error_code make_like_old(fs::path const & file, struct stat const & old)
{
    int const descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0)
        return last_error();
    std::error_code error;
    if (fchmod(descriptor, old.st_mode & 07777) != 0 || fdatasync(descriptor) != 0)
        error = last_error();
    close(descriptor);
    return error;
}

std::error_code carry_out(Move & move, bool alone)
{
    struct stat old;
    if (lstat(move.to.c_str(), &old) != 0) {
        std::error_code error;
        fs::create_directories(move.to.parent_path(), error);
        if (!error)
            fs::rename(move.from, move.to, error);
        return error;
    }
    if (S_ISREG(old.st_mode))
        if (auto const error = make_like_old(move.from, old))
            return error;
    // With several files a later one may fail, and then the earlier ones must come back. Not every file
    // system can exchange.
    if (!alone && !S_ISDIR(old.st_mode) &&
        renameat2(AT_FDCWD, move.from.c_str(), AT_FDCWD, move.to.c_str(), RENAME_EXCHANGE) == 0) {
        move.how = Move::exchanged;
        return {};
    }
    move.how = Move::replaced;
    return rename(move.from.c_str(), move.to.c_str()) == 0 ? std::error_code() : last_error();
}

void take_back(Move const & move)
{
    if (move.how == Move::exchanged)
        renameat2(AT_FDCWD, move.from.c_str(), AT_FDCWD, move.to.c_str(), RENAME_EXCHANGE);
    else if (move.how == Move::added)
        rename(move.to.c_str(), move.from.c_str());
}

} // namespace

std::vector<fs::path> s2s_places_of(fs::path const & staging, fs::path const & output)
{
    std::error_code error;
    std::vector<fs::path> places;
    for (auto const & move : moves(staging, output, error))
        places.push_back(move.to);
    return places;
}

s2sFailure s2s_put_in_place(fs::path const & staging, fs::path const & output,
                            std::vector<fs::path> const & inputs)
{
    std::error_code error;
    auto all = moves(staging, output, error);
    if (error)
        return s2sMessages::output_not_in_place(output, error.message());
    if (all.empty() || all.back().to != output)
        return s2sMessages::output_not_written(output);
    for (auto const & move : all)
        for (auto const & input : inputs)
            if (s2s_same_file(move.to, input))
                return s2sMessages::output_would_replace_input(output, input);

    for (std::size_t i = 0; i < all.size(); ++i) {
        error = carry_out(all[i], all.size() == 1);
        if (error) {
            while (i > 0)
                take_back(all[--i]);
            return s2sMessages::output_not_in_place(output, error.message());
        }
    }
    return std::nullopt;
}
