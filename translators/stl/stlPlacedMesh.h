#pragma once

#include "stl/stlMesh.h"

#include <TopoDS_Face.hxx>
#include <gp_Trsf.hxx>

// The triangles of a face as they come to lie in a file: at the place of the face, in the unit of the file,
// in the precision of the file.
class stlPlacedMesh {
public:
    // The face must have triangles. `single` rounds the corners to single precision.
    stlPlacedMesh(TopoDS_Face const & face, double millimetres_per_unit, bool single);

    // The largest coordinate of a corner, without its sign.
    double reach() const;
    // Coordinates that are nearer to zero become zero.
    void set_zero(double zero) { m_zero = zero; }

    int size() const { return m_mesh->NbTriangles(); }
    // The corners of a triangle, counted from 1. Seen from outside they go round against the clock.
    stlCorners corners(int number) const;

private:
    gp_XYZ node(int number) const;

    Handle(Poly_Triangulation) m_mesh;
    gp_Trsf m_place;
    double m_factor;
    double m_zero = 0;
    bool m_single;
    bool m_turned;
};
