#pragma once

#include "tqt/sdaIAQTKernel.h"

/// The kernel by sums over triangles. Volume and centroid of a closed mesh are those of the signed tetrahedra
/// between its triangles and one fixed point: C. Zhang, T. Chen, "Efficient Feature Extraction for 2D/3D
/// Objects in Mesh Representation", Proc. IEEE ICIP 2001. The area of a triangle is half the length of the
/// cross product of two edges, and the centroid of a surface the mean of the triangles' centroids weighted by
/// area.
class tqtKernel : public sdaIAQTKernel {
public:
    int measure(sdaTriangleMesh const & mesh, sdaMeshMeasures & measures) const override;
};
