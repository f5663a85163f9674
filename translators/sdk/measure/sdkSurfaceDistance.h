#pragma once

#include <BRepAdaptor_Surface.hxx>
#include <ShapeAnalysis_Surface.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Pnt.hxx>
#include <gp_Pnt2d.hxx>

// Distances of points from the untrimmed surface of a face, in millimetres. Use by one thread at a time.
class sdkSurfaceDistance {
public:
    // The face must have a surface.
    explicit sdkSurfaceDistance(TopoDS_Face const & face);

    // True when of() needs no place on the surface to begin at.
    bool exact() const { return m_exact; }
    double of(gp_Pnt const & point) const;
    // The same with the parameters of a point of the surface that is near.
    double of(gp_Pnt const & point, gp_Pnt2d const & near);

private:
    BRepAdaptor_Surface m_surface;
    bool m_exact = false;
    Handle(ShapeAnalysis_Surface) m_search; // made when first needed
};
