#include "sdk/measure/sdkBody.h"

#include <array>
#include <cmath>
#include <cstdio>

double sdkBody::size() const
{
    return measure.extent.IsVoid() ? 0 : std::sqrt(measure.extent.SquareExtent());
}

std::string sdkBody::title() const
{
    return part.empty() ? sdk_kind_name(kind) : part;
}

std::string sdkBody::place() const
{
    return sdk_point_text(measure.centroid);
}

char const * sdk_kind_name(sdkBodyKind kind)
{
    static constexpr std::array names{"solid", "shell", "face", "mesh", "curve", "point"};
    return names[static_cast<std::size_t>(kind)];
}

std::string sdk_point_text(gp_Pnt const & point)
{
    std::array<char, 128> text{};
    // A millionth of a millimetre is none; adding zero takes the sign from a negative zero.
    auto const shown = [](double number) { return std::abs(number) < 1.0e-6 ? 0.0 : number + 0.0; };
    std::snprintf(text.data(), text.size(), "(%.6g, %.6g, %.6g)", shown(point.X()), shown(point.Y()),
                  shown(point.Z()));
    return text.data();
}
