#pragma once

#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/sdkText.h"

#include <string>
#include <vector>

// A part with faces that have triangles and no surface. Formats of boundary representation cannot hold them.
struct sdkFacetPart {
    std::string name;
    std::int64_t faces = 0;
    std::int64_t triangles = 0;
};

std::vector<sdkFacetPart> sdk_facet_parts(sdkDocument const & document);

// What to tell a user whose document has such parts when the format cannot hold them and nothing was asked to
// be made of them; `option` is the option that would. Empty when there are none.
sdkText sdk_facets_refused(std::vector<sdkFacetPart> const & parts, std::string const & format,
                           std::string const & option);

struct sdkFacetOptions {
    double tolerance = 1.0e-4; // in millimetres; points this close are joined; edges of small open meshes too
    bool solids = true;        // closed shells become solids that look outward, those inside them cavities
    bool merge_coplanar = false;       // neighbouring facets of one plane become one face
    std::int64_t max_facets = 100'000; // in the whole document
    std::string max_option = {};       // of the format, which sets max_facets; the refusal names it
};

struct sdkFacetCounts {
    std::int64_t parts = 0;
    std::int64_t triangles = 0; // that were there
    std::int64_t dropped = 0;   // of these, triangles without area
    std::int64_t turned = 0;    // of the others, those that looked to another side than their neighbours
    std::int64_t faces = 0;     // that came of the others
    std::int64_t shells = 0;    // that stayed open or were to stay shells
    std::int64_t solids = 0;
    bool cancelled = false;
    std::int64_t doubled = 0; // that were there more than once, and are taken once
    sdkText refusal; // not empty when there are more triangles than allowed; then nothing was changed
};

// Makes planar faces of the triangles of such parts, joined to shells and solids.
sdkFacetCounts sdk_make_facets(sdkDocument & document, sdkFacetOptions const & options,
                               Message_ProgressRange const & range = {});
