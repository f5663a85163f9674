#include "ap/apFileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

apFileDescriptor::apFileDescriptor(std::string const & path, int flags, unsigned mode)
{
    do
        m_descriptor = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    while (m_descriptor < 0 && errno == EINTR);
}

apFileDescriptor::~apFileDescriptor()
{
    if (open())
        ::close(m_descriptor);
}

long apFileDescriptor::read(char * buffer, std::size_t size) const
{
    long count = 0;
    do
        count = ::read(m_descriptor, buffer, size);
    while (count < 0 && errno == EINTR);
    return count;
}

apFileResult apFileDescriptor::write(std::string_view bytes) const
{
    while (!bytes.empty()) {
        auto const count = ::write(m_descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return apFileResult(errno);
        if (count > 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

apFileResult apFileDescriptor::sync() const
{
    // A file system that cannot be told to write out answers EINVAL, which is no failure of the write.
    if (::fsync(m_descriptor) != 0 && errno != EINVAL)
        return apFileResult(errno);
    return {};
}
