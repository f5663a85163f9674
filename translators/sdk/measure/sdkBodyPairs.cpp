#include "sdk/measure/sdkBodyPairs.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool share_name(sdkBody const & a, sdkBody const & b)
{
    return std::any_of(a.names.begin(), a.names.end(),
                       [&](auto const & name) { return b.names.count(name) > 0; });
}

double larger_size(sdkBody const & a, sdkBody const & b)
{
    return std::max({a.size(), b.size(), 1.0e-3});
}

// What a body of its kind is measured by.
double amount(sdkBody const & body)
{
    switch (body.kind) {
    case sdkBodyKind::solid:
        return body.measure.volume;
    case sdkBodyKind::curve:
        return body.measure.length;
    case sdkBodyKind::point:
        return 0;
    default:
        return body.measure.area;
    }
}

class Pairing {
public:
    Pairing(sdkBodies const & source, sdkBodies const & output, sdkTolerances const & tolerances)
        : m_source(source), m_output(output), m_tolerances(tolerances), m_taken(output.size(), false)
    {
    }

    sdkBodyPairs pairs()
    {
        find_same();
        find_nearest();
        for (std::size_t at = 0; at < m_output.size(); ++at) {
            if (!m_taken[at]) {
                m_pairs.extra.push_back(m_output[at]);
            }
        }
        return std::move(m_pairs);
    }

private:
    // Along one line, so that not everything is held against everything.
    void find_same()
    {
        std::vector<std::pair<double, std::size_t>> places;
        for (std::size_t at = 0; at < m_output.size(); ++at) {
            places.emplace_back(sdk_skew_place(m_output[at]->measure.centroid), at);
        }
        std::sort(places.begin(), places.end());
        for (auto const * body : m_source) {
            double const reach = m_tolerances.absolute + 10 * m_tolerances.relative * body->size();
            double const x = sdk_skew_place(body->measure.centroid);
            auto const first =
                std::lower_bound(places.begin(), places.end(), std::pair(x - reach, std::size_t{0}));
            int best_rank = -1;
            std::size_t best = 0;
            sdkBody const * taken = nullptr;
            for (auto place = first; place != places.end() && place->first <= x + reach; ++place) {
                auto const & other = *m_output[place->second];
                if (m_taken[place->second] && taken) {
                    continue;
                }
                if (!sdk_same_body(*body, other, m_tolerances)) {
                    continue;
                }
                if (m_taken[place->second]) {
                    taken = &other;
                    continue;
                }
                int const rank = (body->measure.turned(other.measure) ? 0 : 4) +
                                 (share_name(*body, other) ? 2 : 0) +
                                 (body->colours == other.colours ? 1 : 0);
                if (rank > best_rank) {
                    best_rank = rank;
                    best = place->second;
                }
                if (rank == 7) {
                    break;
                }
            }
            if (best_rank >= 0) {
                m_taken[best] = true;
                m_pairs.same.emplace_back(body, m_output[best]);
            } else if (taken) {
                m_pairs.coincident.emplace_back(body, taken);
            } else {
                m_pairs.missing.push_back(body);
            }
        }
    }

    void find_nearest()
    {
        struct Candidate {
            double distance;
            std::size_t source;
            std::size_t output;
        };
        // More than these are not one difference but another model.
        constexpr std::size_t most = 2'000;
        auto & missing = m_pairs.missing;
        std::vector<std::size_t> free;
        for (std::size_t at = 0; at < m_output.size(); ++at) {
            if (!m_taken[at]) {
                free.push_back(at);
            }
        }
        if (missing.size() > most || free.size() > most) {
            return;
        }
        std::vector<Candidate> candidates;
        for (std::size_t from = 0; from < missing.size(); ++from) {
            for (auto const to : free) {
                auto const & a = *missing[from];
                auto const & b = *m_output[to];
                bool const named = share_name(a, b);
                double const far = a.measure.centroid.Distance(b.measure.centroid) / larger_size(a, b);
                double const least = std::max(std::abs(amount(a)), std::abs(amount(b)));
                double const unlike = least > 0 ? std::abs(amount(a) - amount(b)) / least : 0;
                double const distance = far + (std::isnan(unlike) ? 1 : unlike) + (named ? 0 : 0.3);
                if (distance < (named ? 10 : 1)) {
                    candidates.push_back({distance, from, to});
                }
            }
        }
        std::sort(candidates.begin(), candidates.end(),
                  [](auto const & a, auto const & b) { return a.distance < b.distance; });
        std::vector<bool> found(missing.size(), false);
        for (auto const & [distance, from, to] : candidates) {
            if (!found[from] && !m_taken[to]) {
                found[from] = true;
                m_taken[to] = true;
                m_pairs.other.emplace_back(missing[from], m_output[to]);
            }
        }
        sdkBodies left;
        for (std::size_t at = 0; at < missing.size(); ++at) {
            if (!found[at]) {
                left.push_back(missing[at]);
            }
        }
        missing = left;
    }

    sdkBodies const & m_source;
    sdkBodies const & m_output;
    sdkTolerances m_tolerances;
    std::vector<bool> m_taken;
    sdkBodyPairs m_pairs;
};

} // namespace

bool sdkTolerances::same_amount(double a, double b) const
{
    return std::abs(a - b) <= relative * std::max(std::abs(a), std::abs(b));
}

bool sdkTolerances::same_place(gp_Pnt const & a, gp_Pnt const & b, double size) const
{
    return a.Distance(b) <= absolute + 10 * relative * size;
}

bool sdkTolerances::same_moments(gp_Mat const & a, gp_Mat const & b, double amount, double size) const
{
    // Ten times: second moments add up the errors of two coordinates.
    double const allowed = 10 * std::max(relative, 1.0e-6) * amount * size * size;
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            // What is no number agrees with nothing.
            if (!(std::abs(a.Value(row, column) - b.Value(row, column)) <= allowed)) {
                return false;
            }
        }
    }
    return true;
}

double sdk_skew_place(gp_Pnt const & point)
{
    double const place = 0.5349 * point.X() + 0.5872 * point.Y() + 0.6074 * point.Z();
    // An order has to have a place for everything.
    return std::isnan(place) ? std::numeric_limits<double>::infinity() : place;
}

bool sdk_same_body(sdkBody const & a, sdkBody const & b, sdkTolerances const & tolerances)
{
    auto const & first = a.measure;
    auto const & second = b.measure;
    double const size = larger_size(a, b);
    if (!tolerances.same_place(first.centroid, second.centroid, size)) {
        return false;
    }
    if (a.kind == sdkBodyKind::point) {
        return true;
    }
    if (a.kind == sdkBodyKind::curve) {
        return tolerances.same_amount(first.length, second.length) &&
               tolerances.same_moments(first.moments, second.moments, first.length, size);
    }
    if (!tolerances.same_amount(first.area, second.area)) {
        return false;
    }
    if (a.kind == sdkBodyKind::solid && !tolerances.same_amount(first.volume, second.volume)) {
        return false;
    }
    return tolerances.same_moments(first.moments, second.moments, first.area, size);
}

sdkBodyPairs sdk_pair_bodies(sdkBodies const & source, sdkBodies const & output,
                             sdkTolerances const & tolerances)
{
    return Pairing(source, output, tolerances).pairs();
}
