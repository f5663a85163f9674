#pragma once

#include <TopoDS_Shape.hxx>

#include <string>
#include <vector>

// What Open CASCADE by itself reads from a file; nothing of this program stands between. A null shape when it
// reads nothing.
TopoDS_Shape faults_read(std::string const & file, std::string const & format);

// In millimetres and mm3.
std::vector<double> faults_solid_volumes(TopoDS_Shape const & shape); // negative when inside out
double faults_meshed_volume(TopoDS_Shape const & shape);              // of the triangles of all solids
double faults_triangle_volume(std::string const & stl);
int faults_shells(TopoDS_Shape const & shape);
int faults_faces(TopoDS_Shape const & shape);
int faults_loose_edges(TopoDS_Shape const & shape);
int faults_loose_points(TopoDS_Shape const & shape);
// How far the edges of faces lie off their surfaces, at most.
double faults_edges_off_surfaces(TopoDS_Shape const & shape);
