#include "s2s/s2sStagingFolder.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <random>
#include <system_error>

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

bool names_dead_process(std::string const & name, std::string const & start)
{
    if (name.compare(0, start.size(), start) != 0)
        return false;
    pid_t pid = 0;
    auto const [end, error] = std::from_chars(name.data() + start.size(), name.data() + name.size(), pid);
    if (error != std::errc() || end == name.data() + name.size() || *end != '-' || pid <= 0)
        return false;
    return kill(pid, 0) != 0 && errno == ESRCH;
}

// A process may have been killed before it could write the mark. With an empty folder nothing is lost.
void remove_without_mark(apFolder const & parent, std::string const & name)
{
    auto const found = parent.status(name);
    if (found && S_ISDIR(found->st_mode) && found->st_uid == geteuid() && (found->st_mode & 0777) == 0700)
        parent.remove_folder(name);
}

std::string random_letters()
{
    constexpr char letters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> one(0, sizeof letters - 2);
    std::string text(8, ' ');
    for (auto & letter : text)
        letter = letters[one(random)];
    return text;
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
    auto const parent = apFolder::open(folder);
    for (auto const & name : parent.names()) {
        if (!names_dead_process(name, start))
            continue;
        auto const left = apMarkedFolder::open(parent.open_folder("."), name);
        if (!left.is_open())
            remove_without_mark(parent, name);
        else if (left.lock())
            left.remove();
    }
}

s2sStagingFolder::~s2sStagingFolder()
{
    if (m_folder.is_open())
        m_folder.remove();
}

s2sFailure s2sStagingFolder::create(fs::path const & output)
{
    auto const place = output.parent_path();
    auto const parent = apFolder::open(place);
    if (!parent.is_open())
        return reason_for(errno, place, output);
    constexpr int attempts = 100;
    std::string name;
    for (int i = 0; i < attempts && !m_folder.is_open() && (i == 0 || errno == EEXIST); ++i) {
        name = name_start() + std::to_string(getpid()) + '-' + random_letters();
        m_folder = apMarkedFolder::make(parent.open_folder("."), name);
    }
    // The folder is there; on some file systems of the kernel's own nobody can make anything.
    if (!m_folder.is_open())
        return reason_for(errno == ENOENT ? EACCES : errno, place, output);
    m_path = place / name;
    return std::nullopt;
}
