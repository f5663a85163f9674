#include "sdk/geometry/sdkScale.h"

#include <BRepTools_Modifier.hxx>
#include <BRepTools_TrsfModification.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Polygon3D.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <TopAbs.hxx>
#include <TopTools_DataMapOfShapeShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Trsf.hxx>

namespace {

// Scales what the toolkit's own transformation leaves out: triangles, and faces that have nothing else.
class Scaling : public BRepTools_TrsfModification {
public:
    explicit Scaling(gp_Trsf const & transformation) : BRepTools_TrsfModification(transformation) {}

    Standard_Boolean NewSurface(TopoDS_Face const & face, Handle(Geom_Surface) & surface,
                                TopLoc_Location & location, Standard_Real & tolerance,
                                Standard_Boolean & wires_reversed, Standard_Boolean & face_reversed) override
    {
        if (BRep_Tool::Surface(face, location).IsNull()) {
            return Standard_False;
        }
        return BRepTools_TrsfModification::NewSurface(face, surface, location, tolerance, wires_reversed,
                                                      face_reversed);
    }

    Standard_Boolean NewTriangulation(TopoDS_Face const & face, Handle(Poly_Triangulation) & scaled) override
    {
        TopLoc_Location location;
        auto const & mesh = BRep_Tool::Triangulation(face, location);
        if (mesh.IsNull()) {
            return Standard_False;
        }
        scaled = mesh->Copy();
        scaled->Deflection(mesh->Deflection() * factor());
        for (int node = 1; node <= scaled->NbNodes(); ++node) {
            scaled->SetNode(node, mesh->Node(node).Scaled(centre(location), factor()));
        }
        return Standard_True;
    }

    Standard_Boolean NewPolygon(TopoDS_Edge const & edge, Handle(Poly_Polygon3D) & scaled) override
    {
        TopLoc_Location location;
        auto const & polygon = BRep_Tool::Polygon3D(edge, location);
        if (polygon.IsNull()) {
            return Standard_False;
        }
        scaled = polygon->Copy();
        scaled->Deflection(polygon->Deflection() * factor());
        for (auto & point : scaled->ChangeNodes()) {
            point.Scale(centre(location), factor());
        }
        return Standard_True;
    }

    Standard_Boolean NewPolygonOnTriangulation(TopoDS_Edge const & edge, TopoDS_Face const & face,
                                               Handle(Poly_PolygonOnTriangulation) & scaled) override
    {
        TopLoc_Location location;
        auto const & mesh = BRep_Tool::Triangulation(face, location);
        auto const & polygon = BRep_Tool::PolygonOnTriangulation(edge, mesh, location);
        if (mesh.IsNull() || polygon.IsNull()) {
            return Standard_False;
        }
        scaled = polygon->Copy();
        scaled->Deflection(polygon->Deflection() * factor());
        return Standard_True;
    }

private:
    double factor() { return Trsf().ScaleFactor(); }

    // The fixed point of the scaling as a shape at that place sees it.
    static gp_Pnt centre(TopLoc_Location const & location)
    {
        return gp_Pnt().Transformed(location.Transformation().Inverted());
    }
};

TopLoc_Location scaled_place(TopLoc_Location const & location, double factor)
{
    auto transformation = location.Transformation();
    transformation.SetTranslationPart(gp_Vec(transformation.TranslationPart() * factor));
    return TopLoc_Location(transformation);
}

// Members are scaled each in its own frame, as one that is used at several places must be scaled once.
class Scaler {
public:
    explicit Scaler(double factor) : m_factor(factor) {}

    TopoDS_Shape operator()(TopoDS_Shape const & shape)
    {
        auto const base = shape.Located(TopLoc_Location()).Oriented(TopAbs_FORWARD);
        TopoDS_Shape scaled;
        if (!m_done.Find(base, scaled)) {
            scaled = base.ShapeType() == TopAbs_COMPOUND ? compound(base) : modified(base);
            m_done.Bind(base, scaled);
        }
        auto result = scaled.Located(scaled_place(shape.Location(), m_factor));
        return result.Oriented(TopAbs::Compose(shape.Orientation(), scaled.Orientation()));
    }

private:
    TopoDS_Shape compound(TopoDS_Shape const & base)
    {
        BRep_Builder builder;
        TopoDS_Compound result;
        builder.MakeCompound(result);
        for (TopoDS_Iterator member(base); member.More(); member.Next()) {
            builder.Add(result, (*this)(member.Value()));
        }
        return result;
    }

    TopoDS_Shape modified(TopoDS_Shape const & base) const
    {
        gp_Trsf transformation;
        transformation.SetScale(gp_Pnt(), m_factor);
        Handle(Scaling) const scaling = new Scaling(transformation);
        BRepTools_Modifier const modifier(base, scaling);
        return modifier.ModifiedShape(base);
    }

    double m_factor;
    TopTools_DataMapOfShapeShape m_done;
};

} // namespace

TopoDS_Shape sdk_scaled(TopoDS_Shape const & shape, double factor)
{
    return shape.IsNull() || factor == 1.0 ? shape : Scaler(factor)(shape);
}
