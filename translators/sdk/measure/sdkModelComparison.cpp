#include "sdk/measure/sdkModelComparison.h"

#include "sdk/measure/sdkAttributeComparison.h"
#include "sdk/measure/sdkBodyDifferences.h"
#include "sdk/measure/sdkFaceComparison.h"
#include "sdk/measure/sdkStructureNames.h"
#include "sdk/measure/sdkTotalsComparison.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

bool only_triangles(sdkInventory const & inventory)
{
    return inventory.count(sdkBodyKind::mesh) > 0 && inventory.count(sdkBodyKind::solid) == 0 &&
           inventory.count(sdkBodyKind::shell) == 0 && inventory.count(sdkBodyKind::face) == 0;
}

bool no_triangles(sdkInventory const & inventory)
{
    return inventory.count(sdkBodyKind::mesh) == 0 && inventory.count(sdkBodyKind::solid) +
                                                              inventory.count(sdkBodyKind::shell) +
                                                              inventory.count(sdkBodyKind::face) >
                                                          0;
}

class Comparison {
public:
    Comparison(sdkInventory const & a, sdkInventory const & b, sdkTolerances const & tolerances,
               sdkModelAttributes const & attributes)
        : m_a(a), m_b(b), m_tolerances(tolerances), m_attributes(attributes)
    {
    }

    sdkModelComparison result()
    {
        bool const unlike = sdk_triangles_against_surfaces(m_a, m_b);
        if (m_a.level == sdkMeasureLevel::counts) {
            compare_counts();
        } else {
            if (!unlike) {
                compare_bodies();
            }
            compare_loose(sdkBodyKind::curve);
            compare_loose(sdkBodyKind::point);
        }
        if (m_attributes.structure) {
            compare_number("assemblies", m_a.assemblies, m_b.assemblies, true,
                           "compare::A has %d assemblies and B %d");
            compare_number("instances", m_a.instances, m_b.instances, true,
                           "compare::A has %d instances in assemblies and B %d");
        }
        // Other formats write or invent names in their own way.
        if (m_attributes.structure && m_attributes.names && m_attributes.same_format) {
            sdk_compare_structure_names(m_a, m_b, m_result.findings);
        }
        return std::move(m_result);
    }

private:
    void compare_number(char const * kind, std::int64_t a, std::int64_t b, bool counts, std::string_view text)
    {
        if (a != b) {
            m_result.findings.push_back({counts ? sdkWeight::difference : sdkWeight::note,
                                         kind,
                                         {},
                                         {},
                                         static_cast<double>(a),
                                         static_cast<double>(b),
                                         sdkText(text, a, b)});
        }
    }

    void compare_counts()
    {
        bool const exact = m_attributes.same_format;
        auto const of = [](sdkInventory const & inventory, sdkBodyKind kind) {
            return inventory.count(kind);
        };
        compare_number("solids", of(m_a, sdkBodyKind::solid), of(m_b, sdkBodyKind::solid), true,
                       "compare::A has %d solids and B %d");
        compare_number("shells", of(m_a, sdkBodyKind::shell), of(m_b, sdkBodyKind::shell), exact,
                       "compare::A has %d shells that bound no solid and B %d");
        compare_number("faces", sdk_face_count(m_a), sdk_face_count(m_b), exact,
                       "compare::A has %d faces and B %d");
        compare_number("meshes", of(m_a, sdkBodyKind::mesh), of(m_b, sdkBodyKind::mesh), exact,
                       "compare::A has %d meshes and B %d");
        compare_number("curves", of(m_a, sdkBodyKind::curve), of(m_b, sdkBodyKind::curve), exact,
                       "compare::A has %d curves and B %d");
        compare_number("points", of(m_a, sdkBodyKind::point), of(m_b, sdkBodyKind::point), true,
                       "compare::A has %d points and B %d");
        if (m_attributes.names) {
            sdk_compare_part_names(m_a, m_b, m_attributes, m_result.findings);
        }
    }

