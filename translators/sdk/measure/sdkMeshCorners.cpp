#include "sdk/measure/sdkMeshCorners.h"

#include "sdk/geometry/sdkPointText.h"
#include "sdk/measure/sdkSurfaceDistance.h"
#include "sdk/measure/sdkSurfaceSearch.h"

#include <BRepBndLib.hxx>
#include <BRep_Tool.hxx>
#include <BVH_BoxSet.hxx>
#include <BVH_Traverse.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <tuple>
#include <utility>

namespace {

// Relative to the size of the source, and to the coordinates, which have single precision.
constexpr double of_size = 1.0e-6;
constexpr double of_coordinates = 2.0e-7;

double edge_tolerance(TopoDS_Face const & face)
{
    double largest = BRep_Tool::Tolerance(face);
    for (TopExp_Explorer edge(face, TopAbs_EDGE); edge.More(); edge.Next()) {
        largest = std::max(largest, BRep_Tool::Tolerance(TopoDS::Edge(edge.Current())));
    }
    for (TopExp_Explorer vertex(face, TopAbs_VERTEX); vertex.More(); vertex.Next()) {
        largest = std::max(largest, BRep_Tool::Tolerance(TopoDS::Vertex(vertex.Current())));
    }
    return largest;
}

// A surface of the source that corners may lie on.
class Ground {
public:
    Ground(TopoDS_Face const & face, double allowed) : m_face(face), m_distance(face), m_allowed(allowed) {}

    bool exact() const { return m_distance.exact(); }
    double allowed() const { return m_allowed; }

    // Of a free-form surface, when it is not thorough, too large for a few points.
    double distance(gp_Pnt const & point, bool thorough)
    {
        if (exact()) {
            return m_distance.of(point);
        }
        if (!m_search) {
            m_search.emplace(m_face, m_allowed);
        }
        return thorough ? m_search->thorough(point) : m_search->quick(point);
    }

private:
    TopoDS_Face m_face;
    sdkSurfaceDistance m_distance;
    double m_allowed;
    std::optional<sdkSurfaceSearch> m_search; // made when first needed
};

using Boxes = BVH_BoxSet<double, 3, int>;
using Vector = BVH_Vec3d;

// Nobody asks for a distance, but the library copies one about.
class Around : public BVH_Traverse<double, 3, Boxes, double> {
public:
    Around(Vector const & point, std::vector<int> & found) : m_point(point), m_found(found) {}

    Standard_Boolean RejectNode(Vector const & low, Vector const & high, double &) const override
    {
        return m_point.x() < low.x() || m_point.y() < low.y() || m_point.z() < low.z() ||
               m_point.x() > high.x() || m_point.y() > high.y() || m_point.z() > high.z();
    }

    Standard_Boolean Accept(Standard_Integer const index, double const &) override
    {
        auto const box = myBVHSet->Box(index);
        double ignored = 0;
        if (!RejectNode(box.CornerMin(), box.CornerMax(), ignored)) {
            m_found.push_back(myBVHSet->Element(index));
        }
        return Standard_True;
    }

private:
    Vector m_point;
    std::vector<int> & m_found;
};

class Grounds {
public:
    explicit Grounds(sdkInventory const & source)
    {
        auto const extent = source.extent();
        double reach = 0;
        double size = 0;
        if (!extent.IsVoid()) {
            size = std::sqrt(extent.SquareExtent());
            reach = std::max(extent.CornerMin().XYZ().Modulus(), extent.CornerMax().XYZ().Modulus());
        }
        m_rounding = of_size * size + of_coordinates * reach;
        for (auto const & body : source.bodies) {
            for (TopExp_Explorer one(body.shape, TopAbs_FACE); body.kind < sdkBodyKind::mesh && one.More();
                 one.Next()) {
                // The corners along an edge lie on its curve.
                add(TopoDS::Face(one.Current()), 1.01 * body.measure.edge_deviation);
            }
        }
        if (!m_grounds.empty()) {
            m_boxes.Build();
        }
    }

    bool empty() const { return m_grounds.empty(); }
    Ground & at(int number) { return *m_grounds[static_cast<std::size_t>(number)]; }

    // The numbers of those that a point may lie on, in rising order.
    std::vector<int> around(gp_Pnt const & point)
    {
        std::vector<int> found = m_endless;
        Around around(Vector(point.X(), point.Y(), point.Z()), found);
        around.SetBVHSet(&m_boxes);
        around.Select();
        std::sort(found.begin(), found.end());
        return found;
    }

private:
    void add(TopoDS_Face const & face, double edge_deviation)
    {
        TopLoc_Location location;
        if (BRep_Tool::Surface(face, location).IsNull()) {
            return;
        }
        int const number = static_cast<int>(m_grounds.size());
        m_grounds.push_back(
            std::make_unique<Ground>(face, m_rounding + std::max(edge_tolerance(face), edge_deviation)));
        Bnd_Box box;
        BRepBndLib::Add(face, box, Standard_False);
        if (box.IsVoid() || box.IsOpen()) {
            m_endless.push_back(number);
            return;
        }
        // Swept surfaces may reach a little beyond what the library takes for their box.
        box.Enlarge(m_grounds.back()->allowed() + 0.1 * std::sqrt(box.SquareExtent()));
        auto const low = box.CornerMin();
        auto const high = box.CornerMax();
        m_boxes.Add(number, BVH_Box<double, 3>(Vector(low.X(), low.Y(), low.Z()),
                                               Vector(high.X(), high.Y(), high.Z())));
    }

