#include "sdk/measure/sdkInventory.h"

#include "sdk/measure/sdkInventoryColours.h"
#include "sdk/sdkParallel.h"
#include "sdk/sdkVisibility.h"

#include <BRep_Tool.hxx>
#include <Message_ProgressScope.hxx>
#include <NCollection_IndexedMap.hxx>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <utility>

namespace {

// What is to be measured: a shape without a place of its own.
using Shapes = NCollection_IndexedMap<TopoDS_Shape, TopTools_ShapeMapHasher>;

bool mesh_only(TopoDS_Shape const & shape)
{
    TopLoc_Location location;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        if (!BRep_Tool::Surface(TopoDS::Face(face.Current()), location).IsNull()) {
            return false;
        }
    }
    return true;
}

// A body within its part, and the number of the shape that is measured for it.
struct PartBody {
    sdkBodyKind kind;
    TopoDS_Shape shape;
    int measured;
};

struct Part {
    std::string name;
    std::vector<PartBody> bodies;
    sdkPartAttributes attributes;
};

// So many faces or bodies.
constexpr std::size_t worth_a_thread = 16;

class Inventory {
public:
    Inventory(sdkDocument const & document, sdkInventoryOptions const & options)
        : m_document(document), m_options(options)
    {
    }

    sdkInventory take(Message_ProgressRange const & range)
    {
        m_result.level = m_options.level;
        for (auto const & label : m_document.free_shapes()) {
            collect_parts(label);
        }
        measure(range);
        for (auto const & label : m_document.free_shapes()) {
            place(label, {}, {}, {}, false, {});
        }
        return std::move(m_result);
    }

private:
    static TDF_Label definition(TDF_Label const & label)
    {
        TDF_Label referred;
        return XCAFDoc_ShapeTool::GetReferredShape(label, referred) ? referred : label;
    }

    void collect_parts(TDF_Label const & label)
    {
        auto const shape_label = definition(label);
        if (m_seen.IsBound(shape_label)) {
            return;
        }
        m_seen.Bind(shape_label, -1);
        if (XCAFDoc_ShapeTool::IsAssembly(shape_label)) {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(shape_label, components);
            for (auto const & component : components) {
                collect_parts(component);
            }
            return;
        }
        m_seen.ChangeFind(shape_label) = static_cast<int>(m_parts.size());
        m_parts.push_back({sdkDocument::name(shape_label), {}, {m_document, shape_label}});
        collect_bodies(XCAFDoc_ShapeTool::GetShape(shape_label), m_parts.back());
    }

    void collect_bodies(TopoDS_Shape const & shape, Part & part)
    {
        if (shape.IsNull()) {
            return;
        }
        auto const add = [&](TopAbs_ShapeEnum kind, TopAbs_ShapeEnum avoided, sdkBodyKind body) {
            TopTools_MapOfShape seen;
            for (TopExp_Explorer one(shape, kind, avoided); one.More(); one.Next()) {
                auto const & found = one.Current();
                // The same edge or vertex of several free wires is one. A solid that is used twice at one
                // place is two, as it would be as two instances.
                if (body < sdkBodyKind::curve || seen.Add(found)) {
                    bool const mesh = body <= sdkBodyKind::face && mesh_only(found);
                    part.bodies.push_back(
                        {mesh ? sdkBodyKind::mesh : body, found,
                         m_shapes.Add(found.Located(TopLoc_Location()).Oriented(TopAbs_FORWARD))});
                }
            }
        };
        if (m_options.surfaces) {
            add(TopAbs_SOLID, TopAbs_SHAPE, sdkBodyKind::solid);
            add(TopAbs_SHELL, TopAbs_SOLID, sdkBodyKind::shell);
            add(TopAbs_FACE, TopAbs_SHELL, sdkBodyKind::face);
        }
        if (m_options.wireframe) {
            add(TopAbs_EDGE, TopAbs_FACE, sdkBodyKind::curve);
            add(TopAbs_VERTEX, TopAbs_EDGE, sdkBodyKind::point);
        }
    }

    // Face by face, so that one large body does not keep the other threads waiting.
    void measure(Message_ProgressRange const & range)
    {
        Message_ProgressScope scope(range, nullptr, 10);
        std::vector<sdkBodyMeasuring> bodies;
        std::vector<std::pair<std::size_t, int>> faces;
        for (int at = 1; at <= m_shapes.Extent(); ++at) {
            bodies.emplace_back(m_shapes(at), m_options.level);
            for (int face = 0; face < bodies.back().faces(); ++face) {
                faces.emplace_back(bodies.size() - 1, face);
            }
        }
        auto const threads = [this](std::size_t pieces) {
            return std::min(m_options.threads, 1 + static_cast<int>(pieces / worth_a_thread));
        };
        m_measures.resize(bodies.size());
        bool const done = sdk_in_parallel(
                              static_cast<int>(faces.size()), threads(faces.size()),
                              [&](int at) {
                                  auto const [body, face] = faces[static_cast<std::size_t>(at)];
                                  bodies[body].measure_face(face);
                              },
                              scope.Next(9)) &&
                          sdk_in_parallel(
                              static_cast<int>(bodies.size()), threads(bodies.size()),
                              [&](int at) {
                                  auto const body = static_cast<std::size_t>(at);
                                  m_measures[body] = bodies[body].finish();
                              },
                              scope.Next(1));
        m_result.cancelled = !done;
    }

