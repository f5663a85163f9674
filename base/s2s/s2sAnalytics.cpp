#include "s2s/s2sAnalytics.h"

#include <algorithm>
#include <ctime>
#include <filesystem>

namespace {

std::string utc_time()
{
    auto const now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts));
}

/// Text that ends neither its field nor its line.
std::string field(apString const & text)
{
    std::string result = text.utf8();
    std::replace_if(
        result.begin(), result.end(), [](unsigned char c) { return c < ' '; }, ' ');
    return result;
}

std::string size_of(apString const & file)
{
    std::error_code error;
    auto const bytes = std::filesystem::file_size(file.utf8(), error);
    return error ? std::string("-") : std::to_string(bytes) + " bytes";
}

int count_of(std::map<apString, int> const & counts, apString const & format)
{
    auto const found = counts.find(format);
    return found == counts.end() ? 0 : found->second;
}

} // namespace

int s2sAnalytics::initialise(apString const & product, apString const & folder, apString const & version)
{
    std::lock_guard const lock(m_mutex);
    m_product = product;
    m_version = version;
    m_record = aniUsageRecord(folder);
    m_read.clear();
    m_written.clear();
    return m_record.has_place();
}

bool s2sAnalytics::is_initialised() const
{
    std::lock_guard const lock(m_mutex);
    return m_record.has_place();
}

aniUsageRecord s2sAnalytics::usage_record() const
{
    std::lock_guard const lock(m_mutex);
    return m_record;
}

void s2sAnalytics::read_file(apString const & file, apString const & format)
{
    record("read", file, format, m_read);
}

void s2sAnalytics::write_file(apString const & file, apString const & format)
{
    record("write", file, format, m_written);
}

int s2sAnalytics::num_read(apString const & format) const
{
    std::lock_guard const lock(m_mutex);
    return count_of(m_read, format);
}

int s2sAnalytics::num_written(apString const & format) const
{
    std::lock_guard const lock(m_mutex);
    return count_of(m_written, format);
}

void s2sAnalytics::record(char const * operation, apString const & file, apString const & format,
                          std::map<apString, int> & counts)
{
    std::lock_guard const lock(m_mutex);
    // A record that cannot be kept is given up: nothing that the user does depends on it.
    if (m_record.add(utc_time() + '\t' + operation + '\t' + field(format) + '\t' + size_of(file) + '\t' +
                     field(m_product) + '\t' + field(m_version)))
        ++counts[format];
}
