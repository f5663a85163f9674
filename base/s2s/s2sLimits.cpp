#include "s2s/s2sLimits.h"

#include <algorithm>
#include <charconv>

#include <sys/statvfs.h>

#include "s2s/s2sMemory.h"
#include "s2s/s2sTranslationElements.h"
#include "sdu/sduStartupInfo.h"
#include "sdu/sduStartupKeys.h"

namespace fs = std::filesystem;

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr std::uint64_t megabyte = 1024 * 1024;
// With less a host could not even begin.
constexpr std::uint64_t least_memory = 64 * megabyte;
// Left free on the disk for others.
constexpr std::uint64_t reserve = 256 * megabyte;
// What is beyond means for ever, and no number computed from it overflows.
constexpr std::uint64_t largest_setting = 1'000'000'000;

std::optional<std::uint64_t> number_in(sduStartupInfo const & settings, char const * key)
{
    auto const text = settings.find_field(key);
    std::uint64_t number = 0;
    auto const end = text.view().data() + text.view().size();
    auto const [stop, error] = std::from_chars(text.view().data(), end, number);
    if (text.empty() || error != std::errc() || stop != end)
        return std::nullopt;
    return std::min(number, largest_setting);
}

double megabytes_of(s2sTranslationElements const & elements)
{
    double megabytes = 0;
    for (auto const & input : elements.input_elements()) {
        std::error_code error;
        auto const size = fs::file_size(input.file().str(), error);
        if (!error)
            megabytes += static_cast<double>(size) / megabyte;
    }
    return megabytes;
}

std::uint64_t room_in(fs::path const & folder)
{
    struct statvfs disk;
    if (statvfs(folder.c_str(), &disk) != 0)
        return 0;
    return s2s_file_size_for(static_cast<std::uint64_t>(disk.f_bavail) * disk.f_frsize);
}

} // namespace

s2sLimits s2s_limits(sduStartupInfo const & settings)
{
    s2sLimits limits;
    if (auto const number = number_in(settings, sduTRANSLATIONPATIENCE))
        limits.patience = seconds(*number);
    if (auto const number = number_in(settings, sduTRANSLATIONMEMORY))
        limits.memory = *number > 0 ? std::max(*number * megabyte, least_memory) : 0;
    if (auto const number = number_in(settings, sduTRANSLATIONOUTPUTSIZE))
        limits.output_size = *number * megabyte;
    return limits;
}

std::uint64_t s2s_file_size_for(std::uint64_t free)
{
    return free >= 2 * reserve ? free - reserve : 0;
}

std::uint64_t s2s_allowed_memory(s2sLimits const & limits, int hosts)
{
    return limits.memory > 0 ? limits.memory : s2s_memory_share(s2s_memory(), hosts);
}

s2sAllowance s2s_allowance(s2sLimits const & limits, s2sTranslationElements const & elements,
                           fs::path const & folder, int hosts)
{
    s2sAllowance allowance;
    allowance.memory = s2s_allowed_memory(limits, hosts);
    allowance.file_size = limits.output_size > 0 ? limits.output_size : room_in(folder);
    if (limits.patience > seconds(0))
        allowance.patience = std::chrono::ceil<milliseconds>(std::chrono::duration<double>(limits.patience) *
                                                             (1 + megabytes_of(elements) / 4));
    return allowance;
}
