#include "host/hostStagingName.h"

#include <filesystem>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

bool host_is_staging_folder(std::string const & path)
{
    // The machine, the number of the process, and what makes the name unique.
    static std::regex const form("\\.vmr-[0-9a-f]+-[0-9]+-[0-9A-Za-z]+");
    auto const name = std::filesystem::path(path).filename().string();
    struct stat found {};
    return std::regex_match(name, form) && ::lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == ::geteuid();
}