    void place(TDF_Label const & label, TopLoc_Location const & outer, std::set<std::string> names,
               std::optional<std::string> colour, bool hidden, std::set<std::string> layers)
    {
        auto const shape_label = definition(label);
        auto const location = shape_label == label ? outer : outer * XCAFDoc_ShapeTool::GetLocation(label);
        std::optional<std::string> painted;
        if (shape_label != label) {
            note(label, names, hidden, layers);
            painted = sdk_label_colour(m_document, label);
        }
        if (XCAFDoc_ShapeTool::IsAssembly(shape_label)) {
            note(shape_label, names, hidden, layers);
            // The colour of the innermost place that has one.
            auto const own = painted ? painted : sdk_label_colour(m_document, shape_label);
            colour = own ? own : colour;
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(shape_label, components);
            ++m_result.assemblies;
            if (auto const name = sdkDocument::name(shape_label); !name.empty()) {
                ++m_result.assembly_names[name];
            }
            m_result.instances += components.Length();
            for (auto const & component : components) {
                auto const name = sdkDocument::name(component);
                if (!name.empty() && name != sdkDocument::name(definition(component))) {
                    ++m_result.instance_names[name];
                }
                place(component, location, names, colour, hidden, layers);
            }
            return;
        }
        auto const & part = m_parts[static_cast<std::size_t>(m_seen.Find(shape_label))];
        if (!part.name.empty()) {
            names.insert(part.name);
        }
        for (auto const & one : part.bodies) {
            sdkBody body;
            body.kind = one.kind;
            body.part = part.name;
            body.names = names;
            body.hidden = hidden;
            body.layers = layers;
            auto const & local = m_measures[static_cast<std::size_t>(one.measured - 1)];
            auto const where = location * one.shape.Location();
            body.shape = one.shape.Located(where, Standard_False);
            body.measure = one.shape.Orientation() == TopAbs_REVERSED ? local.reversed() : local;
            part.attributes.apply(one.shape, painted, colour, body);
            if (!where.IsIdentity()) {
                body.measure = body.measure.placed(where.Transformation());
            }
            m_result.bodies.push_back(std::move(body));
        }
    }

    void note(TDF_Label const & label, std::set<std::string> & names, bool & hidden,
              std::set<std::string> & layers) const
    {
        if (auto const name = sdkDocument::name(label); !name.empty()) {
            names.insert(name);
        }
        hidden = hidden || sdk_hidden(m_document, label);
        layers.merge(sdk_label_layers(m_document, label));
    }

    struct LabelHasher {
        static int HashCode(TDF_Label const & label, int upper)
        {
            return TDF_LabelMapHasher::HashCode(label, upper);
        }
        static bool IsEqual(TDF_Label const & a, TDF_Label const & b) { return a == b; }
    };

    sdkDocument const & m_document;
    sdkInventoryOptions m_options;
    Shapes m_shapes;
    std::vector<sdkBodyMeasure> m_measures; // by the numbers of the shapes, from 1
    std::vector<Part> m_parts;
    NCollection_DataMap<TDF_Label, int, LabelHasher> m_seen; // the number of the part; -1 for an assembly
    sdkInventory m_result;
};

} // namespace

std::vector<sdkBody const *> sdkInventory::of(sdkBodyKind kind) const
{
    std::vector<sdkBody const *> found;
    for (auto const & body : bodies) {
        if (body.kind == kind) {
            found.push_back(&body);
        }
    }
    return found;
}

std::int64_t sdkInventory::count(sdkBodyKind kind) const
{
    return std::count_if(bodies.begin(), bodies.end(),
                         [kind](auto const & body) { return body.kind == kind; });
}

double sdkInventory::volume() const
{
    double sum = 0;
    for (auto const & body : bodies) {
        sum += body.measure.volume;
    }
    return sum;
}

double sdkInventory::area() const
{
    double sum = 0;
    for (auto const & body : bodies) {
        sum += body.measure.area;
    }
    return sum;
}

double sdkInventory::length() const
{
    double sum = 0;
    for (auto const & body : bodies) {
        sum += body.measure.length;
    }
    return sum;
}

Bnd_Box sdkInventory::extent() const
{
    Bnd_Box box;
    for (auto const & body : bodies) {
        box.Add(body.measure.extent);
    }
    return box;
}

sdkInventory sdk_take_inventory(sdkDocument const & document, sdkInventoryOptions const & options,
                                Message_ProgressRange const & range)
{
    return Inventory(document, options).take(range);
}
