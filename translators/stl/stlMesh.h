#pragma once

#include "sdk/geometry/sdkVertexMerger.h"

#include <Poly_Triangulation.hxx>
#include <gp_XYZ.hxx>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The three corners of a triangle in the order of the file.
using stlCorners = std::array<gp_XYZ, 3>;

// One solid while its triangles are read. Lengths are in millimetres.
class stlMesh {
public:
    stlMesh(std::string name, double tolerance, std::size_t expected);

    std::string const & name() const { return m_name; }
    std::size_t size() const { return m_triangles.size(); }
    // Triangles without area, which were left out.
    std::int64_t dropped() const { return m_dropped; }
    // Triangles whose order of corners contradicts the normal that stands with them.
    std::int64_t turned() const { return m_turned; }
    // Corners that took the place of another one nearby.
    std::int64_t moved() const { return m_merger.moved(); }

    // The normal may be zero or not finite, and has no effect on the triangle then.
    void add(stlCorners const & corners, gp_XYZ const & normal);

    Handle(Poly_Triangulation) make_triangulation() const;

private:
    std::string m_name;
    sdkVertexMerger m_merger;
    std::vector<std::array<int, 3>> m_triangles;
    std::int64_t m_dropped = 0;
    std::int64_t m_turned = 0;
};

// Normal to the triangle, as long as twice its area.
gp_XYZ stl_area_vector(stlCorners const & corners);
// The distance of its longest side from the corner opposite; 0 without area.
double stl_height(stlCorners const & corners);
// Its largest coordinate, whatever the sign.
double stl_reach(stlCorners const & corners);
