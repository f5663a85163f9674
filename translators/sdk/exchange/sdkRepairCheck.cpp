#include "sdk/exchange/sdkRepairCheck.h"

#include "sdk/geometry/sdkMassProperties.h"
#include "sdk/measure/sdkEdgeDeviation.h"

#include <BRepCheck_Analyzer.hxx>

#include <algorithm>
#include <cmath>

namespace {

constexpr double exact = 1e-5; // in millimetres
// Integration over one surface in two descriptions differs by more than the surfaces do.
constexpr double same_amount = 1e-4;

bool same(double before, double after)
{
    return std::abs(after - before) <= same_amount * std::abs(before) + 1e-9;
}

} // namespace

bool sdk_no_worse(TopoDS_Shape const & before, TopoDS_Shape const & after)
{
    auto const was = sdk_mass_properties(before);
    auto const is = sdk_mass_properties(after);
    return sdk_edge_deviation(after) <= std::max(sdk_edge_deviation(before), exact) &&
           same(was.volume, is.volume) && same(was.area, is.area) &&
           (BRepCheck_Analyzer(after).IsValid() || !BRepCheck_Analyzer(before).IsValid());
}