    double m_rounding = 0;
    std::vector<std::unique_ptr<Ground>> m_grounds;
    std::vector<int> m_endless;
    Boxes m_boxes;
};

struct Stray {
    std::int64_t triangles = 0;
    double distance = 0; // of the first
    gp_Pnt point;
};

// The triangles of one face of the output.
class Corners {
public:
    Corners(Handle(Poly_Triangulation) const & mesh, gp_Trsf const & place, Grounds & grounds)
        : m_mesh(mesh), m_grounds(grounds)
    {
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            m_points.push_back(mesh->Node(node).Transformed(place));
        }
        m_around.resize(m_points.size());
    }

    void look(Stray & stray)
    {
        for (int number = 1; number <= m_mesh->NbTriangles(); ++number) {
            std::array<int, 3> nodes{};
            m_mesh->Triangle(number).Get(nodes[0], nodes[1], nodes[2]);
            if (!on_one_surface(nodes) && ++stray.triangles == 1) {
                tell(nodes, stray);
            }
        }
    }

private:
    std::vector<int> const & around(int node)
    {
        auto & found = m_around[static_cast<std::size_t>(node - 1)];
        if (!found) {
            found = m_grounds.around(point(node));
            // What lies near a surface of which the distance is quick to tell, but not on it, is out of
            // question.
            std::erase_if(*found, [&](int number) {
                auto & ground = m_grounds.at(number);
                return ground.exact() && !(ground.distance(point(node), false) <= ground.allowed());
            });
        }
        return *found;
    }

    gp_Pnt const & point(int node) const { return m_points[static_cast<std::size_t>(node - 1)]; }

    bool lies_on(int node, int number, bool thorough)
    {
        auto & ground = m_grounds.at(number);
        if (ground.exact()) {
            return true; // else it would not be around
        }
        if (thorough && lies_on(node, number, false)) {
            return true;
        }
        auto const [found, added] = m_searched.try_emplace({node, number, thorough}, false);
        if (added) {
            found->second = ground.distance(point(node), thorough) <= ground.allowed();
        }
        return found->second;
    }

    bool on_one_surface(std::array<int, 3> const & nodes)
    {
        std::array<std::vector<int> const *, 3> const sets{&around(nodes[0]), &around(nodes[1]),
                                                           &around(nodes[2])};
        std::vector<int> common;
        for (int const number : *sets[0]) {
            if (std::binary_search(sets[1]->begin(), sets[1]->end(), number) &&
                std::binary_search(sets[2]->begin(), sets[2]->end(), number)) {
                common.push_back(number);
            }
        }
        // First where it is quick to tell.
        if (std::any_of(common.begin(), common.end(),
                        [&](int number) { return m_grounds.at(number).exact(); })) {
            return true;
        }
        // Then on that of the triangle before, which mostly is a neighbour.
        if (auto const latest = std::find(common.begin(), common.end(), m_latest); latest != common.end()) {
            std::iter_swap(common.begin(), latest);
        }
        for (bool const thorough : {false, true}) {
            for (int const number : common) {
                if (std::all_of(nodes.begin(), nodes.end(),
                                [&](int node) { return lies_on(node, number, thorough); })) {
                    m_latest = number;
                    return true;
                }
            }
        }
        return false;
    }

    void tell(std::array<int, 3> const & nodes, Stray & stray)
    {
        stray.distance = std::numeric_limits<double>::infinity();
        stray.point = point(nodes[0]);
        std::vector<int> near;
        for (int const node : nodes) {
            auto const found = m_grounds.around(point(node));
            near.insert(near.end(), found.begin(), found.end());
        }
        for (int const number : near) {
            double farthest = 0;
            gp_Pnt at;
            for (int const node : nodes) {
                double const distance = std::min(m_grounds.at(number).distance(point(node), false),
                                                 m_grounds.at(number).distance(point(node), true));
                if (!(distance <= farthest)) {
                    farthest = distance;
                    at = point(node);
                }
            }
            if (farthest < stray.distance) {
                stray.distance = farthest;
                stray.point = at;
            }
        }
    }

    Handle(Poly_Triangulation) m_mesh;
    Grounds & m_grounds;
    std::vector<gp_Pnt> m_points;
    std::vector<std::optional<std::vector<int>>> m_around; // per node
    // Of a node, a ground, and a search that is thorough or not: whether it lies on it.
    std::map<std::tuple<int, int, bool>, bool> m_searched;
    int m_latest = -1; // the ground of the latest triangle
};

} // namespace

void sdk_compare_mesh_corners(sdkInventory const & source, sdkInventory const & output,
                              std::vector<sdkFinding> & findings)
{
    if (source.count(sdkBodyKind::mesh) > 0) {
        return;
    }
    Grounds grounds(source);
    if (grounds.empty()) {
        return;
    }
    Stray stray;
    for (auto const & body : output.bodies) {
        for (TopExp_Explorer one(body.shape, TopAbs_FACE); body.kind == sdkBodyKind::mesh && one.More();
             one.Next()) {
            TopLoc_Location location;
            auto const & mesh = BRep_Tool::Triangulation(TopoDS::Face(one.Current()), location);
            if (!mesh.IsNull()) {
                Corners(mesh, location.Transformation(), grounds).look(stray);
            }
        }
    }
    if (stray.triangles > 0) {
        auto const place = sdk_point_text(stray.point);
        findings.push_back(
            {sdkWeight::difference,
             "corner",
             {},
             place,
             0,
             stray.distance,
             sdkText("measure::%d triangles have corners that do not lie on one surface of the "
                     "source; the first is %.6g mm off, at %s",
                     stray.triangles, stray.distance, place)});
    }
}
