#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

/// The file fits when `text` begins within its first `within` bytes with nothing before it but white space
/// and comments between "/*" and "*/".
struct sdbTextSignature {
    std::string text;
    std::size_t within = 0;
};

/// The file fits when its first line has `text` at `column`, counted from 1.
struct sdbColumnSignature {
    std::size_t column = 1;
    std::string text;
};

/// The file fits when it is as long as `header` plus the 32-bit little-endian count at `count_offset` times
/// `record`.
struct sdbCountedSignature {
    std::uint64_t header = 0;
    std::uint64_t count_offset = 0;
    std::uint64_t record = 0;
};

/// The file fits when its first word is `first` and the word `then` follows within the first 4096 bytes. Case
/// does not count.
struct sdbWordsSignature {
    std::string first;
    std::string then;
};

/// One way to know a format from the content of a file.
using sdbFormatSignature =
    std::variant<sdbTextSignature, sdbColumnSignature, sdbCountedSignature, sdbWordsSignature>;

/// How far into a file signatures look.
constexpr std::size_t sdb_signature_reach = 4096;

/// The first bytes of a file and its size.
struct sdbFileHead {
    std::string bytes;
    std::uint64_t size = 0;

    /// Nothing when `path` is no regular file or cannot be read.
    static std::optional<sdbFileHead> read(std::string const & path);
};

bool sdb_signature_fits(sdbFormatSignature const & signature, sdbFileHead const & head);
