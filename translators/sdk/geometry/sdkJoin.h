#pragma once

#include <TopoDS_Shape.hxx>

#include <vector>

// The shape itself when there is one, else a compound of them all in their order.
TopoDS_Shape sdk_join(std::vector<TopoDS_Shape> const & shapes);
