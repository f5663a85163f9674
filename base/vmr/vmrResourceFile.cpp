#include "vmr/vmrResourceFile.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// No translator has options of this size; a file beyond it is something else that was chosen by mistake.
constexpr std::uintmax_t largest_file = 16 << 20;

/// A file that is written beside its final place. It disappears unless it is moved there.
class NewFile {
public:
    explicit NewFile(fs::path const & target) : m_target(target)
    {
        static std::atomic<unsigned> count = 0;
        m_path = target;
        m_path += ".new-" + std::to_string(getpid()) + "-" + std::to_string(++count);
        m_descriptor = open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    }
    NewFile(NewFile const &) = delete;
    NewFile & operator=(NewFile const &) = delete;
    ~NewFile()
    {
        if (m_descriptor < 0)
            return;
        close(m_descriptor);
        if (!m_moved)
            unlink(m_path.c_str());
    }

    bool write_all(std::string_view text)
    {
        if (m_descriptor < 0)
            return false;
        while (!text.empty()) {
            auto const written = write(m_descriptor, text.data(), text.size());
            if (written < 0 && errno != EINTR)
                return false;
            text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
        }
        return true;
    }

    bool move_into_place()
    {
        struct stat old = {};
        if (stat(m_target.c_str(), &old) == 0 && fchmod(m_descriptor, old.st_mode & 07777) != 0)
            return false;
        m_moved = fsync(m_descriptor) == 0 && rename(m_path.c_str(), m_target.c_str()) == 0;
        return m_moved;
    }

private:
    fs::path m_target;
    fs::path m_path;
    int m_descriptor = -1;
    bool m_moved = false;
};

/// Where the text of `file` lies: a link is followed, so that saving does not cut it. Empty when a file there
/// may not be replaced: renaming would not ask for the permission to write it.
fs::path place_to_write(fs::path const & file)
{
    std::error_code error;
    auto const status = fs::status(file, error);
    if (!fs::exists(status))
        return file;
    if (!fs::is_regular_file(status) || access(file.c_str(), W_OK) != 0)
        return {};
    return fs::canonical(file, error);
}

} // namespace

int vmr_resource_load(utString const & file, coResourceTable & table, std::vector<std::string> & problems)
{
    auto const path = fs::path(file.str());
    std::error_code error;
    auto const size = fs::is_regular_file(path, error) ? fs::file_size(path, error) : 0;
    auto const fail = [&](std::string const & reason) {
        problems.push_back(file.str() + ": " + reason);
        return 0;
    };
    if (error)
        return fail(error.message());
    if (!fs::is_regular_file(path, error))
        return fail("it is not a file");
    if (size > largest_file)
        return fail("it is too large for a resource file");
    std::ifstream stream(path, std::ios::binary);
    std::string text(static_cast<std::size_t>(size), '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (!stream.is_open() || stream.bad())
        return fail("it cannot be read");
    text.resize(static_cast<std::size_t>(stream.gcount()));
    auto const before = problems.size();
    vmr_read_resource_text(text, table, problems);
    for (auto i = before; i < problems.size(); ++i)
        problems[i] = file.str() + ", " + problems[i];
    return 1;
}

int vmr_resource_save(utString const & file, coResourceTable const * table)
{
    if (!table || file.empty())
        return 0;
    auto const target = place_to_write(file.str());
    if (target.empty())
        return 0;
    NewFile fresh(target);
    return fresh.write_all(vmr_resource_text(*table)) && fresh.move_into_place();
}
