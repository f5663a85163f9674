#include "sdb/sdbFormatSignature.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

constexpr std::string_view white_space = " \t\r\n\f\v";

// A text may begin just inside the reach and end behind it.
constexpr std::size_t bytes_read = 2 * sdb_signature_reach;

std::size_t end_of_blanks_and_comments(std::string_view bytes)
{
    std::size_t at = 0;
    while (true) {
        at = std::min(bytes.find_first_not_of(white_space, at), bytes.size());
        if (bytes.substr(at, 2) != "/*")
            return at;
        auto const end = bytes.find("*/", at + 2);
        if (end == std::string_view::npos)
            return bytes.size();
        at = end + 2;
    }
}

bool same_letters(std::string_view a, std::string_view b)
{
    auto const lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

std::string_view next_word(std::string_view & rest)
{
    auto const begin = std::min(rest.find_first_not_of(white_space), rest.size());
    auto const end = std::min(rest.find_first_of(white_space, begin), rest.size());
    auto const word = rest.substr(begin, end - begin);
    rest.remove_prefix(end);
    return word;
}

bool fits(sdbTextSignature const & signature, sdbFileHead const & head)
{
    std::string_view const bytes = head.bytes;
    auto const at = end_of_blanks_and_comments(bytes);
    return at < signature.within && bytes.substr(at, signature.text.size()) == signature.text;
}

bool fits(sdbColumnSignature const & signature, sdbFileHead const & head)
{
    std::string_view const bytes = head.bytes;
    auto const line = bytes.substr(0, bytes.find_first_of("\r\n"));
    return line.size() >= signature.column &&
           line.substr(signature.column - 1, signature.text.size()) == signature.text;
}

bool fits(sdbCountedSignature const & signature, sdbFileHead const & head)
{
    if (head.size < signature.header || head.bytes.size() < signature.count_offset + 4)
        return false;
    std::uint64_t count = 0;
    for (int i = 3; i >= 0; --i)
        count =
            count << 8 |
            static_cast<unsigned char>(
                head.bytes[static_cast<std::size_t>(signature.count_offset) + static_cast<std::size_t>(i)]);
    return head.size - signature.header == count * signature.record;
}

bool fits(sdbWordsSignature const & signature, sdbFileHead const & head)
{
    auto rest = std::string_view(head.bytes).substr(0, sdb_signature_reach);
    if (!same_letters(next_word(rest), signature.first))
        return false;
    for (auto word = next_word(rest); !word.empty(); word = next_word(rest))
        if (same_letters(word, signature.then))
            return true;
    return false;
}

} // namespace

std::optional<sdbFileHead> sdbFileHead::read(std::string const & path)
{
    std::error_code error;
    // Opening anything else than a regular file, a pipe for one, could wait for ever.
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    sdbFileHead head;
    head.size = std::filesystem::file_size(path, error);
    if (!file || error)
        return std::nullopt;
    head.bytes.resize(bytes_read);
    file.read(head.bytes.data(), static_cast<std::streamsize>(bytes_read));
    if (file.bad())
        return std::nullopt;
    head.bytes.resize(static_cast<std::size_t>(file.gcount()));
    return head;
}

bool sdb_signature_fits(sdbFormatSignature const & signature, sdbFileHead const & head)
{
    return std::visit([&](auto const & kind) { return fits(kind, head); }, signature);
}
