#include "sglReleaseStatus.h"

#include "sglResourceString.h"

#include <array>
#include <optional>

namespace {

sglBuildType current_type = sglBuildFull;

constexpr std::array<unsigned int, 7> text_ids = {1088, 1089, 1090, 1091, 1267, 1092, 1093};

} // namespace

int sglReleaseStatus::initialise(sglBuildType type)
{
    if (static_cast<unsigned int>(type) >= text_ids.size())
        return 0;
    current_type = type;
    return 1;
}

sglBuildType sglReleaseStatus::build_type()
{
    return current_type;
}

utString sglReleaseStatus::release_string()
{
    static std::array<std::optional<utString>, text_ids.size()> texts;
    auto const index = static_cast<std::size_t>(current_type);
    auto & text = texts[index];
    if (!text)
        text = sglResourceString("vmrgrlib", text_ids[index]);
    return *text;
}

utString sglReleaseStatus::splash_string()
{
    return current_type == sglBuildFull ? utString() : release_string();
}
