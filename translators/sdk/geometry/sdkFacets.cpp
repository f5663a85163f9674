#include "sdk/geometry/sdkFacets.h"

#include "sdk/geometry/sdkFacetShells.h"
#include "sdk/geometry/sdkJoin.h"
#include "sdk/geometry/sdkSolids.h"

#include <BRepBuilderAPI_Sewing.hxx>
#include <BRepTools_ReShape.hxx>
#include <BRep_Tool.hxx>
#include <Message_ProgressScope.hxx>
#include <Poly_Triangulation.hxx>
#include <Precision.hxx>
#include <ShapeUpgrade_UnifySameDomain.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>

#include <algorithm>

namespace {

// Sewing takes time that grows with the square of the number of faces.
constexpr std::int64_t most_to_sew = 15'000;

bool facets_only(TopoDS_Shape const & face)
{
    TopLoc_Location location;
    return BRep_Tool::Surface(TopoDS::Face(face), location).IsNull();
}

std::int64_t count_triangles(TopoDS_Shape const & face)
{
    TopLoc_Location location;
    auto const & mesh = BRep_Tool::Triangulation(TopoDS::Face(face), location);
    return mesh.IsNull() ? 0 : mesh->NbTriangles();
}

// True for a compound whose members all are faces, or shells and solids, of facets only.
bool only_facet_members(TopoDS_Shape const & compound)
{
    for (TopoDS_Iterator member(compound); member.More(); member.Next()) {
        if (member.Value().ShapeType() == TopAbs_COMPOUND || member.Value().ShapeType() > TopAbs_FACE) {
            return false;
        }
        for (TopExp_Explorer face(member.Value(), TopAbs_FACE); face.More(); face.Next()) {
            if (!facets_only(face.Current())) {
                return false;
            }
        }
    }
    return true;
}

class FacetEdit {
public:
    FacetEdit(sdkFacetOptions const & options, Message_ProgressRange const & range)
        : m_options(options), m_scope(range, nullptr, 1)
    {
    }

    sdkFacetCounts const & counts() const { return m_counts; }

    std::optional<TopoDS_Shape> edited(TDF_Label const & part, TopoDS_Shape const & shape,
                                       sdkShapeHistory & history)
    {
        if (shape.ShapeType() > TopAbs_FACE || m_scope.UserBreak()) {
            return std::nullopt;
        }
        if (shape.ShapeType() == TopAbs_COMPOUND) {
            // Faces that are told apart by a colour or name must not melt into one shell.
            TDF_LabelSequence details;
            XCAFDoc_ShapeTool::GetSubShapes(part, details);
            if (!details.IsEmpty() || !only_facet_members(shape)) {
                return std::nullopt;
            }
        }
        TopTools_ListOfShape faces;
        bool mixed = false;
        for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
            if (facets_only(explorer.Current())) {
                faces.Append(explorer.Current());
            } else {
                mixed = true;
            }
        }
        if (faces.IsEmpty()) {
            return std::nullopt;
        }
        auto made = make(faces);
        if (!mixed) {
            return made;
        }
        BRepTools_ReShape rest;
        for (auto const & face : faces) {
            rest.Remove(face);
            history.replace(face, made);
        }
        auto const others = rest.Apply(shape);
        return others.IsNull() ? made : made.IsNull() ? others : sdk_join({others, made});
    }

private:
    TopoDS_Shape make(TopTools_ListOfShape const & faces)
    {
        sdkFacetMesh const mesh(faces, m_options.tolerance);
        m_counts.dropped += mesh.dropped();
        m_counts.doubled += mesh.doubled();
        m_counts.triangles +=
            mesh.dropped() + mesh.doubled() + static_cast<std::int64_t>(mesh.triangles().size());
        if (mesh.triangles().empty()) {
            return {};
        }
        m_counts.turned += mesh.turned();
        auto shells = sdk_facet_shells(mesh, m_options.merge_coplanar);
        bool const sew = m_options.tolerance > 0 && mesh.open() > 0 && mesh.open() <= most_to_sew;
        if (sew) {
            shells = sewn(shells);
        }
        if (m_options.solids) {
            shells = sdk_make_solids(shells);
        }
        auto shape = sdk_join(shells);
        if (m_options.merge_coplanar && sew) {
            // Faces that sewing brought together.
            shape = merged(shape);
        }
        count(shape);
        return shape;
    }

