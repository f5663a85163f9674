#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "ap/apFileResult.h"

/// An open file of the system, closed at the end.
class apFileDescriptor {
public:
    apFileDescriptor() = default;
    /// Opens as open(2) does, closed in programs that this one starts. Not open() on failure, with errno set.
    apFileDescriptor(std::string const & path, int flags, unsigned mode = 0);
    /// Takes over a descriptor that is open already; negative for none.
    explicit apFileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~apFileDescriptor();
    apFileDescriptor(apFileDescriptor && other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    apFileDescriptor & operator=(apFileDescriptor && other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    bool open() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    /// Bytes read, 0 at the end of the file, negative on failure with errno set.
    long read(char * buffer, std::size_t size) const;
    apFileResult write(std::string_view bytes) const; ///< all of them
    apFileResult sync() const;                        ///< returns when the disk has the content

private:
    int m_descriptor = -1;
};
