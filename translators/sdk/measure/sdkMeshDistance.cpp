#include "sdk/measure/sdkMeshDistance.h"

#include "sdk/geometry/sdkEdgeRange.h"
#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkVisibility.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepTools.hxx>
#include <BRepTopAdaptor_FClass2d.hxx>
#include <BRep_Tool.hxx>
#include <BVH_Distance.hxx>
#include <BVH_Tools.hxx>
#include <BVH_Triangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <Precision.hxx>
#include <TCollection_AsciiString.hxx>
#include <TDF_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>

#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace {

using Mesh = BVH_Triangulation<double, 3>;
using Vector = BVH_Vec3d;

class Nearest : public BVH_Distance<double, 3, Vector, Mesh> {
public:
    Standard_Boolean RejectNode(Vector const & low, Vector const & high, double & distance) const override
    {
        distance = BVH_Tools<double, 3>::PointBoxSquareDistance(myObject, low, high);
        return RejectMetric(distance);
    }

    Standard_Boolean Accept(Standard_Integer const index, double const &) override
    {
        auto const & corners = myBVHSet->Elements[static_cast<std::size_t>(index)];
        auto const & points = myBVHSet->Vertices;
        double const distance = BVH_Tools<double, 3>::PointTriangleSquareDistance(
            myObject, points[static_cast<std::size_t>(corners.x())],
            points[static_cast<std::size_t>(corners.y())], points[static_cast<std::size_t>(corners.z())]);
        if (distance < myDistance) {
            myDistance = distance;
            return Standard_True;
        }
        return Standard_False;
    }
};

void add_edges(TopoDS_Face const & face, int most, std::vector<gp_Pnt> & points)
{
    int taken = 0;
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More() && taken < most; one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        auto const range = sdk_edge_range(edge);
        if (!range) {
            continue;
        }
        BRepAdaptor_Curve const curve(edge);
        int const count = curve.GetType() == GeomAbs_Line ? 2 : 6;
        for (int at = 0; at < count; ++at, ++taken) {
            points.push_back(curve.Value(range->at(static_cast<double>(at) / count)));
        }
    }
}

void add_inside(TopoDS_Face const & face, int most, std::vector<gp_Pnt> & points)
{
    BRepAdaptor_Surface const surface(face, Standard_False);
    double u_first = 0;
    double u_last = 0;
    double v_first = 0;
    double v_last = 0;
    BRepTools::UVBounds(face, u_first, u_last, v_first, v_last);
    if (Precision::IsInfinite(u_first) || Precision::IsInfinite(u_last) || Precision::IsInfinite(v_first) ||
        Precision::IsInfinite(v_last)) {
        return;
    }
    BRepTopAdaptor_FClass2d const inside(face, Precision::PConfusion());
    // Within its edges a plane can only bulge or be absent, which few points show.
    int const steps =
        surface.GetType() == GeomAbs_Plane ? 3 : std::max(2, static_cast<int>(std::sqrt(most)) - 2);
    for (int i = 1; i < steps; ++i) {
        for (int j = 1; j < steps; ++j) {
            gp_Pnt2d const at(u_first + (u_last - u_first) * i / steps,
                              v_first + (v_last - v_first) * j / steps);
            if (inside.Perform(at) == TopAbs_IN) {
                points.push_back(surface.Value(at.X(), at.Y()));
            }
        }
    }
}

// Walks down to the parts of a document.
class PointCollector {
public:
    PointCollector(sdkDocument const & document, bool hidden, int most)
        : m_document(document), m_hidden(hidden), m_most(most)
    {
    }

    void add(TDF_Label const & label, TopLoc_Location const & outer)
    {
        if (!m_hidden && sdk_hidden(m_document, label)) {
            return;
        }
        TDF_Label referred;
        bool const placed = XCAFDoc_ShapeTool::GetReferredShape(label, referred);
        auto const definition = placed ? referred : label;
        auto const location = placed ? outer * XCAFDoc_ShapeTool::GetLocation(label) : outer;
        if (XCAFDoc_ShapeTool::IsAssembly(definition)) {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(definition, components);
            for (auto const & component : components) {
                add(component, location);
            }
        } else {
            add_part(definition, location);
        }
    }

