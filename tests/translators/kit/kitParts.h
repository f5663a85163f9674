#pragma once

#include "sdk/sdkDocument.h"

#include <Poly_Triangle.hxx>
#include <Quantity_Color.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <vector>

// The small parts that the tests of all formats write, read back and measure. Lengths in millimetres.

// A cube with one corner at the origin.
TopoDS_Shape kit_cube(double side);
// A cube of 20 with a cubic cavity of 10 in its middle.
TopoDS_Shape kit_hollow_cube();
// An open wire of a straight edge of 10 and a quarter of a circle of radius 5, in the plane z = 0.
TopoDS_Shape kit_wire();
// A cube of 10 as one face without a surface, with twelve triangles.
TopoDS_Shape kit_facet_cube();
// Triangles, which count the points from 1, as one face without a surface.
TopoDS_Face kit_mesh(std::vector<gp_Pnt> const & points, std::vector<Poly_Triangle> const & triangles);

// Copies of the faces of a shape, none of which shares an edge with another.
std::vector<TopoDS_Shape> kit_loose_faces(TopoDS_Shape const & shape);
// A square face whose boundary runs round the wrong way, so that it covers all of its plane but the square.
TopoDS_Face kit_inverted_face();
// Of all edges together.
double kit_length(TopoDS_Shape const & shape);
// The cube of 10 of twelve triangles, of which the first so many look inward.
TopoDS_Shape kit_facet_cube_turned(int count);
TopoDS_Shape kit_compound(std::vector<TopoDS_Shape> const & shapes);

inline constexpr char const * kit_red_name = "Gehäuse";
inline constexpr char const * kit_blue_name = "Blue box";
inline constexpr char const * kit_assembly_name = "Assembly";
inline constexpr char const * kit_layer_name = "Layer 7";

// An assembly of a red cube of 10, which is in a layer, and of two instances, at x = 20 and x = 40, of a blue
// box of 10 x 10 x 5. Volume 2000, solids 3, parts 2.
void kit_add_assembly(sdkDocument & document);

Quantity_Color kit_red();
Quantity_Color kit_blue();

// The colour of a part, of its only coloured sub-shapes, or of its place; black when there is none.
Quantity_Color kit_colour(sdkDocument const & document, TDF_Label const & part);