    std::vector<TopoDS_Shape> sewn(std::vector<TopoDS_Shape> const & shapes)
    {
        std::vector<TopoDS_Shape> result;
        BRepBuilderAPI_Sewing sewing(std::max(m_options.tolerance, Precision::Confusion()));
        for (auto const & shape : shapes) {
            if (BRep_Tool::IsClosed(shape)) {
                result.push_back(shape);
            } else {
                sewing.Add(shape);
            }
        }
        sewing.Perform(m_scope.Next());
        for (TopExp_Explorer shell(sewing.SewedShape(), TopAbs_SHELL); shell.More(); shell.Next()) {
            result.push_back(shell.Current());
        }
        for (TopExp_Explorer face(sewing.SewedShape(), TopAbs_FACE, TopAbs_SHELL); face.More(); face.Next()) {
            result.push_back(face.Current());
        }
        return result;
    }

    static TopoDS_Shape merged(TopoDS_Shape const & shape)
    {
        ShapeUpgrade_UnifySameDomain unify(shape, Standard_True, Standard_True, Standard_False);
        // Coordinates in single precision make planes differ by about this much.
        unify.SetAngularTolerance(1.0e-5);
        unify.SetLinearTolerance(1.0e-4);
        unify.AllowInternalEdges(Standard_False);
        unify.Build();
        return unify.Shape();
    }

    void count(TopoDS_Shape const & shape)
    {
        auto const entities = sdk_count_entities(shape);
        m_counts.faces += entities.faces;
        m_counts.solids += entities.solids;
        for (TopExp_Explorer shell(shape, TopAbs_SHELL, TopAbs_SOLID); shell.More(); shell.Next()) {
            ++m_counts.shells;
        }
    }

    sdkFacetOptions m_options;
    Message_ProgressScope m_scope;
    sdkFacetCounts m_counts;
};

} // namespace

std::vector<sdkFacetPart> sdk_facet_parts(sdkDocument const & document)
{
    std::vector<sdkFacetPart> parts;
    for (auto const & label : document.parts()) {
        sdkFacetPart part;
        TopTools_MapOfShape seen;
        for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(label), TopAbs_FACE); face.More();
             face.Next()) {
            if (seen.Add(face.Current()) && facets_only(face.Current())) {
                ++part.faces;
                part.triangles += count_triangles(face.Current());
            }
        }
        if (part.faces > 0) {
            part.name = sdkDocument::name(label);
            parts.push_back(part);
        }
    }
    return parts;
}

sdkText sdk_facets_refused(std::vector<sdkFacetPart> const & parts, std::string const & format,
                           std::string const & option)
{
    if (parts.empty()) {
        return {};
    }
    std::int64_t faces = 0;
    std::int64_t triangles = 0;
    for (auto const & part : parts) {
        faces += part.faces;
        triangles += part.triangles;
    }
    return sdkText(
        "geometry::%s files cannot hold faces that consist of triangles only, and there are %d of them with "
        "%d triangles in %d parts, the first of which is \"%s\"; set the option %s to make plane faces of "
        "triangles, or write a mesh format",
        format, faces, triangles, parts.size(), parts.front().name, option);
}

sdkFacetCounts sdk_make_facets(sdkDocument & document, sdkFacetOptions const & options,
                               Message_ProgressRange const & range)
{
    sdkFacetCounts counts;
    auto const found = sdk_facet_parts(document);
    if (found.empty()) {
        return counts;
    }
    std::int64_t triangles = 0;
    for (auto const & part : found) {
        triangles += part.triangles;
    }
    if (triangles > options.max_facets) {
        counts.refusal = sdkText(
            "geometry::There are %d triangles to make faces of, and the limit is %d; reduce the mesh, raise "
            "the option %s, or write a mesh format",
            triangles, options.max_facets, options.max_option);
        return counts;
    }
    Message_ProgressScope scope(range, nullptr, 2);
    FacetEdit facets(options, scope.Next());
    auto const edit = [&](TDF_Label const & part, TopoDS_Shape const & shape, sdkShapeHistory & history) {
        return facets.edited(part, shape, history);
    };
    auto const edits = sdk_edit_parts(document, document.parts(), edit, scope.Next());
    counts = facets.counts();
    counts.parts = edits.changed + edits.emptied;
    counts.cancelled = edits.cancelled || scope.UserBreak();
    return counts;
}
