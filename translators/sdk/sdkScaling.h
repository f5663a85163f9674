#pragma once

#include <BRepTools_TrsfModification.hxx>

// Scales about the origin what the toolkit's own transformation leaves out, too: triangles, and faces that
// have nothing else. A negative factor mirrors.
class sdkScaling : public BRepTools_TrsfModification {
    DEFINE_STANDARD_RTTI_INLINE(sdkScaling, BRepTools_TrsfModification)

public:
    explicit sdkScaling(double factor);

    Standard_Boolean NewSurface(TopoDS_Face const & face, Handle(Geom_Surface) & surface,
                                TopLoc_Location & location, Standard_Real & tolerance,
                                Standard_Boolean & wires_reversed, Standard_Boolean & face_reversed) override;
    Standard_Boolean NewTriangulation(TopoDS_Face const & face, Handle(Poly_Triangulation) & scaled) override;
    Standard_Boolean NewPolygon(TopoDS_Edge const & edge, Handle(Poly_Polygon3D) & scaled) override;
    Standard_Boolean NewPolygonOnTriangulation(TopoDS_Edge const & edge, TopoDS_Face const & face,
                                               Handle(Poly_PolygonOnTriangulation) & scaled) override;

private:
    double factor() { return Trsf().ScaleFactor(); }
};