    void compare_bodies()
    {
        sdkBodies only_a;
        sdkBodies only_b;
        for (auto const kind :
             {sdkBodyKind::solid, sdkBodyKind::shell, sdkBodyKind::face, sdkBodyKind::mesh}) {
            auto pairs = pairs_of(kind);
            pair_moved(pairs);
            for (auto const & [a, b] : pairs.same) {
                add(*a, *b, false);
            }
            for (auto const & [a, b] : pairs.other) {
                add(*a, *b, true);
            }
            only_a.insert(only_a.end(), pairs.missing.begin(), pairs.missing.end());
            only_b.insert(only_b.end(), pairs.extra.begin(), pairs.extra.end());
        }
        compare_by_faces(only_a, only_b);
    }

    // A body that only one of two models has twice at one place is one that the other has not.
    sdkBodyPairs pairs_of(sdkBodyKind kind) const
    {
        auto pairs = sdk_pair_bodies(m_a.of(kind), m_b.of(kind), m_tolerances);
        for (auto const & coincident : pairs.coincident) {
            pairs.missing.push_back(coincident.first);
        }
        return pairs;
    }

    // What has the same measure and lies far away was moved.
    void pair_moved(sdkBodyPairs & pairs) const
    {
        std::erase_if(pairs.missing, [&](sdkBody const * body) {
            auto const like =
                std::find_if(pairs.extra.begin(), pairs.extra.end(), [&](sdkBody const * other) {
                    return body->measure.faces.size() == other->measure.faces.size() &&
                           m_tolerances.same_amount(body->measure.volume, other->measure.volume) &&
                           m_tolerances.same_amount(body->measure.area, other->measure.area);
                });
            if (like == pairs.extra.end()) {
                return false;
            }
            pairs.other.emplace_back(body, *like);
            pairs.extra.erase(like);
            return true;
        });
    }

    void add(sdkBody const & a, sdkBody const & b, bool geometry)
    {
        auto const before = m_result.findings.size();
        if (geometry) {
            sdk_tell_geometry(a, b, m_tolerances, m_result.findings);
        }
        sdk_tell_topology(a, b, m_tolerances, m_attributes, m_result.findings);
        sdk_tell_attributes(a, b, m_attributes, m_result.findings);
        if (a.kind == sdkBodyKind::mesh) {
            compare_sides(a, b);
        }
        bool const same = std::all_of(
            m_result.findings.begin() + static_cast<std::ptrdiff_t>(before), m_result.findings.end(),
            [](sdkFinding const & finding) { return finding.weight == sdkWeight::note; });
        m_result.bodies.push_back({&a, &b, same && !geometry});
    }

    // Triangles that look to the other side change neither the area nor its place.
    void compare_sides(sdkBody const & a, sdkBody const & b)
    {
        auto const tell = [&](char const * kind, double in_a, double in_b, sdkText text) {
            m_result.findings.push_back(
                {sdkWeight::difference, kind, a.part, a.place(), in_a, in_b, std::move(text)});
        };
        auto const sides_a = a.measure.unmatched_edges;
        auto const sides_b = b.measure.unmatched_edges;
        double const volume_a = a.measure.volume;
        double const volume_b = b.measure.volume;
        if (sides_a != sides_b) {
            tell("unmatched-edges", static_cast<double>(sides_a), static_cast<double>(sides_b),
                 sdkText("compare::%s at %s has %d sides of triangles without a neighbour in A and %d in B",
                         a.title(), a.place(), sides_a, sides_b));
        } else if (sides_a == 0 && (volume_a < 0) != (volume_b < 0)) {
            tell("turned-faces", volume_a, volume_b,
                 sdkText("compare::%s at %s is inside out in one of the models: it has a volume of %.10g mm3 "
                         "in A and of %.10g mm3 in B",
                         a.title(), a.place(), volume_a, volume_b));
        }
    }

