#pragma once

#include "sdk/measure/sdkFaceIntegrals.h"
#include "sdk/measure/sdkMeshMeasure.h"

#include <Bnd_Box.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Mat.hxx>
#include <gp_Pnt.hxx>
#include <gp_Trsf.hxx>

#include <cstdint>
#include <vector>

// How large one face is, in mm2, and where.
struct sdkFaceMeasure {
    double area = 0;
    gp_Pnt centroid;
};

// How large a solid, shell, face, curve or point is and what it consists of, in millimetres, mm2 and mm3.
// Faces without a surface are measured by their triangles.
struct sdkBodyMeasure {
    std::int64_t shells = 0;
    std::int64_t edges = 0;
    std::int64_t triangles = 0;  // of faces without a surface
    std::int64_t free_edges = 0; // edges of one face only, seams and degenerated ones apart
    // Edges between two faces of which both run through them in the same direction: one of the faces is
    // turned over.
    std::int64_t turned_edges = 0;
    std::int64_t unmatched_edges = 0; // of a mesh, see sdk_unmatched_edges()
    double volume = 0;                // of solids and of closed meshes; negative when inside out
    double area = 0;
    double length = 0; // of curves
    // Of the volume of a solid, of the area of shells, faces and meshes, of the length of curves.
    gp_Pnt centroid;
    // Second moments of the area, of a curve of its length, about the centroid of the same; they tell how the
    // body lies.
    gp_Mat moments{0, 0, 0, 0, 0, 0, 0, 0, 0};
    // To which side its faces look: their areas as vectors along their normals, in mm2, and what would flow
    // out through them of a flow away from the centroid of the area, at a speed that is the distance, in mm3.
    gp_XYZ vector_area;
    double outflow = 0;
    Bnd_Box extent;            // of the edges and triangles, without surfaces that bulge between them
    double edge_deviation = 0; // see sdkEdgeDeviation.h
    std::vector<sdkFaceMeasure> faces;

    // The measure of the same body with its faces turned over.
    sdkBodyMeasure reversed() const;

    // True when the faces of the other, which is of the same shape, look to the other side.
    bool turned(sdkBodyMeasure const & other) const;

    // The measure of the same body moved, turned, mirrored or scaled.
    sdkBodyMeasure placed(gp_Trsf const & place) const;
};

// Counts only, or all.
enum class sdkMeasureLevel { counts, full };

// The measuring of one body in pieces, which several threads may share.
class sdkBodyMeasuring {
public:
    sdkBodyMeasuring(TopoDS_Shape const & body, sdkMeasureLevel level);

    // How many faces have to be measured before finish().
    int faces() const { return static_cast<int>(m_faces.size()); }
    // Each once. Any thread, also while other faces of this body or of bodies that share shapes are measured.
    void measure_face(int face);
    sdkBodyMeasure finish();

private:
    struct Face {
        TopoDS_Face face;
        bool mesh = false;
        sdkMeshMeasure triangles;
        sdkFaceIntegrals integrals;
        double edge_deviation = 0;
    };

    TopoDS_Shape m_body;
    sdkMeasureLevel m_level;
    // Integrals are taken about a point of the body, so that bodies far from the origin lose no digits.
    gp_Pnt m_reference;
    std::vector<Face> m_faces;
};

// All at once. Any thread; several may measure bodies that share shapes.
sdkBodyMeasure sdk_measure_body(TopoDS_Shape const & body, sdkMeasureLevel level);
