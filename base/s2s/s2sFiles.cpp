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
    std::error_code error;
    auto place = fs::absolute(file, error).lexically_normal();
    // As many steps as the system itself would follow.
    for (int links = 0; links < 40 && fs::is_symlink(fs::symlink_status(place, error)); ++links) {
        auto const target = fs::read_symlink(place, error);
        if (error)
            break;
        place = (place.parent_path() / target).lexically_normal();
    }
    return place;
}

s2sFailure s2s_check_input(fs::path const & file)
{
    if (!is_text(file))
        return s2sMessages::name_not_text(file);
    struct stat found;
    if (stat(file.c_str(), &found) != 0 || access(file.c_str(), R_OK) != 0)
        return s2sMessages::input_missing(file, std::generic_category().message(errno));
    if (S_ISDIR(found.st_mode))
        return s2sMessages::input_not_a_file(file);
    return std::nullopt;
}

s2sFailure s2s_check_output(fs::path const & file)
{
    if (!is_text(file))
        return s2sMessages::name_not_text(file);
    struct stat found;
    if (stat(file.c_str(), &found) != 0)
        return errno == ENAMETOOLONG ? s2sFailure(s2sMessages::name_too_long(file)) : std::nullopt;
    if (!S_ISREG(found.st_mode))
        return s2sMessages::output_not_a_file(file);
    if (access(file.c_str(), W_OK) != 0)
        return s2sMessages::output_protected(file);
    return std::nullopt;
}
