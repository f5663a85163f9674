#pragma once

#include "sdk/sdkText.h"

#include <Message_ProgressRange.hxx>
#include <Message_ProgressScope.hxx>

#include <cstddef>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>

// A file that is read once from beginning to end. As a stream buffer it advances a progress range by the
// bytes that were taken, and ends early when the user cancels.
class sdkInputFile : public std::streambuf {
public:
    sdkInputFile() = default;
    ~sdkInputFile() override;
    sdkInputFile(sdkInputFile const &) = delete;
    sdkInputFile & operator=(sdkInputFile const &) = delete;

    // False, with a text that names the file, when it cannot be opened or is empty.
    bool open(std::string const & path, sdkText & failure);

    // The whole content; valid until the file is destroyed.
    std::string_view text() const { return {m_begin, m_size}; }

    // As a stream, but not in text(), the file has this text in place of all that follows its first bytes.
    // Call it before the buffer is read from.
    void replace_end(std::size_t bytes, std::string text);
    // The stream, but not text(), begins behind so many bytes. Call it before the buffer is read from.
    void skip(std::size_t bytes);

    // Call it before the buffer is read from, else nothing is advanced.
    void advance(Message_ProgressRange const & range);
    bool cancelled() const { return m_cancelled; }

protected:
    int_type underflow() override;

private:
    char * m_begin = nullptr;
    std::size_t m_size = 0;
    std::size_t m_taken = 0;
    std::size_t m_stream_size = 0; // of the bytes that come from the file
    std::string m_end;             // what the stream has behind them
    std::optional<Message_ProgressScope> m_scope;
    bool m_cancelled = false;
};
