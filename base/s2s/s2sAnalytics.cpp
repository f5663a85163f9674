#include "s2s/s2sAnalytics.h"

#include <ctime>
#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

int open_for_append(apString const & file)
{
    return open(file.utf8().c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
}

std::string utc_time()
{
    auto const now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts));
}

int count_of(std::map<apString, int> const & counts, apString const & format)
{
    auto const found = counts.find(format);
    return found == counts.end() ? 0 : found->second;
}

} // namespace

int s2sAnalytics::initialise(apString const & product, apString const & file, apString const & installation)
{
    std::lock_guard const lock(m_mutex);
    int const descriptor = open_for_append(file);
    m_initialised = descriptor >= 0;
    if (m_initialised)
        close(descriptor);
    m_product = product;
    m_file = file;
    m_installation = installation;
    m_read.clear();
    m_written.clear();
    return m_initialised;
}

bool s2sAnalytics::is_initialised() const
{
    std::lock_guard const lock(m_mutex);
    return m_initialised;
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
    if (!m_initialised)
        return;
    ++counts[format];

    // Names of files and folders are nobody's business; the size says enough about how the program is used.
    std::error_code error;
    auto const bytes = std::filesystem::file_size(file.utf8(), error);
    json entry = {{"time", utc_time()},
                  {"product", m_product.utf8()},
                  {"installation", m_installation.utf8()},
                  {"operation", operation},
                  {"format", format.utf8()}};
    if (!error)
        entry["bytes"] = bytes;
    auto const line = entry.dump(-1, ' ', false, json::error_handler_t::replace) + '\n';

    // One write to a file opened for append stays whole when several programs record at once. A record that
    // cannot be kept is given up: nothing that the user does depends on it.
    int const descriptor = open_for_append(m_file);
    if (descriptor < 0)
        return;
    [[maybe_unused]] auto const written = write(descriptor, line.data(), line.size());
    close(descriptor);
}
