#pragma once

#include "sdk/geometry/sdkFacetMesh.h"

#include <span>

// Divides the triangles of a mesh into regions: neighbours that lie in one plane belong together, within what
// coordinates of single precision or four decimals make of a plane.
class sdkFacetRegions {
public:
    // The plane that fits a region best.
    struct Plane {
        gp_XYZ origin;
        gp_XYZ normal; // of length 1, to where the triangles look

        double distance(gp_XYZ const & point) const;
    };

    // Without `merge` every triangle is a region of its own. The mesh has to outlive it.
    sdkFacetRegions(sdkFacetMesh const & mesh, bool merge);

    int size() const { return static_cast<int>(m_ends.size()); }
    int region(int triangle) const { return m_regions[static_cast<std::size_t>(triangle)]; }
    std::span<int const> triangles(int region) const;
    Plane plane(int region) const;
    // The sum of the areas of its triangles.
    double area(int region) const;
    // How far a point of a region may lie from its plane, in millimetres.
    double tolerance() const { return m_tolerance; }

    // Makes each triangle of these regions a region of its own.
    void dissolve(std::vector<int> const & regions);

private:
    void grow_all();
    std::vector<int> grown_from(int seed, std::vector<int> & mark);

    sdkFacetMesh const & m_mesh;
    double m_tolerance;
    std::vector<int> m_regions; // per triangle
    std::vector<int> m_order;   // the triangles, region by region
    std::vector<int> m_ends;    // per region: where in the order it ends
};
