#include "sdk/measure/sdkFaceColours.h"

#include "sdk/measure/sdkAttributeComparison.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace {

// Faces along one line, so that not each is held against each.
std::vector<std::pair<double, std::size_t>> places_of(sdkBody const & body)
{
    std::vector<std::pair<double, std::size_t>> places;
    for (std::size_t at = 0; at < body.measure.faces.size(); ++at) {
        places.emplace_back(sdk_skew_place(body.measure.faces[at].centroid), at);
    }
    std::sort(places.begin(), places.end());
    return places;
}

bool has_face_colours(sdkBody const & body)
{
    return !body.face_colours.empty() && body.face_colours.size() == body.measure.faces.size();
}

} // namespace

std::optional<sdkFaceColourDifference>
sdk_compare_face_colours(sdkBody const & source, sdkBody const & output, sdkFaceColourOptions const & options)
{
    if (!has_face_colours(source) || !has_face_colours(output)) {
        return std::nullopt;
    }
    auto const & tolerances = options.tolerances;
    double const size = std::max(source.size(), output.size());
    double const reach = tolerances.absolute + 10 * tolerances.relative * size;
    auto const places = places_of(output);
    sdkFaceColourDifference difference;
    for (std::size_t number = 0; number < source.measure.faces.size(); ++number) {
        auto const & colour = source.face_colours[number];
        if (colour.empty() && !options.bare) {
            continue;
        }
        auto const & face = source.measure.faces[number];
        double const x = sdk_skew_place(face.centroid);
        std::string const * other = nullptr;
        bool same = false;
        for (auto place =
                 std::lower_bound(places.begin(), places.end(), std::pair(x - reach, std::size_t{0}));
             place != places.end() && place->first <= x + reach && !same; ++place) {
            auto const & like = output.measure.faces[place->second];
            if (tolerances.same_amount(face.area, like.area) &&
                tolerances.same_place(face.centroid, like.centroid, size)) {
                other = &output.face_colours[place->second];
                same = sdk_same_colour(colour, *other, options.transparency);
            }
        }
        if (other && !same && ++difference.faces == 1) {
            difference.place = sdk_point_text(face.centroid);
            difference.source = colour;
            difference.output = *other;
        }
    }
    return difference.faces > 0 ? std::optional(difference) : std::nullopt;
}
