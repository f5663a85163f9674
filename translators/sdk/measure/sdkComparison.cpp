#include "sdk/measure/sdkComparison.h"

#include "sdk/measure/sdkAttributeComparison.h"
#include "sdk/measure/sdkCurveComparison.h"
#include "sdk/measure/sdkDoubledTriangles.h"
#include "sdk/measure/sdkFaceColours.h"
#include "sdk/measure/sdkFaceComparison.h"
#include "sdk/measure/sdkMeshCorners.h"
#include "sdk/measure/sdkShapeComparison.h"
#include "sdk/measure/sdkStructureNames.h"
#include "sdk/measure/sdkTotalsComparison.h"
#include "sdk/measure/sdkTriangleByTriangle.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace {

using Findings = std::vector<sdkFinding>;

class Comparison {
public:
    Comparison(sdkInventory const & source, sdkInventory const & output, sdkComparisonOptions const & options)
        : m_source(source), m_output(output), m_options(options), m_shapes(options.tolerances)
    {
    }

    Findings findings()
    {
        bool const exact = m_options.promise.holds.surfaces;
        bool const source_mesh = m_source.count(sdkBodyKind::mesh) > 0;
        bool const output_mesh = m_output.count(sdkBodyKind::mesh) > 0;
        if (m_source.level == sdkMeasureLevel::counts) {
            compare_counts();
        } else if (source_mesh != output_mesh || (output_mesh && !exact)) {
            // Triangles in place of surfaces, or surfaces in place of triangles: no body has its like.
            compare_totals();
            // A module that promises nothing may have its own way to triangles.
            if (m_options.promise.made && m_options.promise.deflection > 0) {
                sdk_compare_mesh_corners(m_source, m_output, m_findings);
                if (source_mesh && output_mesh) {
                    sdk_compare_triangle_by_triangle(m_source, m_output, m_findings);
                }
            }
        } else {
            compare_bodies();
        }
        compare_wireframe();
        if (m_options.promise.holds.structure) {
            sdk_compare_structure(m_source, m_output, m_findings);
            if (m_options.promise.holds.names) {
                sdk_compare_structure_names(m_source, m_output, m_options.promise, m_findings);
            }
        }
        return std::move(m_findings);
    }

private:
    void compare_totals()
    {
        Findings found;
        sdk_compare_totals(m_source, m_output, m_options.promise, found);
        // A writer of surfaces takes triangles once that its source has more often.
        if (!found.empty() && m_source.count(sdkBodyKind::mesh) > 0 &&
            m_output.count(sdkBodyKind::mesh) == 0) {
            auto const doubled = sdk_take_triangles_once(m_source);
            if (doubled.triangles > 0) {
                found.clear();
                sdk_compare_totals(doubled.once, m_output, m_options.promise, found);
                m_findings.push_back({sdkWeight::note,
                                      "source-doubled",
                                      {},
                                      {},
                                      static_cast<double>(doubled.triangles),
                                      std::nullopt,
                                      sdkText("measure::%d triangles of the source are there more than once; "
                                              "each was compared once",
                                              doubled.triangles)});
            }
        }
        m_findings.insert(m_findings.end(), found.begin(), found.end());
    }

    void compare_bodies()
    {
        sdkBodies missing;
        sdkBodies extra;
        for (auto const kind :
             {sdkBodyKind::solid, sdkBodyKind::shell, sdkBodyKind::face, sdkBodyKind::mesh}) {
            auto const pairs = sdk_pair_bodies(m_source.of(kind), m_output.of(kind), m_options.tolerances);
            for (auto const & [from, to] : pairs.same) {
                if (kind != sdkBodyKind::mesh) {
                    m_shapes.compare(*from, *to, m_findings);
                }
                compare_topology(*from, *to);
                compare_attributes(*from, *to);
            }
            for (auto const & [from, to] : pairs.other) {
                compare_geometry(*from, *to);
                compare_topology(*from, *to);
                compare_attributes(*from, *to);
            }
            // Two that are the same at one place are two all the same.
            for (auto const & coincident : pairs.coincident) {
                missing.push_back(coincident.first);
            }
            missing.insert(missing.end(), pairs.missing.begin(), pairs.missing.end());
            extra.insert(extra.end(), pairs.extra.begin(), pairs.extra.end());
        }
        sdk_compare_by_faces(missing, extra, m_options, m_findings);
    }

