#include "s2s/s2sStagingFolder.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Process numbers mean something only on one machine and in one container of it, while a folder may be shared
// by several; the name says which.
std::string place_of_process()
{
    char host[256] = "";
    gethostname(host, sizeof host - 1);
    char space[64] = "";
    [[maybe_unused]] auto const length = readlink("/proc/self/ns/pid", space, sizeof space - 1);
    auto const hash = std::hash<std::string>()(std::string(host) + ' ' + space) & 0xffffffu;
    char text[16] = "";
    auto const end = std::to_chars(text, text + sizeof text, hash, 16).ptr;
    return std::string(text, end);
}

std::string name_start()
{
    return ".vmr-" + place_of_process() + '-';
}

bool belongs_to_dead_process(fs::path const & folder, std::string const & start)
{
    auto const name = folder.filename().native();
    if (name.compare(0, start.size(), start) != 0)
        return false;
    pid_t pid = 0;
    auto const [end, error] = std::from_chars(name.data() + start.size(), name.data() + name.size(), pid);
    if (error != std::errc() || end == name.data() + name.size() || *end != '-' || pid <= 0)
        return false;
    struct stat found;
    if (lstat(folder.c_str(), &found) != 0 || !S_ISDIR(found.st_mode) || found.st_uid != geteuid())
        return false;
    return kill(pid, 0) != 0 && errno == ESRCH;
}

s2sMessage reason_for(int error, fs::path const & parent, fs::path const & output)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return s2sMessages::folder_missing(parent);
    case EACCES:
    case EPERM:
    case EROFS:
        return s2sMessages::folder_not_writable(parent);
    case ENAMETOOLONG:
        return s2sMessages::name_too_long(output);
    default:
        return s2sMessages::folder_unusable(parent, std::generic_category().message(error));
    }
}

} // namespace

void s2s_remove_left_behind(fs::path const & folder)
{
    auto const start = name_start();
    std::error_code error;
    for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::error_code ignored;
        if (belongs_to_dead_process(entry->path(), start))
            fs::remove_all(entry->path(), ignored);
    }
}

s2sStagingFolder::~s2sStagingFolder()
{
    std::error_code error;
    if (!m_path.empty())
        fs::remove_all(m_path, error);
}

s2sFailure s2sStagingFolder::create(fs::path const & output)
{
    auto const parent = output.parent_path();
    auto name = (parent / (name_start() + std::to_string(getpid()) + "-XXXXXX")).native();
    if (!mkdtemp(name.data()))
        return reason_for(errno, parent, output);
    m_path = name;
    return std::nullopt;
}
