#include "sdk/measure/sdkBodyDifferences.h"

#include "sdk/measure/sdkAttributeComparison.h"
#include "sdk/measure/sdkFaceColours.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Appends findings about one body.
class Teller {
public:
    Teller(sdkBody const & body, std::vector<sdkFinding> & findings) : m_body(body), m_findings(findings) {}

    void amounts(char const * kind, double a, double b, sdkText text,
                 sdkWeight weight = sdkWeight::difference) const
    {
        m_findings.push_back({weight, kind, m_body.part, m_body.place(), a, b, std::move(text)});
    }

    void counts(char const * kind, std::int64_t a, std::int64_t b, std::string_view text,
                sdkWeight weight = sdkWeight::difference) const
    {
        if (a != b) {
            amounts(kind, static_cast<double>(a), static_cast<double>(b),
                    sdkText(text, m_body.title(), m_body.place(), a, b), weight);
        }
    }

    void attribute(char const * kind, std::string const & a, std::string const & b,
                   std::string_view text) const
    {
        m_findings.push_back({sdkWeight::difference, kind, m_body.part, m_body.place(), std::nullopt,
                              std::nullopt, sdkText(text, m_body.title(), m_body.place(), a, b)});
    }

private:
    sdkBody const & m_body;
    std::vector<sdkFinding> & m_findings;
};

std::string joined(std::set<std::string> const & names)
{
    std::string text;
    for (auto const & name : names) {
        text += text.empty() ? name : ", " + name;
    }
    return text;
}

bool holds_name(sdkBody const & body, std::string const & name)
{
    return std::any_of(body.names.begin(), body.names.end(),
                       [&](std::string const & other) { return sdk_same_name(name, other); });
}

bool same_names(sdkBody const & a, sdkBody const & b, sdkModelAttributes const & attributes)
{
    bool const unnamed_a = a.part.empty() || a.part == attributes.file_a;
    bool const unnamed_b = b.part.empty() || b.part == attributes.file_b;
    if (a.part.empty() || b.part.empty()) {
        return unnamed_a && unnamed_b;
    }
    return (unnamed_a && unnamed_b) || holds_name(b, a.part) || holds_name(a, b.part);
}

// Some formats give a colour to everything, also to what has none.
bool same_looks(sdkBody const & a, sdkBody const & b, sdkModelAttributes const & attributes)
{
    bool const bare = sdk_main_colour(a.colours).empty() || sdk_main_colour(b.colours).empty();
    return (bare && !attributes.same_format) ||
           (sdk_same_colours(a.colours, b.colours) && sdk_same_colours(b.colours, a.colours));
}

} // namespace

void sdk_tell_geometry(sdkBody const & a, sdkBody const & b, sdkTolerances const & tolerances,
                       std::vector<sdkFinding> & findings)
{
    Teller const tell(a, findings);
    auto const before = findings.size();
    auto const & in_a = a.measure;
    auto const & in_b = b.measure;
    if (a.kind == sdkBodyKind::solid && !tolerances.same_amount(in_a.volume, in_b.volume)) {
        tell.amounts("volume", in_a.volume, in_b.volume,
                     sdkText("compare::%s at %s has a volume of %.10g mm3 in A and of %.10g mm3 in B",
                             a.title(), a.place(), in_a.volume, in_b.volume));
    }
    if (!tolerances.same_amount(in_a.area, in_b.area)) {
        tell.amounts("area", in_a.area, in_b.area,
                     sdkText("compare::%s at %s has an area of %.10g mm2 in A and of %.10g mm2 in B",
                             a.title(), a.place(), in_a.area, in_b.area));
    }
    if (!tolerances.same_place(in_a.centroid, in_b.centroid, std::max(a.size(), b.size()))) {
        double const moved = in_a.centroid.Distance(in_b.centroid);
        tell.amounts("centroid", 0, moved,
                     sdkText("compare::%s has its centroid at %s in A and at %s in B, %.6g mm apart",
                             a.title(), a.place(), b.place(), moved));
    }
    if (findings.size() == before) {
        tell.amounts("shape", in_a.area, in_b.area,
                     sdkText("compare::%s at %s has another shape or lies otherwise in B, with the same area",
                             a.title(), a.place()));
    }
}