    // Where the faces of bodies without a like are there all the same, the bodies have only been taken apart
    // or put together.
    void compare_by_faces(sdkBodies const & only_a, sdkBodies const & only_b)
    {
        std::vector<sdkFinding> found;
        sdk_compare_by_faces(only_a, only_b, {.tolerances = m_tolerances, .promise = {}}, found);
        bool const solids = m_a.count(sdkBodyKind::solid) != m_b.count(sdkBodyKind::solid);
        bool apart = false;
        for (auto & finding : found) {
            apart = apart || finding.weight != sdkWeight::note;
            sdk_tell_side_by_side(finding, m_attributes.same_format);
            m_result.findings.push_back(std::move(finding));
        }
        if (solids && !apart) {
            compare_number("solids", m_a.count(sdkBodyKind::solid), m_b.count(sdkBodyKind::solid), true,
                           "compare::A has %d solids and B %d");
        }
        // A body that gave no difference of its own, or only a note, has its faces on the other side.
        auto const told = [&](sdkBody const & body) {
            return std::any_of(m_result.findings.begin(), m_result.findings.end(),
                               [&](sdkFinding const & finding) {
                                   return finding.weight != sdkWeight::note && finding.part == body.part &&
                                          finding.place == body.place();
                               });
        };
        for (auto const * body : only_a) {
            m_result.bodies.push_back({body, nullptr, !solids && !told(*body)});
        }
        for (auto const * body : only_b) {
            m_result.bodies.push_back({nullptr, body, !solids && !told(*body)});
        }
    }

    // A model of triangles only has no room for curves and points.
    bool holds_loose() const { return !(only_triangles(m_a) || only_triangles(m_b)); }

    void compare_loose(sdkBodyKind kind)
    {
        auto pairs = pairs_of(kind);
        for (auto const & [a, b] : pairs.same) {
            add(*a, *b, false);
        }
        for (auto const & [a, b] : pairs.other) {
            pairs.missing.push_back(a);
            pairs.extra.push_back(b);
        }
        bool const divided = kind == sdkBodyKind::curve && same_length(pairs.missing, pairs.extra);
        bool const same = divided || !holds_loose();
        for (auto const * body : pairs.missing) {
            m_result.bodies.push_back({body, nullptr, same});
        }
        for (auto const * body : pairs.extra) {
            m_result.bodies.push_back({nullptr, body, same});
        }
        if (same) {
            compare_number(kind == sdkBodyKind::curve ? "curves" : "points", m_a.count(kind), m_b.count(kind),
                           false,
                           kind == sdkBodyKind::curve ? "compare::A has %d curves and B %d"
                                                      : "compare::A has %d points and B %d");
            return;
        }
        std::vector<sdkFinding> found;
        sdk_tell_missing(pairs.missing, found);
        sdk_tell_extra(pairs.extra, found);
        for (auto & finding : found) {
            sdk_tell_side_by_side(finding, m_attributes.same_format);
            m_result.findings.push_back(std::move(finding));
        }
    }

    // A curve may be divided in one of the models: then the pieces are as long as the whole.
    bool same_length(sdkBodies const & a, sdkBodies const & b) const
    {
        auto const length = [](sdkBodies const & bodies) {
            double sum = 0;
            for (auto const * body : bodies) {
                sum += body->measure.length;
            }
            return sum;
        };
        return !a.empty() && !b.empty() && a.size() != b.size() &&
               m_tolerances.same_amount(length(a), length(b));
    }

    sdkInventory const & m_a;
    sdkInventory const & m_b;
    sdkTolerances const & m_tolerances;
    sdkModelAttributes const & m_attributes;
    sdkModelComparison m_result;
};

} // namespace

bool sdk_triangles_against_surfaces(sdkInventory const & a, sdkInventory const & b)
{
    return (only_triangles(a) && no_triangles(b)) || (no_triangles(a) && only_triangles(b));
}

sdkModelComparison sdk_compare_models(sdkInventory const & a, sdkInventory const & b,
                                      sdkTolerances const & tolerances, sdkModelAttributes const & attributes)
{
    return Comparison(a, b, tolerances, attributes).result();
}
