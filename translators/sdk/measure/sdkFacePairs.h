#pragma once

#include "sdk/measure/sdkBodyPairs.h"

#include <cstddef>
#include <utility>
#include <vector>

// Which face of a body stands for which of its counterpart, by their numbers in the measures.
struct sdkFacePairs {
    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    // Without a counterpart: faces that were divided or joined on the way, or changed.
    std::vector<std::size_t> source;
    std::vector<std::size_t> output;
};

// By the places of their centroids, the nearest first, among those that have nearly the same area.
sdkFacePairs sdk_pair_faces(sdkBodyMeasure const & source, sdkBodyMeasure const & output, double reach);