    void compare_attributes(sdkBody const & from, sdkBody const & to)
    {
        auto const & holds = m_options.promise.holds;
        auto const before = m_findings.size();
        sdk_compare_attributes(from, to, m_options.promise, m_findings);
        bool const told =
            std::any_of(m_findings.begin() + static_cast<std::ptrdiff_t>(before), m_findings.end(),
                        [](auto const & one) { return one.kind == "colour"; });
        if (!holds.colours || told) {
            return;
        }
        auto const faces = sdk_compare_face_colours(
            from, to, {.tolerances = m_options.tolerances, .transparency = holds.transparency});
        if (faces) {
            auto const in = faces->source.empty() ? std::string("-") : sdk_colour_text(faces->source);
            auto const out = faces->output.empty() ? std::string("-") : sdk_colour_text(faces->output);
            m_findings.push_back(
                {sdkWeight::difference, "colour", from.part, faces->place, std::nullopt, std::nullopt,
                 sdkText("measure::%s has %d faces with another colour in the output; the one at %s has %s "
                         "in the source and %s in the output",
                         from.title(), faces->faces, faces->place, in, out)});
        }
    }

    void add(sdkWeight weight, std::string const & kind, sdkBody const & body, double source, double output,
             sdkText text)
    {
        m_findings.push_back({weight, kind, body.part, body.place(), source, output, std::move(text)});
    }

    void compare_geometry(sdkBody const & from, sdkBody const & to)
    {
        auto const & tolerances = m_options.tolerances;
        auto const & a = from.measure;
        auto const & b = to.measure;
        auto const before = m_findings.size();
        if (from.kind == sdkBodyKind::solid && !tolerances.same_amount(a.volume, b.volume)) {
            add(sdkWeight::difference, "volume", from, a.volume, b.volume,
                sdkText("measure::%s at %s has a volume of %.10g mm3 in the source and of %.10g mm3 in the "
                        "output",
                        from.title(), from.place(), a.volume, b.volume));
        }
        if (!tolerances.same_amount(a.area, b.area)) {
            add(sdkWeight::difference, "area", from, a.area, b.area,
                sdkText(
                    "measure::%s at %s has an area of %.10g mm2 in the source and of %.10g mm2 in the output",
                    from.title(), from.place(), a.area, b.area));
        }
        double const moved = a.centroid.Distance(b.centroid);
        if (!tolerances.same_place(a.centroid, b.centroid, std::max(from.size(), to.size()))) {
            add(sdkWeight::difference, "centroid", from, 0, moved,
                sdkText(
                    "measure::%s has its centroid at %s in the source and at %s in the output, %.6g mm apart",
                    from.title(), from.place(), to.place(), moved));
        }
        if (m_findings.size() == before) {
            add(sdkWeight::difference, "shape", from, a.area, b.area,
                sdkText(
                    "measure::%s at %s has another shape or lies otherwise in the output, with the same area",
                    from.title(), from.place()));
        }
    }

    void compare_topology(sdkBody const & from, sdkBody const & to)
    {
        auto const & a = from.measure;
        auto const & b = to.measure;
        auto const count = [&](char const * kind, std::int64_t in, std::int64_t out, sdkText text) {
            add(sdkWeight::difference, kind, from, static_cast<double>(in), static_cast<double>(out),
                std::move(text));
        };
        // A face may be divided on the way, where a format has no closed ones, or joined to its neighbour;
        // none may go.
        bool const same_area = m_options.tolerances.same_amount(a.area, b.area);
        if (b.faces.size() < a.faces.size() && !same_area) {
            auto const in = a.faces.size();
            auto const out = b.faces.size();
            add(sdkWeight::loss, "missing-face", from, static_cast<double>(in), static_cast<double>(out),
                b.area < a.area
                    ? sdkText(
                          "measure::%s at %s has %d faces in the source and %d in the output, which lacks "
                          "some of its area",
                          from.title(), from.place(), in, out)
                    : sdkText(
                          "measure::%s at %s has %d faces in the source and %d in the output, which cover "
                          "another area",
                          from.title(), from.place(), in, out));
        } else if (b.faces.size() < a.faces.size()) {
            count("faces", static_cast<std::int64_t>(a.faces.size()),
                  static_cast<std::int64_t>(b.faces.size()),
                  sdkText("measure::%s at %s has %d faces in the source and %d in the output", from.title(),
                          from.place(), a.faces.size(), b.faces.size()));
        }
        if (a.shells != b.shells && from.kind == sdkBodyKind::solid) {
            count("shells", a.shells, b.shells,
                  sdkText("measure::%s at %s has %d shells in the source and %d in the output", from.title(),
                          from.place(), a.shells, b.shells));
        }
        if (b.free_edges > a.free_edges && from.kind != sdkBodyKind::face) {
            count(
                "free-edges", a.free_edges, b.free_edges,
                sdkText("measure::%s at %s has %d edges of one face only in the source and %d in the output",
                        from.title(), from.place(), a.free_edges, b.free_edges));
        }
        if (b.turned_edges > a.turned_edges) {
            count("turned-faces", a.turned_edges, b.turned_edges,
                  sdkText(
                      "measure::%s at %s has faces that look to the wrong side along %d edges in the output",
                      from.title(), from.place(), b.turned_edges));
        }
        // A solid that is turned over has another volume. A format of bare surfaces has no sides.
        if (from.kind != sdkBodyKind::solid && m_options.promise.holds.solids && a.turned(b)) {
            sdk_tell_turned(from, m_findings);
        }
        if (!(b.edge_deviation <= std::max(m_options.tolerances.absolute, 1.01 * a.edge_deviation))) {
            add(sdkWeight::difference, "edge-deviation", from, a.edge_deviation, b.edge_deviation,
                sdkText("measure::%s at %s has edges up to %.6g mm off their surfaces in the output, and up "
                        "to %.6g "
                        "mm in the source",
                        from.title(), from.place(), b.edge_deviation, a.edge_deviation));
        }
    }

