#pragma once

#include "sdk/measure/sdkBodyPairs.h"
#include "sdk/sdkFinding.h"

#include <TopoDS_Shape.hxx>
#include <TopoDS_TShape.hxx>
#include <gp_Trsf.hxx>

#include <map>
#include <utility>
#include <vector>

// Looks for what integrals over whole bodies hide: a face that is a little larger or lies a little elsewhere,
// a free-form surface with a bump, a body that was turned so that its moments remain. For bodies with the
// same measure, face by face: area and centroid, surfaces described anew, and the box.
class sdkShapeComparison {
public:
    explicit sdkShapeComparison(sdkTolerances const & tolerances) : m_tolerances(tolerances) {}

    // Adds a finding when they differ. The surfaces of two definitions that lie to each other in
    // the same way at several places are looked at once.
    void compare(sdkBody const & source, sdkBody const & output, std::vector<sdkFinding> & findings);

private:
    // True when the same two lay to each other in the same way before.
    bool seen(TopoDS_Shape const & source, TopoDS_Shape const & output);

    sdkTolerances m_tolerances;
    std::map<std::pair<TopoDS_TShape const *, TopoDS_TShape const *>, gp_Trsf> m_seen;
};
