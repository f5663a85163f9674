#pragma once

#include "sdk/sdkResult.h"

#include <Message_ProgressRange.hxx>
#include <Message_ProgressScope.hxx>

#include <cstdint>
#include <memory>
#include <streambuf>
#include <string>

// A new file that is written from beginning to end through a stream. It remembers the first error, so that a
// full disk is noticed whatever the writing code does, and stops taking data once there is one or the user
// cancels. A flush of the stream does nothing: some writers flush with each line.
class sdkOutputFile : public std::streambuf {
public:
    // An old file of that name loses its content.
    sdkOutputFile(std::string const & path, Message_ProgressRange const & range);
    ~sdkOutputFile() override;
    sdkOutputFile(sdkOutputFile const &) = delete;
    sdkOutputFile & operator=(sdkOutputFile const &) = delete;

    // Writes what waits and closes the file. The result is a write error with the system's reason when
    // anything went wrong before or now or when nothing was written; `shown` is the name for the user.
    sdkResult close(std::string const & shown);

    std::uint64_t size() const { return m_size; }

protected:
    int_type overflow(int_type character) override;
    int sync() override { return 0; }

private:
    bool send();

    int m_descriptor = -1;
    int m_error = 0;
    bool m_cancelled = false;
    std::uint64_t m_size = 0;
    std::unique_ptr<char[]> m_buffer;
    Message_ProgressScope m_scope;
};
