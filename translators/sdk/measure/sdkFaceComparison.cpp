#include "sdk/measure/sdkFaceComparison.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <set>
#include <unordered_map>

namespace {

// The faces of bodies that are left over, to be taken one after the other.
class Faces {
public:
    explicit Faces(sdkBodies const & bodies)
    {
        for (auto const * body : bodies) {
            for (auto const & face : body->measure.faces) {
                m_faces.push_back({sdk_skew_place(face.centroid), &face, body});
                ++m_left[body];
            }
        }
        std::sort(m_faces.begin(), m_faces.end(), [](auto const & a, auto const & b) { return a.x < b.x; });
        m_taken.resize(m_faces.size(), false);
    }

    // The body that has such a face; null when there is none any more.
    sdkBody const * take(sdkFaceMeasure const & wanted, double size, sdkTolerances const & tolerances)
    {
        double const reach = tolerances.absolute + 10 * tolerances.relative * size;
        double const x = sdk_skew_place(wanted.centroid);
        auto at = std::lower_bound(m_faces.begin(), m_faces.end(), x - reach,
                                   [](auto const & face, double least) { return face.x < least; });
        for (; at != m_faces.end() && at->x <= x + reach; ++at) {
            auto const index = static_cast<std::size_t>(at - m_faces.begin());
            if (!m_taken[index] && tolerances.same_amount(at->face->area, wanted.area) &&
                tolerances.same_place(at->face->centroid, wanted.centroid, size)) {
                m_taken[index] = true;
                --m_left[at->body];
                return at->body;
            }
        }
        return nullptr;
    }

    // How many faces of a body nobody has taken.
    std::size_t left(sdkBody const * body) const
    {
        auto const found = m_left.find(body);
        return found == m_left.end() ? 0 : found->second;
    }

private:
    struct Face {
        double x;
        sdkFaceMeasure const * face;
        sdkBody const * body;
    };

    std::vector<Face> m_faces;
    std::vector<bool> m_taken;
    std::unordered_map<sdkBody const *, std::size_t> m_left;
};

// A shell whose faces are no longer joined, each for itself or in several shells.
void tell_open_shell(sdkBody const & body, std::int64_t free_edges, std::vector<sdkFinding> & findings)
{
    findings.push_back(
        {sdkWeight::difference, "shell-open", body.part, body.place(),
         static_cast<double>(body.measure.free_edges), static_cast<double>(free_edges),
         sdkText(
             "measure::The shell %s at %s fell apart: its %d faces are in the output, with %d edges of one "
             "face only, where the source has %d",
             body.title(), body.place(), body.measure.faces.size(), free_edges, body.measure.free_edges)});
}

// How many edges of one face only the bodies have.
std::int64_t free_edges_of(std::set<sdkBody const *> const & bodies)
{
    return std::accumulate(
        bodies.begin(), bodies.end(), std::int64_t{0},
        [](std::int64_t sum, auto const * body) { return sum + body->measure.free_edges; });
}

// A loose face that became a shell of its own, or the other way round, looking to the other side.
bool is_turned_alone(sdkBody const & body, std::set<sdkBody const *> const & owners)
{
    auto const & measure = (*owners.begin())->measure;
    return owners.size() == 1 && measure.faces.size() == body.measure.faces.size() &&
           body.measure.turned(measure);
}

void tell_regrouped(sdkBody const & body, std::vector<sdkFinding> & findings)
{
    if (body.kind == sdkBodyKind::solid) {
        findings.push_back(
            {sdkWeight::loss, "solid-open", body.part, body.place(), 1, 0,
             sdkText("measure::%s at %s is no solid in the output any more; its %d faces are there",
                     body.title(), body.place(), body.measure.faces.size())});
    } else {
        findings.push_back({sdkWeight::note, "regrouped", body.part, body.place(), std::nullopt, std::nullopt,
                            sdkText("measure::The %d faces of %s at %s belong to other bodies in the output",
                                    body.measure.faces.size(), body.title(), body.place())});
    }
}

} // namespace

void sdk_compare_by_faces(sdkBodies const & missing, sdkBodies const & extra,
                          sdkComparisonOptions const & options, std::vector<sdkFinding> & findings)
{
    Faces faces(extra);
    sdkBodies gone;
    for (auto const * body : missing) {
        std::size_t found = 0;
        std::set<sdkBody const *> owners;
        for (auto const & face : body->measure.faces) {
            if (auto const * owner = faces.take(face, body->size(), options.tolerances)) {
                owners.insert(owner);
                ++found;
            }
        }
        auto const free_edges = free_edges_of(owners);
        if (found < body->measure.faces.size() || found == 0) {
            gone.push_back(body);
        } else if (options.promise.holds.solids && body->kind == sdkBodyKind::shell && owners.size() > 1 &&
                   free_edges > body->measure.free_edges) {
            tell_open_shell(*body, free_edges, findings);
        } else if (options.promise.holds.solids || body->kind != sdkBodyKind::solid) {
            tell_regrouped(*body, findings);
            if (options.promise.holds.solids && is_turned_alone(*body, owners)) {
                sdk_tell_turned(*body, findings);
            }
        }
    }
    sdkBodies left;
    for (auto const * body : extra) {
        if (faces.left(body) > 0 || body->measure.faces.empty()) {
            left.push_back(body);
        }
    }
    sdk_tell_missing(gone, findings);
    sdk_tell_extra(left, findings);
}

void sdk_tell_missing(sdkBodies const & bodies, std::vector<sdkFinding> & findings)
{
    for (auto const * body : bodies) {
        std::string const kind = sdk_kind_name(body->kind);
        findings.push_back({sdkWeight::loss, "missing-" + kind, body->part, body->place(), 1, 0,
                            sdkText("measure::%s at %s (%s) is not in the output", body->title(),
                                    body->place(), sdk_kind_term(body->kind))});
    }
}

void sdk_tell_extra(sdkBodies const & bodies, std::vector<sdkFinding> & findings)
{
    for (auto const * body : bodies) {
        std::string const kind = sdk_kind_name(body->kind);
        findings.push_back({sdkWeight::difference, "extra-" + kind, body->part, body->place(), 0, 1,
                            sdkText("measure::%s at %s (%s) is in the output and not in the source",
                                    body->title(), body->place(), sdk_kind_term(body->kind))});
    }
}

void sdk_tell_turned(sdkBody const & body, std::vector<sdkFinding> & findings)
{
    findings.push_back({sdkWeight::difference, "turned-body", body.part, body.place(), std::nullopt,
                        std::nullopt,
                        sdkText("measure::%s at %s (%s) looks to the other side in the output", body.title(),
                                body.place(), sdk_kind_term(body.kind))});
}

void sdk_tell_coincident(sdkBody const & body, std::vector<sdkFinding> & findings)
{
    findings.push_back({sdkWeight::note, "coincident", body.part, body.place(), std::nullopt, std::nullopt,
                        sdkText("measure::%s at %s (%s) lies in the source on another one that is the same; "
                                "the output has one of them",
                                body.title(), body.place(), sdk_kind_term(body.kind))});
}
