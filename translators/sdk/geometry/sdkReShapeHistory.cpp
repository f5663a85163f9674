#include "sdk/geometry/sdkReShapeHistory.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

void sdk_remember(TopoDS_Shape const & shape, Handle(ShapeBuild_ReShape) const & context,
                  sdkShapeHistory & history)
{
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, all);
    for (int at = 1; at <= all.Extent(); ++at) {
        auto const & one = all(at);
        auto const now = context->Apply(one);
        if (!now.IsSame(one)) {
            history.replace(one, now);
        }
    }
}
