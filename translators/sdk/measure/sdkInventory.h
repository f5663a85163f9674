#pragma once

#include "sdk/measure/sdkBody.h"
#include "sdk/sdkDocument.h"

#include <Message_ProgressRange.hxx>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

using sdkNameCounts = std::map<std::string, std::int64_t>;

// All that a document holds, each body at each of its places.
struct sdkInventory {
    std::vector<sdkBody> bodies;
    std::int64_t assemblies = 0;
    std::int64_t instances = 0; // places of parts and assemblies in assemblies
    // Of assemblies that have a name, and of places that have one that is not that of what is placed there:
    // how often each stands in the document.
    sdkNameCounts assembly_names;
    sdkNameCounts instance_names;
    sdkMeasureLevel level = sdkMeasureLevel::full;
    bool cancelled = false;

    std::vector<sdkBody const *> of(sdkBodyKind kind) const;
    std::int64_t count(sdkBodyKind kind) const;
    // Of all bodies of the kind.
    double volume() const; // of solids
    double area() const;
    double length() const;
    Bnd_Box extent() const;
};

struct sdkInventoryOptions {
    sdkMeasureLevel level = sdkMeasureLevel::full;
    bool surfaces = true;  // solids, shells, faces, meshes
    bool wireframe = true; // curves and points
    int threads = 1;       // that measure at the same time
};

// What is used at several places is measured once. The document is not changed.
sdkInventory sdk_take_inventory(sdkDocument const & document, sdkInventoryOptions const & options,
                                Message_ProgressRange const & range = {});
