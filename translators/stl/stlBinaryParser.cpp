#include "stl/stlBinaryParser.h"

#include "sdk/sdkFiles.h"
#include "sdk/sdkLimits.h"

#include <Message_ProgressScope.hxx>

#include <algorithm>
#include <bit>
#include <climits>
#include <cstring>

static_assert(std::endian::native == std::endian::little);

namespace {

constexpr std::size_t record_size = 50;
constexpr std::uint32_t stride = 65536; // triangles between two looks at the user's wish to cancel

bool in_reach(gp_XYZ const & point)
{
    return sdk_in_reach(point.X()) && sdk_in_reach(point.Y()) && sdk_in_reach(point.Z());
}

} // namespace

std::uint32_t stl_binary_count(std::string_view content)
{
    std::uint32_t count = 0;
    std::memcpy(&count, content.data() + stl_header_size - sizeof count, sizeof count);
    return count;
}

std::uint64_t stl_binary_size(std::uint32_t count)
{
    return stl_header_size + std::uint64_t{record_size} * count;
}

sdkResult stl_parse_binary(std::string_view content, stlInput & input, Message_ProgressRange const & range)
{
    auto const count = stl_binary_count(content);
    if (stl_binary_size(count) > content.size()) {
        auto const whole = (content.size() - stl_header_size) / record_size;
        return sdkResult::read_error(sdkText("stl::%s is not a whole STL file: its header promises %d "
                                             "triangles, and the file ends at byte %d in "
                                             "triangle %d; export or copy it again",
                                             input.file, count, content.size(), whole + 1));
    }
    if (count > INT_MAX / 3) {
        return sdkResult::too_big(sdkText("stl::%s has %d triangles; at most %d can be translated at once",
                                          input.file, count, INT_MAX / 3));
    }
    input.ignored_bytes = static_cast<std::int64_t>(content.size() - stl_binary_size(count));
    auto & mesh = input.solids.emplace_back(sdk_file_stem(input.file), input.tolerance, count);
    Message_ProgressScope scope(range, nullptr, count / stride + 1);
    for (std::uint32_t at = 0; at < count; ++at) {
        if (at % stride == 0) {
            scope.Next();
            if (scope.UserBreak()) {
                return sdkResult::cancelled();
            }
        }
        std::size_t const position = stl_header_size + record_size * at;
        std::array<float, 12> values{};
        std::memcpy(values.data(), content.data() + position, sizeof values);
        stlCorners corners;
        for (std::size_t corner = 0; corner < 3; ++corner) {
            auto const * value = values.data() + 3 * (corner + 1);
            corners[corner] = gp_XYZ(value[0], value[1], value[2]) * input.unit;
            if (!in_reach(corners[corner])) {
                return sdkResult::read_error(
                    sdkText("stl::%s: triangle %d at byte %d has a coordinate that is no finite number "
                            "or lies farther away than %g mm; repair the file or export it again",
                            input.file, at + 1, position, sdk_farthest));
            }
        }
        mesh.add(corners, gp_XYZ(values[0], values[1], values[2]));
    }
    return sdkResult::completed();
}
