#pragma once

#include <TopoDS_Face.hxx>
#include <gp_Mat.hxx>
#include <gp_Pnt.hxx>
#include <gp_XYZ.hxx>

// Integrals over the surface of a face within its boundary, in powers of millimetres. All moments are about
// the reference point that was asked for.
struct sdkFaceIntegrals {
    double area = 0;
    gp_XYZ area_moment;                              // of r dA
    gp_Mat second_moment{0, 0, 0, 0, 0, 0, 0, 0, 0}; // of r r' dA
    gp_XYZ vector_area;                              // of n dA
    // What the face adds to a body that it bounds: the cone from the reference point to the face.
    double volume = 0; // of r.n dA / 3; negative where the face looks to the reference point
    gp_XYZ volume_moment;

    sdkFaceIntegrals & operator+=(sdkFaceIntegrals const & other);
};

// One walk along the boundary, by Green's theorem: the integral of f(u, v) over the face is that of
// F(u, v) dv along its boundary, where F is the integral of f along u. Gauss quadrature span by span, so that
// polynomial patches are exact but for the root in the area. The face must have a surface. Any thread.
sdkFaceIntegrals sdk_face_integrals(TopoDS_Face const & face, gp_Pnt const & reference);
