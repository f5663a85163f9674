#include "sdk/measure/sdkSourceFaults.h"

#include "sdk/measure/sdkMeshMeasure.h"
#include "sdk/measure/sdkOuterExtent.h"
#include "sdk/measure/sdkShapeFault.h"

#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Shape.hxx>

#include <optional>

namespace {

// Bodies of one kind: how many there are, how many are faulty, and where the first of these is.
struct Tally {
    std::int64_t bodies = 0;
    std::int64_t faulty = 0;
    std::string part;
    std::optional<sdkShapeFault> fault;
};

std::string named(std::string const & part)
{
    return part.empty() ? "term::a part without a name" : "\"" + part + "\"";
}

class Inspection {
public:
    void look_at(TDF_Label const & part)
    {
        auto const shape = XCAFDoc_ShapeTool::GetShape(part);
        if (shape.IsNull()) {
            return;
        }
        auto const name = sdkDocument::name(part);
        if (sdk_triangles_only(shape)) {
            count_sides(shape, name);
        }
        for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
            check(solid.Current(), name, m_solids);
        }
        for (TopExp_Explorer shell(shape, TopAbs_SHELL, TopAbs_SOLID); shell.More(); shell.Next()) {
            check(shell.Current(), name, m_sheets);
            if (!sdk_triangles_only(shell.Current())) {
                count_open(shell.Current(), name);
            }
        }
        for (TopExp_Explorer face(shape, TopAbs_FACE, TopAbs_SHELL); face.More(); face.Next()) {
            check(face.Current(), name, m_sheets);
        }
    }

    std::vector<sdkFinding> findings() const
    {
        std::vector<sdkFinding> findings;
        add_invalid(m_solids,
                    "measure::%d of %d solids of the source are not valid; the first is in %s: %s at %s",
                    findings);
        add_invalid(
            m_sheets,
            "measure::%d of %d shells and single faces of the source are not valid; the first is in %s: "
            "%s at %s",
            findings);
        if (m_open.faulty > 0) {
            findings.push_back(
                {.weight = sdkWeight::note,
                 .kind = "source-open",
                 .part = m_open.part,
                 .place = {},
                 .source = static_cast<double>(m_open.faulty),
                 .text = sdkText("measure::%d of %d shells of the source that bound no solid are open; the "
                                 "first is in %s",
                                 m_open.faulty, m_open.bodies, named(m_open.part))});
        }
        if (m_meshes.faulty > 0) {
            findings.push_back(
                {.weight = sdkWeight::note,
                 .kind = "source-open",
                 .part = m_meshes.part,
                 .place = {},
                 .source = static_cast<double>(m_sides),
                 .text =
                     sdkText("measure::%d of %d meshes of the source are not watertight, or have triangles "
                             "that are inside out: %d sides of triangles have no neighbour; the first "
                             "mesh is %s",
                             m_meshes.faulty, m_meshes.bodies, m_sides, named(m_meshes.part))});
        }
        return findings;
    }

private:
    void check(TopoDS_Shape const & body, std::string const & part, Tally & tally)
    {
        if (!m_seen.Add(body.Located(TopLoc_Location())) || sdk_count_entities(body).facets_only > 0) {
            return;
        }
        ++tally.bodies;
        if (auto const fault = sdk_shape_fault(body)) {
            if (++tally.faulty == 1) {
                tally.part = part;
                tally.fault = fault;
            }
        }
    }

    void count_open(TopoDS_Shape const & shell, std::string const & part)
    {
        ++m_open.bodies;
        if (!BRep_Tool::IsClosed(shell) && ++m_open.faulty == 1) {
            m_open.part = part;
        }
    }

    void count_sides(TopoDS_Shape const & mesh, std::string const & part)
    {
        auto const sides = sdk_unmatched_edges(mesh);
        m_sides += sides;
        ++m_meshes.bodies;
        if (sides > 0 && ++m_meshes.faulty == 1) {
            m_meshes.part = part;
        }
    }

    static void add_invalid(Tally const & tally, std::string_view key, std::vector<sdkFinding> & findings)
    {
        if (tally.faulty > 0) {
            auto const place = tally.fault->place();
            findings.push_back({.weight = sdkWeight::note,
                                .kind = "source-invalid",
                                .part = tally.part,
                                .place = place,
                                .source = static_cast<double>(tally.faulty),
                                .text = sdkText(key, tally.faulty, tally.bodies, named(tally.part),
                                                tally.fault->what, place)});
        }
    }

    Tally m_solids;
    Tally m_sheets;
    Tally m_open;
    Tally m_meshes;
    std::int64_t m_sides = 0; // of all meshes
    TopTools_MapOfShape m_seen;
};

} // namespace

std::vector<sdkFinding> sdk_source_faults(sdkDocument const & document)
{
    Inspection inspection;
    for (auto const & part : document.parts()) {
        inspection.look_at(part);
    }
    return inspection.findings();
}