    std::vector<sdkSurfacePoint> points;

private:
    // Of bodies within a part.
    TopTools_MapOfShape hidden_faces(TDF_Label const & part) const
    {
        TopTools_MapOfShape faces;
        TDF_LabelSequence details;
        XCAFDoc_ShapeTool::GetSubShapes(part, details);
        for (auto const & detail : details) {
            auto const shape = XCAFDoc_ShapeTool::GetShape(detail);
            if (!shape.IsNull() && shape.ShapeType() <= TopAbs_SOLID && sdk_hidden(m_document, detail)) {
                for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
                    faces.Add(face.Current());
                }
            }
        }
        return faces;
    }

    void add_part(TDF_Label const & part, TopLoc_Location const & location)
    {
        auto const name = sdkDocument::name(part);
        for (auto const & point : points_of(part)) {
            points.push_back({point.Transformed(location.Transformation()), name});
        }
    }

    // In the part's own place, found once for all its instances.
    std::vector<gp_Pnt> const & points_of(TDF_Label const & part)
    {
        TCollection_AsciiString entry;
        TDF_Tool::Entry(part, entry);
        auto const [found, added] = m_parts.try_emplace(entry.ToCString());
        if (added) {
            auto const left_out = m_hidden ? TopTools_MapOfShape() : hidden_faces(part);
            for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(part), TopAbs_FACE); face.More();
                 face.Next()) {
                auto const & one = TopoDS::Face(face.Current());
                TopLoc_Location ignored;
                if (!left_out.Contains(one) && !BRep_Tool::Surface(one, ignored).IsNull()) {
                    add_edges(one, m_most, found->second);
                    add_inside(one, m_most, found->second);
                }
            }
        }
        return found->second;
    }

    sdkDocument const & m_document;
    bool m_hidden;
    int m_most;
    std::map<std::string, std::vector<gp_Pnt>> m_parts; // by their labels
};

} // namespace

std::vector<sdkSurfacePoint> sdk_surface_points(sdkDocument const & document, bool hidden, int most_of_a_face)
{
    PointCollector collector(document, hidden, most_of_a_face);
    for (auto const & label : document.free_shapes()) {
        collector.add(label, {});
    }
    return std::move(collector.points);
}

struct sdkMeshDistance::Tree {
    Mesh mesh;
};

sdkMeshDistance::sdkMeshDistance(sdkDocument const & document) : m_tree(std::make_unique<Tree>())
{
    auto const shape = sdk_whole_shape(document);
    if (shape.IsNull()) {
        return;
    }
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        TopLoc_Location location;
        auto const & mesh = BRep_Tool::Triangulation(TopoDS::Face(face.Current()), location);
        if (mesh.IsNull()) {
            continue;
        }
        int const base = static_cast<int>(m_tree->mesh.Vertices.size()) - 1;
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            auto const point = mesh->Node(node).Transformed(location.Transformation());
            m_tree->mesh.Vertices.emplace_back(point.X(), point.Y(), point.Z());
        }
        for (int number = 1; number <= mesh->NbTriangles(); ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            mesh->Triangle(number).Get(a, b, c);
            m_tree->mesh.Elements.emplace_back(base + a, base + b, base + c, 0);
        }
    }
    m_tree->mesh.MarkDirty();
    if (!empty()) {
        m_tree->mesh.BVH();
    }
}

sdkMeshDistance::~sdkMeshDistance() = default;

bool sdkMeshDistance::empty() const
{
    return m_tree->mesh.Elements.empty();
}

double sdkMeshDistance::of(gp_Pnt const & point) const
{
    if (empty()) {
        return std::numeric_limits<double>::infinity();
    }
    Nearest nearest;
    nearest.SetObject(Vector(point.X(), point.Y(), point.Z()));
    nearest.SetBVHSet(&m_tree->mesh);
    return std::sqrt(nearest.ComputeDistance());
}
