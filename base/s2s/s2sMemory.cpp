#include "s2s/s2sMemory.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace {

// With less a host cannot even load its libraries and read a small file; where there really is less, the
// system has other means, such as swapping.
constexpr std::uint64_t least_share = 512ULL * 1024 * 1024;

/// The names of the files in which a kind of control groups tells of memory.
struct GroupFiles {
    char const * limit;
    char const * usage;
    char const * idle; ///< word of memory.stat: content of files that the system gives up when it is asked
};
constexpr GroupFiles unified{"memory.max", "memory.current", "inactive_file"};
constexpr GroupFiles separate{"memory.limit_in_bytes", "memory.usage_in_bytes", "total_inactive_file"};

/// The number behind a word that begins a line; with an empty word, the first one of the file.
std::optional<std::uint64_t> number_in(fs::path const & file, std::string const & word)
{
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        std::istringstream words(line);
        std::string first;
        if (!word.empty() && !(words >> first && first == word))
            continue;
        std::uint64_t number = 0;
        if (words >> number)
            return number;
        return std::nullopt;
    }
    return std::nullopt;
}

/// A group cannot have more than the groups that it lies in. Inside a container the path may not be there;
/// the group of the container is then what is seen at the top.
void restrict_to_groups(s2sMemory & memory, fs::path const & top, fs::path const & path,
                        GroupFiles const & files)
{
    for (auto group = path.relative_path();; group = group.parent_path()) {
        auto const folder = top / group;
        auto const limit = number_in(folder / files.limit, "");
        auto const usage = number_in(folder / files.usage, "");
        if (limit && usage && *limit < memory.total) {
            auto const idle = number_in(folder / "memory.stat", files.idle).value_or(0);
            auto const used = *usage - std::min(*usage, idle);
            memory.total = *limit;
            memory.available = std::min(memory.available, *limit - std::min(*limit, used));
        }
        if (group.empty())
            return;
    }
}

bool names(std::string const & controllers, char const * name)
{
    return ("," + controllers + ",").find("," + std::string(name) + ",") != std::string::npos;
}

} // namespace

s2sMemory s2s_memory(fs::path const & root)
{
    s2sMemory memory{number_in(root / "proc/meminfo", "MemTotal:").value_or(0) * 1024,
                     number_in(root / "proc/meminfo", "MemAvailable:").value_or(0) * 1024};
    // Lines such as "4:memory:/a/b"; that of the unified groups is "0::/a/b".
    std::ifstream groups(root / "proc/self/cgroup");
    std::string number, controllers, path;
    while (std::getline(groups, number, ':') && std::getline(groups, controllers, ':') &&
           std::getline(groups, path)) {
        if (controllers.empty())
            restrict_to_groups(memory, root / "sys/fs/cgroup", path, unified);
        else if (names(controllers, "memory"))
            restrict_to_groups(memory, root / "sys/fs/cgroup/memory", path, separate);
    }
    return memory;
}

std::uint64_t s2s_memory_share(s2sMemory const & memory, int hosts)
{
    if (memory.available == 0)
        return 0;
    // A host has a second process, which reads the output back and may take half as much as the host. Both
    // together must not take the last of it, or the system begins to end programs, and not always the right
    // one.
    auto const usable = memory.available / 3 * 2;
    return std::max(usable / static_cast<std::uint64_t>(std::max(1, hosts)), least_share);
}

bool s2s_memory_for_one_more(s2sMemory const & memory)
{
    return memory.available >= memory.total / 4;
}

bool s2s_memory_is_short(s2sMemory const & memory)
{
    return memory.available < memory.total / 8;
}
