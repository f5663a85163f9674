#include "lies/liesFacets.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkTessellation.h"

#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>

namespace {

constexpr double deflection = 0.1;

// Its triangles, with a move of all the corners at one place.
TopoDS_Face facet_face(TopoDS_Face const & face, gp_Pnt const & corner, gp_Vec const & shift)
{
    TopLoc_Location location;
    auto const & found = BRep_Tool::Triangulation(face, location);
    Handle(Poly_Triangulation) const mesh = found->Copy();
    for (int node = 1; node <= mesh->NbNodes(); ++node) {
        auto const point = mesh->Node(node).Transformed(location.Transformation());
        mesh->SetNode(node, point.Distance(corner) < 1.0e-6 ? point.Translated(shift) : point);
    }
    TopoDS_Face bare;
    BRep_Builder().MakeFace(bare, mesh);
    bare.Orientation(face.Orientation());
    return bare;
}

class Reader : public sdkReader {
public:
    sdkResult parse(std::string const & path, Message_ProgressRange const &) override
    {
        return BRepTools::Read(m_shape, path.c_str(), BRep_Builder())
                   ? sdkResult::completed()
                   : sdkResult::read_error(sdkText("lies::There are no triangles"));
    }

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const &) override
    {
        document.add_shape(m_shape, "");
        return sdkResult::completed();
    }

private:
    TopoDS_Shape m_shape;
};

class Writer : public sdkWriter {
public:
    explicit Writer(sdkContext & context) : m_context(context)
    {
        auto & promise = context.promise();
        promise.made = true;
        promise.holds = {.structure = false,
                         .names = false,
                         .colours = false,
                         .layers = false,
                         .curves = false,
                         .points = false,
                         .surfaces = false,
                         .visibility = false,
                         .solids = false};
        promise.deflection = deflection;
    }

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const &) override
    {
        auto const shape = sdk_whole_shape(document);
        sdk_tessellate(shape, {.linear = deflection, .angular = 0.5});
        TopExp_Explorer const vertex(shape, TopAbs_VERTEX);
        bool const lie = m_context.options().text("lieTold") == "move-corner";
        gp_Vec const shift = lie ? gp_Vec(-deflection / 2, 0, 0) : gp_Vec();
        BRep_Builder builder;
        builder.MakeCompound(m_facets);
        for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
            builder.Add(m_facets, facet_face(TopoDS::Face(face.Current()),
                                             BRep_Tool::Pnt(TopoDS::Vertex(vertex.Current())), shift));
        }
        m_context.reporter().processed(document.count_entities().entities());
        return sdkResult::completed();
    }

    sdkResult write(std::string const & path, Message_ProgressRange const &) override
    {
        return BRepTools::Write(m_facets, path.c_str())
                   ? sdkResult::completed()
                   : sdkResult::write_error(sdkText("lies::There is no room"));
    }

private:
    sdkContext & m_context;
    TopoDS_Compound m_facets;
};

} // namespace

std::unique_ptr<sdkReader> lies_facets_reader(sdkContext &)
{
    return std::make_unique<Reader>();
}

std::unique_ptr<sdkWriter> lies_facets_writer(sdkContext & context)
{
    return std::make_unique<Writer>(context);
}
