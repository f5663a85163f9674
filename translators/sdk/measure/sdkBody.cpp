#include "sdk/measure/sdkBody.h"

#include <array>
#include <cmath>

double sdkBody::size() const
{
    return measure.extent.IsVoid() ? 0 : std::sqrt(measure.extent.SquareExtent());
}

std::string sdkBody::title() const
{
    return part.empty() ? sdk_kind_term(kind) : part;
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

char const * sdk_kind_term(sdkBodyKind kind)
{
    static constexpr std::array terms{"term::solid", "term::shell", "term::face",
                                      "term::mesh",  "term::curve", "term::point"};
    return terms[static_cast<std::size_t>(kind)];
}
