#include "s2s/s2sFiles.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

#include "ap/apFileIdentity.h"
#include "ap/apString.h"

namespace fs = std::filesystem;

namespace {

bool is_text(fs::path const & file)
{
    return apString::from_utf8(file.native()).well_formed();
}

// The links that lead from the name to the file, and where that lies.
std::vector<fs::path> places_on_the_way(fs::path const & file)
{
    std::error_code error;
    std::vector<fs::path> places{fs::absolute(file, error).lexically_normal()};
    // As many steps as the system itself would follow.
    for (int links = 0; links < 40 && fs::is_symlink(fs::symlink_status(places.back(), error)); ++links) {
        auto const target = fs::read_symlink(places.back(), error);
        if (error)
            break;
        places.push_back((places.back().parent_path() / target).lexically_normal());
    }
    return places;
}

bool is_link_of_another(fs::path const & place)
{
    struct stat found;
    return lstat(place.c_str(), &found) == 0 && S_ISLNK(found.st_mode) && found.st_uid != geteuid() &&
           found.st_uid != 0;
}

} // namespace

bool s2s_same_file(fs::path const & a, fs::path const & b)
{
    auto const identity_a = ap_file_identity(a.native());
    auto const identity_b = ap_file_identity(b.native());
    if (identity_a || identity_b)
        return identity_a == identity_b;
    std::error_code error;
    auto const place_a = fs::weakly_canonical(fs::absolute(a, error), error);
    auto const place_b = fs::weakly_canonical(fs::absolute(b, error), error);
    return !place_a.empty() && place_a == place_b;
}

bool s2s_is_one_of(fs::path const & file, std::vector<fs::path> const & others)
{
    return std::any_of(others.begin(), others.end(),
                       [&](auto const & other) { return s2s_same_file(file, other); });
}

fs::path s2s_real_place(fs::path const & file)
{
    return places_on_the_way(file).back();
}

s2sFailure s2s_check_input(fs::path const & file)
{
    if (!is_text(file))
        return s2sMessages::name_not_text(file);
    struct stat found;
    if (stat(file.c_str(), &found) != 0 || access(file.c_str(), R_OK) != 0)
        return s2sMessages::input_missing(file, std::generic_category().message(errno));
    return s2s_check_kind_of_input(file);
}

s2sFailure s2s_check_kind_of_input(fs::path const & file)
{
    struct stat found;
    if (stat(file.c_str(), &found) != 0 || S_ISREG(found.st_mode))
        return std::nullopt;
    return S_ISDIR(found.st_mode) ? s2sMessages::input_not_a_file(file)
                                  : s2sMessages::input_not_ordinary(file);
}

s2sFailure s2s_check_output(fs::path const & file)
{
    if (file.empty())
        return s2sMessages::output_without_name();
    if (!is_text(file))
        return s2sMessages::name_not_text(file);
    auto const places = places_on_the_way(file);
    if (std::any_of(places.begin(), places.end(), is_link_of_another))
        return s2sMessages::output_link_of_another(file);
    struct stat found;
    if (stat(file.c_str(), &found) != 0)
        return errno == ENAMETOOLONG ? s2sFailure(s2sMessages::name_too_long(file)) : std::nullopt;
    if (!S_ISREG(found.st_mode))
        return s2sMessages::output_not_a_file(file);
    if (access(file.c_str(), W_OK) != 0)
        return s2sMessages::output_protected(file);
    return std::nullopt;
}
