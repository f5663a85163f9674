#pragma once

#include "sdk/sdkDocument.h"

#include <Bnd_Box.hxx>
#include <NCollection_DataMap.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>
#include <gp_XYZ.hxx>

#include <optional>

class gp_Trsf;

// Volume, area and centroid of a shape as other systems state them, in millimetres. The volume is that of the
// solids alone: what open faces beside them would add depends on where they lie. A shape that is used at
// several places counts once for each. A solid that is inside out has a negative volume.
struct sdkMassProperties {
    double volume = 0;
    double area = 0;       // of all faces
    double solid_area = 0; // of those that bound solids
    std::int64_t solids = 0;
    std::int64_t faces = 0;
    Bnd_Box box; // may be a little larger than the shape
    gp_XYZ volume_moment{0, 0, 0};
    gp_XYZ area_moment{0, 0, 0};

    // False for what was integrated over broken or unbounded geometry.
    bool finite() const;
    // That of the solids, where there are none that of the faces; nothing where there is neither.
    std::optional<gp_Pnt> centroid() const;
    // Adds those of another shape at that place, which may be scaled or mirrored.
    void add(sdkMassProperties const & other, gp_Trsf const & placement);
};

// Faces are integrated in a number of steps that their surfaces fix, exact to about 1e-6 but for rational
// surfaces with very uneven weights. The integration of Open CASCADE that takes an accuracy is not used: on
// those it is further off, by a multiple of the error that it gives.
sdkMassProperties sdk_mass_properties(TopoDS_Shape const & shape);

// Those of the parts and assemblies of a document. An assembly has those of what it places; each part is
// measured once however often it is placed. What changes in the document afterwards is not seen.
class sdkMassPropertiesOfLabels {
public:
    // Of a part, an assembly or an instance of one of them, in the frame in which it stands.
    sdkMassProperties of(TDF_Label const & label);

private:
    NCollection_DataMap<TDF_Label, sdkMassProperties, TDF_LabelMapHasher> m_known;
};
