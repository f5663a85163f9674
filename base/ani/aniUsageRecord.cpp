#include "ani/aniUsageRecord.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ap/apFileDescriptor.h"
#include "ap/apPosixOperations.h"
#include "ap/apStagedFile.h"

namespace {

constexpr unsigned for_the_owner = 0600;

apFileResult lock(apFileDescriptor const & file)
{
    int result = 0;
    do {
        result = ::flock(file.get(), LOCK_EX);
    } while (result != 0 && errno == EINTR);
    return result == 0 ? apFileResult() : apFileResult(errno);
}

aniUsageChoice choice_of(std::string_view content)
{
    auto const word = content.substr(0, content.find('\n'));
    return word == "yes" ? aniUsageAgreed : word == "no" ? aniUsageRefused : aniUsageUndecided;
}

aniUsageChoice choice_in(apFileDescriptor const & file)
{
    char start[8];
    long const count = ::pread(file.get(), start, sizeof start, 0);
    return choice_of({start, static_cast<std::size_t>(std::max(0L, count))});
}

std::string content_of(std::string const & path)
{
    std::ifstream const stream(path, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf(); // unlike an iterator it throws nothing when the name stands for a folder
    return content.str();
}

/// The newer half of the lines, so that a full file is not written anew for each further line.
apFileResult drop_old_lines(std::string const & path)
{
    std::string const all = content_of(path);
    auto const end_of_old = all.find('\n', all.size() - std::min(all.size(), aniUsageRecord::most_bytes / 2));
    apStagedFile kept(path);
    kept.use_permissions_of_target();
    if (end_of_old != std::string::npos)
        kept.write(std::string_view(all).substr(end_of_old + 1));
    return kept.commit();
}

} // namespace

aniUsageRecord::aniUsageRecord(apString folder) : m_folder(folder.utf8()) {}

aniUsageChoice aniUsageRecord::choice() const
{
    if (!has_place())
        return aniUsageUndecided;
    apFileDescriptor const file(choice_file(), O_RDONLY);
    return file.open() ? choice_in(file) : aniUsageUndecided;
}

apFileResult aniUsageRecord::choose(bool agreed) const
{
    if (!has_place())
        return apFileResult(ENOENT);
    std::error_code error;
    if (!std::filesystem::exists(m_folder, error)) {
        auto const made = apPosixFileOperations().make_directories(apPathName::from_utf8(m_folder));
        if (!made)
            return made;
        std::filesystem::permissions(m_folder, std::filesystem::perms::owner_all, error);
    }
    if (error)
        return apFileResult(error);
    // Written in place, because it is the lock as well, and in one go: it is shorter than anything that a
    // disk would part.
    apFileDescriptor const file(choice_file(), O_RDWR | O_CREAT, for_the_owner);
    if (!file.open())
        return apFileResult(errno);
    if (auto const locked = lock(file); !locked)
        return locked;
    std::string_view const text = agreed ? "yes\n" : "no\n";
    if (auto const written = file.write(text); !written)
        return written;
    return ::ftruncate(file.get(), static_cast<off_t>(text.size())) == 0 ? file.sync() : apFileResult(errno);
}

bool aniUsageRecord::add(std::string_view line) const
{
    if (!has_place())
        return false;
    apFileDescriptor const choice(choice_file(), O_RDWR);
    if (!choice.open() || !lock(choice) || choice_in(choice) != aniUsageAgreed)
        return false;

    apFileDescriptor file(this->file(), O_WRONLY | O_APPEND | O_CREAT, for_the_owner);
    struct stat status;
    if (!file.open() || ::fstat(file.get(), &status) != 0)
        return false;
    if (static_cast<std::size_t>(status.st_size) + line.size() >= most_bytes) {
        if (!drop_old_lines(this->file()))
            return false;
        file = apFileDescriptor(this->file(), O_WRONLY | O_APPEND);
        if (!file.open() || ::fstat(file.get(), &status) != 0)
            return false;
    }
    if (file.write(std::string(line) + '\n'))
        return true;
    // A disk that was full in the middle of the line: what is there of it would spoil the next one.
    [[maybe_unused]] int const cut = ::ftruncate(file.get(), status.st_size);
    return false;
}

std::string aniUsageRecord::text() const
{
    return has_place() ? content_of(file()) : std::string();
}

apFileResult aniUsageRecord::remove() const
{
    if (!has_place())
        return {};
    // Without the lock's file nobody writes.
    apFileDescriptor const choice(choice_file(), O_RDWR);
    if (choice.open())
        if (auto const locked = lock(choice); !locked)
            return locked;
    return ::unlink(file().c_str()) == 0 || errno == ENOENT ? apFileResult() : apFileResult(errno);
}
