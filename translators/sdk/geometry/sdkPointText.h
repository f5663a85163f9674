#pragma once

#include <gp_Pnt.hxx>

#include <string>

// A point as users read it, in millimetres.
std::string sdk_point_text(gp_Pnt const & point);
