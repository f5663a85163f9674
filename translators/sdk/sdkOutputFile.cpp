#include "sdk/sdkOutputFile.h"

#include "sdk/sdkFiles.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::size_t buffer_size = 256 * 1024;

} // namespace

sdkOutputFile::sdkOutputFile(std::string const & path, Message_ProgressRange const & range)
    : m_buffer(new char[buffer_size]), m_scope(range, nullptr, 1)
{
    m_descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (m_descriptor < 0) {
        m_error = errno;
    } else {
        setp(m_buffer.get(), m_buffer.get() + buffer_size);
    }
}

sdkOutputFile::~sdkOutputFile()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

sdkResult sdkOutputFile::close(std::string const & shown)
{
    send();
    // A file system across the network may report a failed write only here.
    if (m_descriptor >= 0 && ::close(m_descriptor) != 0 && m_error == 0) {
        m_error = errno;
    }
    m_descriptor = -1;
    if (m_error != 0) {
        return sdk_not_written(shown, m_error);
    }
    if (m_cancelled) {
        return sdkResult::cancelled();
    }
    if (m_size == 0) {
        return sdkResult::write_error(
            sdkText("host::%s could not be written: there is no content for it", shown));
    }
    return sdkResult::completed();
}

sdkOutputFile::int_type sdkOutputFile::overflow(int_type character)
{
    if (!send()) {
        return traits_type::eof();
    }
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        sputc(traits_type::to_char_type(character));
    }
    return traits_type::not_eof(character);
}

bool sdkOutputFile::send()
{
    m_cancelled = m_cancelled || m_scope.UserBreak();
    char const * begin = pbase();
    while (begin != pptr() && m_descriptor >= 0 && m_error == 0 && !m_cancelled) {
        auto const written = ::write(m_descriptor, begin, static_cast<std::size_t>(pptr() - begin));
        if (written >= 0) {
            begin += written;
            m_size += static_cast<std::uint64_t>(written);
        } else if (errno != EINTR) {
            m_error = errno;
        }
    }
    bool const good = m_descriptor >= 0 && m_error == 0 && !m_cancelled;
    if (good) {
        setp(m_buffer.get(), m_buffer.get() + buffer_size);
    } else {
        setp(nullptr, nullptr);
    }
    return good;
}
