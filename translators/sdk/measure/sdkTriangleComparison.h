#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkDocument.h"
#include "sdk/sdkFinding.h"

#include <vector>

// One of two models as it is compared.
struct sdkMeasuredModel {
    sdkDocument const & document;
    sdkInventory const & inventory;
};

// Holds a model of triangles only against one of surfaces: area and volume as a whole, and how far the
// triangles lie from the surfaces and the surfaces from the triangles, in millimetres; what lies farther off
// than `deflection` is a difference. Either model may be the one of triangles. The surfaces are given
// triangles.
std::vector<sdkFinding> sdk_compare_triangles(sdkMeasuredModel const & a, sdkMeasuredModel const & b,
                                              double deflection);
