#include "sdu/sduStartupInfo.h"

#include <sys/file.h>

#include <fcntl.h>

#include "ap/apFileDescriptor.h"
#include "ap/apPosixOperations.h"

namespace {

constexpr std::size_t most_bytes = std::size_t(1) << 20;

/// One program at a time reads, changes and replaces the settings of a directory. The lock lies on the
/// directory itself, so that no lock file is left over; where it cannot be had the save goes on without it.
class DirectoryLock {
public:
    explicit DirectoryLock(apPathName const & directory)
        : m_directory(directory.utf8(), O_RDONLY | O_DIRECTORY)
    {
        if (m_directory.open())
            ::flock(m_directory.get(), LOCK_EX);
    }

private:
    apFileDescriptor m_directory;
};

apPathName directory_of(apPathName const & path)
{
    auto const directory = path.directory();
    return directory.empty() ? apPathName(L".") : directory;
}

} // namespace

void sduStartupInfo::load(char const * path)
{
    m_path = path ? path : "";
    m_this_run.clear();
    std::string content;
    m_backed = static_cast<bool>(
        apPosixFileOperations().read_file(apPathName::from_utf8(m_path), content, most_bytes));
    m_file = sduStartupFile(content);
    m_content = m_backed ? std::optional(content) : std::nullopt;
}

utString sduStartupInfo::find_field(utString const & key) const
{
    auto const found = m_this_run.find(key);
    return found != m_this_run.end() ? found->second : m_file.find(key);
}

void sduStartupInfo::add_field(utString const & key, utString const & value)
{
    m_backed = save(key, value);
    if (m_backed)
        m_this_run.erase(key);
    else
        m_this_run[key] = value;
}

void sduStartupInfo::add_field_without_saving(utString const & key, utString const & value)
{
    m_this_run[key] = value;
}

bool sduStartupInfo::save(utString const & key, utString const & value)
{
    apPosixFileOperations const files;
    auto const path = apPathName::from_utf8(m_path);
    auto const directory = directory_of(path);
    if (path.empty() || !files.make_directories(directory))
        return false;
    DirectoryLock const lock(directory);

    std::string content;
    auto const read = files.read_file(path, content, most_bytes);
    bool const absent = read.error() == std::errc::no_such_file_or_directory;
    // What cannot be read is somebody's file all the same and is not written over.
    if ((!read && !absent) || !files.can_replace_file(path))
        return false;
    auto file = absent ? m_file : sduStartupFile(content);
    file.set(key, value);
    auto text = file.text();
    if (!files.replace_file(path, text))
        return false;
    m_file = std::move(file);
    m_content = std::move(text);
    return true;
}

int sduStartupInfo::changed() const
{
    std::string content;
    bool const there = static_cast<bool>(
        apPosixFileOperations().read_file(apPathName::from_utf8(m_path), content, most_bytes));
    return there != m_content.has_value() || (there && content != *m_content) ? 1 : 0;
}

int sduStartupInfo::using_defaults() const
{
    return m_backed && apPosixFileOperations().can_replace_file(apPathName::from_utf8(m_path)) ? 0 : 1;
}
