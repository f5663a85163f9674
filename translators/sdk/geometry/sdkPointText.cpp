#include "sdk/geometry/sdkPointText.h"

#include <array>
#include <cmath>
#include <cstdio>

std::string sdk_point_text(gp_Pnt const & point)
{
    std::array<char, 128> text{};
    // A millionth of a millimetre is none; adding zero takes the sign from a negative zero.
    auto const shown = [](double number) { return std::abs(number) < 1.0e-6 ? 0.0 : number + 0.0; };
    std::snprintf(text.data(), text.size(), "(%.6g, %.6g, %.6g)", shown(point.X()), shown(point.Y()),
                  shown(point.Z()));
    return text.data();
}
