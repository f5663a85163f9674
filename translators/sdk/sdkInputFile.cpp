#include "sdk/sdkInputFile.h"

#include "sdk/sdkFiles.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t window = 256 * 1024;

} // namespace

sdkInputFile::~sdkInputFile()
{
    if (m_begin) {
        ::munmap(m_begin, m_size);
    }
}

bool sdkInputFile::open(std::string const & path, sdkText & failure)
{
    int const descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    if (descriptor < 0 || ::fstat(descriptor, &status) != 0) {
        failure = sdkText("host::%s cannot be opened: %s", path, sdk_system_text(errno));
    } else if (!S_ISREG(status.st_mode)) {
        failure = sdkText("host::%s is not a file; choose a file", path);
    } else if (status.st_size == 0) {
        failure = sdkText("host::%s is empty; export or copy it again", path);
    } else {
        m_size = static_cast<std::size_t>(status.st_size);
        m_stream_size = m_size;
        // Private and writable, as a stream buffer hands out pointers to characters that are not constant.
        void * const mapped = ::mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_PRIVATE, descriptor, 0);
        if (mapped == MAP_FAILED) {
            failure = sdkText("host::%s cannot be read: %s", path, sdk_system_text(errno));
        } else {
            m_begin = static_cast<char *>(mapped);
        }
    }
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return m_begin != nullptr;
}

void sdkInputFile::replace_end(std::size_t bytes, std::string text)
{
    m_stream_size = std::min(bytes, m_size);
    m_end = std::move(text);
}

void sdkInputFile::skip(std::size_t bytes)
{
    m_taken = std::min(bytes, m_stream_size);
}

void sdkInputFile::advance(Message_ProgressRange const & range)
{
    m_scope.emplace(range, nullptr, static_cast<double>(m_size));
}

sdkInputFile::int_type sdkInputFile::underflow()
{
    if (m_scope && m_scope->UserBreak()) {
        m_cancelled = true;
    }
    if (m_cancelled) {
        return traits_type::eof();
    }
    if (m_taken == m_stream_size) {
        // After the added text, the second time, nothing is left.
        if (m_end.empty() || gptr() == m_end.data() + m_end.size()) {
            return traits_type::eof();
        }
        setg(m_end.data(), m_end.data(), m_end.data() + m_end.size());
        return traits_type::to_int_type(*gptr());
    }
    std::size_t const length = std::min(window, m_stream_size - m_taken);
    setg(m_begin + m_taken, m_begin + m_taken, m_begin + m_taken + length);
    m_taken += length;
    if (m_scope) {
        m_scope->Next(static_cast<double>(length));
    }
    return traits_type::to_int_type(*gptr());
}
