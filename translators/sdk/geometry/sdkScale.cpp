#include "sdk/geometry/sdkScale.h"

#include "sdk/sdkScaler.h"

TopoDS_Shape sdk_scaled(TopoDS_Shape const & shape, double factor)
{
    return shape.IsNull() ? shape : sdkScaler()(shape, factor);
}
