#pragma once

#include <TopoDS_Shape.hxx>

// Decides whether the STEP machinery of this process writes, beside each edge, its curves in the parameters
// of the two surfaces that meet in it. Open CASCADE writes them for planes as well, where every reader can
// tell them from the edge; of a mesh they are more than half of the file. Puts the old setting back when it
// goes.
class sdkCurvesOnSurfaces {
public:
    sdkCurvesOnSurfaces();
    ~sdkCurvesOnSurfaces();
    sdkCurvesOnSurfaces(sdkCurvesOnSurfaces const &) = delete;
    sdkCurvesOnSurfaces & operator=(sdkCurvesOnSurfaces const &) = delete;

    // Leaves them out if the shape has nothing but plane faces with straight edges.
    void choose_for(TopoDS_Shape const & shape);

private:
    bool m_present;
    int m_old;
};
