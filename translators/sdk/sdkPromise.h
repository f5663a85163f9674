#pragma once

#include "sdk/sdkCapabilities.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>

// What a writer says of its output, with the options that it has, so that the output can be read back and
// held against the document. A writer that makes no promise is judged by the geometry that is found in its
// output.
struct sdkPromise {
    bool made = false;
    sdkCapabilities holds;
    // Curves that bound no face are what they were, not polylines in place of them.
    bool exact_curves = true;
    // Names have been reduced to ASCII: each other character is an underscore.
    bool ascii_names = false;
    // Hidden bodies are in the output, hidden or not; else they are left out.
    bool hidden = true;
    // How far triangles may lie from surfaces, in millimetres; 0 where the format holds surfaces.
    double deflection = 0;
    // Options with which the reader of the same format has to read the output, such as its unit of length.
    std::map<std::string, std::string> read_back;
    // The writer has looked at the written file, without the reader, and found it whole.
    bool checked = false;
    // How many triangles the output holds; negative where the writer does not say.
    std::int64_t triangles = -1;
    // The output holds the dimensions, tolerances and other annotations of the document, but for those that
    // are lost, each by the index of its set and its index within (sdkAnnotations.h). The account names
    // these. Otherwise all are lost.
    bool annotations = false;
    std::set<std::pair<std::int64_t, std::int64_t>> lost_annotations;
};
