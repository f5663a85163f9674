#include "s2s/s2sPutInPlace.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <set>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct Move {
    fs::path file;                                   // below both folders
    enum { added, exchanged, replaced } how = added; // exchanged: what was in its place now lies in staging
};

std::error_code last_error()
{
    return {errno, std::generic_category()};
}

// Links and whatever else a translator may have made that is no ordinary file stay where they are.
void collect(apFolder const & folder, fs::path const & below, std::vector<Move> & moves)
{
    for (auto const & name : folder.names()) {
        auto const found = folder.status(name);
        if (found && S_ISDIR(found->st_mode))
            collect(folder.open_folder(name), below / name, moves);
        else if (found && S_ISREG(found->st_mode) && below / name != apMarkedFolder::mark_name)
            moves.push_back({below / name});
    }
}

std::vector<Move> moves_of(s2sStagingFolder const & staging, fs::path const & output)
{
    std::vector<Move> moves;
    collect(staging.files(), {}, moves);
    std::stable_partition(moves.begin(), moves.end(),
                          [&](Move const & move) { return move.file != output.filename(); });
    return moves;
}

/// The folder in which the file lies, below `top`, made where it is missing.
apFolder folder_of(apFolder const & top, fs::path const & file)
{
    auto folder = top.open_folder(".");
    for (auto const & name : file.parent_path()) {
        auto next = folder.open_folder(name);
        if (!next.is_open() && errno == ENOENT)
            next = folder.make_folder(name, 0777);
        folder = std::move(next);
    }
    return folder;
}

/// The one of the inputs that the file would replace; null for none.
fs::path const * replaced_input(fs::path const & file, apFolder const & top,
                                std::vector<fs::path> const & inputs)
{
    struct stat found;
    if (fstatat(top.descriptor(), file.c_str(), &found, 0) != 0)
        return nullptr;
    apFileIdentity const identity{found.st_dev, found.st_ino};
    auto const input = std::find_if(inputs.begin(), inputs.end(), [&](auto const & one) {
        return ap_file_identity(one.native()) == identity;
    });
    return input == inputs.end() ? nullptr : &*input;
}

/// Makes the file ready to take its place: all that is slow or may fail.
std::error_code prepare(s2sStagingFolder const & staging, fs::path const & file)
{
    auto const name = file.filename().native();
    auto const new_file = folder_of(staging.files(), file).open_file(name, O_RDONLY | O_NONBLOCK);
    if (!new_file.open())
        return last_error();
    auto const place = folder_of(staging.place_of_output(), file);
    if (!place.is_open())
        return last_error();
    auto const old = place.status(name);
    // Not the rights to run as its owner: the old file may be somebody else's.
    if (old && S_ISREG(old->st_mode) && fchmod(new_file.get(), old->st_mode & 0777) != 0)
        return last_error();
    return new_file.sync().error();
}

std::error_code carry_out(s2sStagingFolder const & staging, Move & move, bool alone)
{
    auto const name = move.file.filename().native();
    auto const from = folder_of(staging.files(), move.file);
    auto const to = folder_of(staging.place_of_output(), move.file);
    auto const old = to.status(name);
    // With several files a later one may fail, and then the earlier ones must come back. Not every file
    // system can exchange.
    if (old && !alone && !S_ISDIR(old->st_mode) &&
        renameat2(from.descriptor(), name.c_str(), to.descriptor(), name.c_str(), RENAME_EXCHANGE) == 0) {
        move.how = Move::exchanged;
        return {};
    }
    move.how = old ? Move::replaced : Move::added;
    if (renameat(from.descriptor(), name.c_str(), to.descriptor(), name.c_str()) != 0)
        return last_error();
    return {};
}

bool take_back(s2sStagingFolder const & staging, Move const & move)
{
    auto const name = move.file.filename().native();
    auto const from = folder_of(staging.files(), move.file);
    auto const to = folder_of(staging.place_of_output(), move.file);
    if (move.how == Move::exchanged)
        return renameat2(from.descriptor(), name.c_str(), to.descriptor(), name.c_str(), RENAME_EXCHANGE) ==
               0;
    return move.how == Move::replaced ||
           renameat(to.descriptor(), name.c_str(), from.descriptor(), name.c_str()) == 0;
}

/// Moves all the files or, when one of them fails, none.
std::error_code carry_out_all(s2sStagingFolder const & staging, std::vector<Move> & all)
{
    bool const alone = all.size() == 1;
    // From the first exchange on older files lie here. Were this process ended in between, nobody may take
    // them for unfinished ones.
    if (!alone && !staging.folder().set_kept(true))
        return last_error();
    std::error_code error;
    bool back = true;
    for (std::size_t i = 0; i < all.size() && !error; ++i) {
        error = carry_out(staging, all[i], alone);
        while (error && i > 0)
            back = take_back(staging, all[--i]) && back;
    }
    if (!alone && back)
        staging.folder().set_kept(false);
    return error;
}

/// A folder that cannot be synchronised does no harm: its files are in place.
void make_names_last(s2sStagingFolder const & staging, std::vector<Move> const & moves)
{
    std::set<fs::path> folders;
    for (auto const & move : moves)
        if (folders.insert(move.file.parent_path()).second)
            static_cast<void>(folder_of(staging.place_of_output(), move.file).sync());
}

} // namespace

std::vector<fs::path> s2s_places_of(s2sStagingFolder const & staging, fs::path const & output)
{
    std::vector<fs::path> places;
    for (auto const & move : moves_of(staging, output))
        places.push_back(output.parent_path() / move.file);
    return places;
}

s2sFailure s2s_put_in_place(s2sStagingFolder const & staging, fs::path const & output,
                            std::vector<fs::path> const & inputs)
{
    auto all = moves_of(staging, output);
    if (all.empty() || all.back().file != output.filename())
        return s2sMessages::output_not_written(output);
    for (auto const & move : all)
        if (auto const * const input = replaced_input(move.file, staging.place_of_output(), inputs))
            return s2sMessages::output_would_replace_input(output, *input);

    for (auto const & move : all)
        if (auto const error = prepare(staging, move.file))
            return s2sMessages::output_not_in_place(output, error.message());
    if (auto const error = carry_out_all(staging, all))
        return s2sMessages::output_not_in_place(output, error.message());
    make_names_last(staging, all);
    return std::nullopt;
}