void sdk_tell_topology(sdkBody const & a, sdkBody const & b, sdkTolerances const & tolerances,
                       sdkModelAttributes const & attributes, std::vector<sdkFinding> & findings)
{
    Teller const tell(a, findings);
    auto const & in_a = a.measure;
    auto const & in_b = b.measure;
    tell.counts("faces", static_cast<std::int64_t>(in_a.faces.size()),
                static_cast<std::int64_t>(in_b.faces.size()),
                "compare::%s at %s has %d faces in A and %d in B",
                attributes.same_format ? sdkWeight::difference : sdkWeight::note);
    if (a.kind == sdkBodyKind::solid) {
        tell.counts("shells", in_a.shells, in_b.shells, "compare::%s at %s has %d shells in A and %d in B");
    }
    if (a.kind == sdkBodyKind::solid || a.kind == sdkBodyKind::shell) {
        // Divided edges of an open body are still open; what is closed in one of the models only is not.
        bool const divided = in_a.free_edges > 0 && in_b.free_edges > 0 && !attributes.same_format;
        tell.counts("free-edges", in_a.free_edges, in_b.free_edges,
                    "compare::%s at %s has %d edges of one face only in A and %d in B",
                    divided ? sdkWeight::note : sdkWeight::difference);
        bool const turned = in_a.turned_edges > 0 && in_b.turned_edges > 0 && !attributes.same_format;
        tell.counts("turned-faces", in_a.turned_edges, in_b.turned_edges,
                    "compare::%s at %s has faces that look to the wrong side along %d edges in A and %d in B",
                    turned ? sdkWeight::note : sdkWeight::difference);
    }
    if (a.kind != sdkBodyKind::solid && in_a.turned(in_b)) {
        findings.push_back({sdkWeight::difference, "turned-body", a.part, a.place(), std::nullopt,
                            std::nullopt,
                            sdkText("compare::%s at %s looks to the other side in B", a.title(), a.place())});
    }
    double const least = std::min(in_a.edge_deviation, in_b.edge_deviation);
    double const allowed = std::max(tolerances.absolute, 1.01 * least);
    // Not what is larger, so that what is no number is told.
    if (!(in_a.edge_deviation <= allowed && in_b.edge_deviation <= allowed)) {
        // B has a fault that A does not have; that it lacks one is good.
        bool const mended = in_b.edge_deviation <= allowed && in_a.edge_deviation > allowed;
        tell.amounts("edge-deviation", in_a.edge_deviation, in_b.edge_deviation,
                     sdkText("compare::%s at %s has edges up to %.6g mm off their surfaces in A and up to "
                             "%.6g mm in B",
                             a.title(), a.place(), in_a.edge_deviation, in_b.edge_deviation),
                     mended ? sdkWeight::note : sdkWeight::difference);
    }
}

void sdk_tell_attributes(sdkBody const & a, sdkBody const & b, sdkModelAttributes const & attributes,
                         std::vector<sdkFinding> & findings)
{
    Teller const tell(a, findings);
    if (attributes.names && !same_names(a, b, attributes)) {
        tell.attribute("name", a.part, b.part, "compare::%s at %s is called \"%s\" in A and \"%s\" in B");
    }
    if (attributes.colours && !same_looks(a, b, attributes)) {
        tell.attribute("colour", sdk_main_colour(a.colours), sdk_main_colour(b.colours),
                       "compare::%s at %s has the colour \"%s\" in A and \"%s\" in B");
    }
    if (attributes.colours && same_looks(a, b, attributes)) {
        if (auto const faces = sdk_compare_face_colours(
                a, b, {.tolerances = {}, .transparency = true, .bare = attributes.same_format})) {
            findings.push_back(
                {sdkWeight::difference, "colour", a.part, faces->place, std::nullopt, std::nullopt,
                 sdkText("compare::%s has %d faces with another colour in B; the one at %s has "
                         "\"%s\" in A and \"%s\" in B",
                         a.title(), faces->faces, faces->place, faces->source, faces->output)});
        }
    }
    if (attributes.layers && a.layers != b.layers) {
        tell.attribute("layer", joined(a.layers), joined(b.layers),
                       "compare::%s at %s is in the layers \"%s\" in A and \"%s\" in B");
    }
    if (attributes.visibility && a.hidden != b.hidden) {
        findings.push_back(
            {sdkWeight::difference, "visibility", a.part, a.place(), std::nullopt, std::nullopt,
             a.hidden ? sdkText("compare::%s at %s is hidden in A and visible in B", a.title(), a.place())
                      : sdkText("compare::%s at %s is visible in A and hidden in B", a.title(), a.place())});
    }
}

void sdk_compare_part_names(sdkInventory const & a, sdkInventory const & b,
                            sdkModelAttributes const & attributes, std::vector<sdkFinding> & findings)
{
    auto const tell = [&](sdkInventory const & one, sdkInventory const & other, std::string const & file,
                          std::string_view text) {
        std::set<std::string> told;
        for (auto const & body : one.bodies) {
            bool const there = std::any_of(other.bodies.begin(), other.bodies.end(),
                                           [&](sdkBody const & like) { return holds_name(like, body.part); });
            if (!body.part.empty() && body.part != file && !there && told.insert(body.part).second) {
                findings.push_back({sdkWeight::difference,
                                    "name",
                                    body.part,
                                    {},
                                    std::nullopt,
                                    std::nullopt,
                                    sdkText(text, body.part)});
            }
        }
    };
    tell(a, b, attributes.file_a, "compare::The name \"%s\" is in A and not in B");
    tell(b, a, attributes.file_b, "compare::The name \"%s\" is in B and not in A");
}

void sdk_tell_side_by_side(sdkFinding & finding, bool same_format)
{
    auto const & part = finding.part;
    auto const & place = finding.place;
    if (finding.kind == "solid-open") {
        finding.text =
            sdkText("compare::%s at %s is a solid in A and none in B, which has its faces", part, place);
    } else if (finding.kind == "turned-body") {
        finding.text = sdkText("compare::%s at %s looks to the other side in B", part, place);
    } else if (finding.kind == "shell-open") {
        finding.text =
            sdkText("compare::The shell %s at %s fell apart in B, which has its faces", part, place);
    } else if (finding.kind == "regrouped") {
        finding.text = sdkText("compare::The faces of %s at %s belong to other bodies in B", part, place);
    } else if (finding.kind.starts_with("missing-")) {
        finding.text = sdkText("compare::%s at %s (%s) is in A and not in B", part, place,
                               finding.kind.substr(finding.kind.find('-') + 1));
    } else if (finding.kind.starts_with("extra-")) {
        finding.text = sdkText("compare::%s at %s (%s) is in B and not in A", part, place,
                               finding.kind.substr(finding.kind.find('-') + 1));
    }
    if (finding.weight == sdkWeight::loss || same_format) {
        finding.weight = sdkWeight::difference;
    }
}