    void compare_wireframe()
    {
        auto const & holds = m_options.promise.holds;
        if (m_source.level == sdkMeasureLevel::counts) {
            return;
        }
        if (!m_options.promise.exact_curves && holds.curves) {
            sdk_compare_polylines(m_source, m_output, m_findings);
        }
        for (auto const kind : {sdkBodyKind::curve, sdkBodyKind::point}) {
            bool const curve = kind == sdkBodyKind::curve;
            if ((curve ? holds.curves : holds.points) && !(curve && !m_options.promise.exact_curves)) {
                sdk_compare_loose(m_source.of(kind), m_output.of(kind), m_options, m_findings);
            } else if (!(curve ? holds.curves : holds.points) && m_source.count(kind) > 0) {
                // The writer has told of them; here they only count.
                double const number = static_cast<double>(m_source.count(kind));
                m_findings.push_back({sdkWeight::loss,
                                      curve ? "missing-curve" : "missing-point",
                                      {},
                                      {},
                                      number,
                                      0,
                                      curve ? sdkText("measure::%d curves of the source are not in the "
                                                      "output, whose format has none",
                                                      m_source.count(kind))
                                            : sdkText("measure::%d points of the source are not in the "
                                                      "output, whose format has none",
                                                      m_source.count(kind))});
            }
        }
    }

    void compare_counts()
    {
        auto const compare = [&](char const * kind, std::int64_t in, std::int64_t out, bool may_grow,
                                 std::string_view key) {
            if (out < in || (out > in && !may_grow)) {
                m_findings.push_back({out < in ? sdkWeight::loss : sdkWeight::difference,
                                      kind,
                                      {},
                                      {},
                                      static_cast<double>(in),
                                      static_cast<double>(out),
                                      sdkText(key, in, out)});
            }
        };
        auto const & holds = m_options.promise.holds;
        if (holds.surfaces && m_source.count(sdkBodyKind::mesh) == 0) {
            if (holds.solids) {
                compare("solids", m_source.count(sdkBodyKind::solid), m_output.count(sdkBodyKind::solid),
                        false, "measure::The source has %d solids and the output %d");
            }
            compare("faces", sdk_face_count(m_source), sdk_face_count(m_output), true,
                    "measure::The source has %d faces and the output %d");
        }
        if (holds.curves && m_options.promise.exact_curves) {
            compare("curves", m_source.count(sdkBodyKind::curve), m_output.count(sdkBodyKind::curve), true,
                    "measure::The source has %d curves and the output %d");
        }
        if (holds.points) {
            compare("points", m_source.count(sdkBodyKind::point), m_output.count(sdkBodyKind::point), true,
                    "measure::The source has %d points and the output %d");
        }
        if (holds.names) {
            sdk_compare_names(m_source, m_output, m_options.promise, m_findings);
        }
    }

    sdkInventory const & m_source;
    sdkInventory const & m_output;
    sdkComparisonOptions const & m_options;
    sdkShapeComparison m_shapes;
    Findings m_findings;
};

} // namespace

std::vector<sdkFinding> sdk_compare(sdkInventory const & source, sdkInventory const & output,
                                    sdkComparisonOptions const & options)
{
    if (!options.promise.hidden) {
        auto visible = source;
        std::erase_if(visible.bodies, [](sdkBody const & body) { return body.hidden; });
        return Comparison(visible, output, options).findings();
    }
    return Comparison(source, output, options).findings();
}
