#include "sdk/sdkPlaced.h"

#include "sdk/sdkScaler.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>

namespace {

// A file may give a mirror as a matrix: its transformation has the factor 1 then, and a matrix that turns
// right into left.
bool has_mirroring_matrix(gp_Trsf const & transformation)
{
    return transformation.HVectorialPart().Determinant() < 0;
}

} // namespace

double sdk_scale_of(TopLoc_Location const & place)
{
    if (place.IsIdentity()) {
        return 1;
    }
    auto const transformation = place.Transformation();
    double const factor =
        has_mirroring_matrix(transformation) ? -transformation.ScaleFactor() : transformation.ScaleFactor();
    return std::abs(factor - 1) <= TopLoc_Location::ScalePrec() ? 1 : factor;
}

TopLoc_Location sdk_rigid_part(TopLoc_Location const & place)
{
    if (sdk_scale_of(place) == 1) {
        return place;
    }
    // A mirror is a negative factor here: what is left without it is a rotation. Changing the factor of a
    // transformation in place would leave it believing that it is a mirror.
    auto const whole = place.Transformation();
    auto const turn = whole.HVectorialPart() * (has_mirroring_matrix(whole) ? -1.0 : 1.0);
    auto const shift = whole.TranslationPart();
    gp_Trsf rigid;
    rigid.SetValues(turn(1, 1), turn(1, 2), turn(1, 3), shift.X(), turn(2, 1), turn(2, 2), turn(2, 3),
                    shift.Y(), turn(3, 1), turn(3, 2), turn(3, 3), shift.Z());
    return TopLoc_Location(rigid);
}

TopoDS_Shape sdk_placed(TopoDS_Shape const & shape, TopLoc_Location const & place)
{
    return shape.IsNull() ? shape : sdkScaler()(shape.Moved(place, Standard_False), 1);
}

TopoDS_Shape sdk_found_in(TopoDS_Shape const & whole, TopoDS_Shape const & wanted)
{
    if (whole.IsNull() || wanted.IsNull()) {
        return {};
    }
    TopTools_IndexedMapOfShape candidates;
    TopExp::MapShapes(whole, wanted.ShapeType(), candidates);
    if (candidates.Contains(wanted)) {
        return wanted;
    }
    auto const place = wanted.Location().Transformation();
    for (int at = 1; at <= candidates.Extent(); ++at) {
        auto const & one = candidates(at);
        if (!one.IsPartner(wanted)) {
            continue;
        }
        auto const other = one.Location().Transformation();
        double apart = 0;
        double size = 1;
        for (int row = 1; row <= 3; ++row) {
            for (int column = 1; column <= 4; ++column) {
                apart = std::max(apart, std::abs(place.Value(row, column) - other.Value(row, column)));
                size = std::max(size, std::abs(place.Value(row, column)));
            }
        }
        if (apart <= 1e-12 * size) {
            return one.Oriented(wanted.Orientation());
        }
    }
    return {};
}
