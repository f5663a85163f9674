#include "sdk/measure/sdkFacePairs.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Another face, not the same face measured otherwise.
constexpr double unlike = 1.0e-2;

std::vector<std::pair<double, std::size_t>> places_of(std::vector<sdkFaceMeasure> const & faces)
{
    std::vector<std::pair<double, std::size_t>> places;
    for (std::size_t at = 0; at < faces.size(); ++at) {
        places.emplace_back(sdk_skew_place(faces[at].centroid), at);
    }
    std::sort(places.begin(), places.end());
    return places;
}

} // namespace

sdkFacePairs sdk_pair_faces(sdkBodyMeasure const & source, sdkBodyMeasure const & output, double reach)
{
    sdkFacePairs result;
    auto const places = places_of(output.faces);
    std::vector<bool> taken(output.faces.size(), false);
    for (std::size_t number = 0; number < source.faces.size(); ++number) {
        auto const & face = source.faces[number];
        double const x = sdk_skew_place(face.centroid);
        double best = std::numeric_limits<double>::infinity();
        std::size_t found = 0;
        for (auto place =
                 std::lower_bound(places.begin(), places.end(), std::pair(x - reach, std::size_t{0}));
             place != places.end() && place->first <= x + reach; ++place) {
            auto const & other = output.faces[place->second];
            double const distance = face.centroid.Distance(other.centroid);
            double const change = std::abs(face.area - other.area) / std::max(face.area, other.area);
            if (!taken[place->second] && distance <= reach && change <= unlike &&
                distance + reach * change / unlike < best) {
                best = distance + reach * change / unlike;
                found = place->second;
            }
        }
        if (std::isinf(best)) {
            result.source.push_back(number);
        } else {
            taken[found] = true;
            result.pairs.emplace_back(number, found);
        }
    }
    for (std::size_t number = 0; number < taken.size(); ++number) {
        if (!taken[number]) {
            result.output.push_back(number);
        }
    }
    return result;
}
