#include "sdk/geometry/sdkMassProperties.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

namespace {

gp_XYZ moment(GProp_GProps const & properties)
{
    return properties.CentreOfMass().XYZ() * properties.Mass();
}

void add_faces(TopoDS_Shape const & shape, TopAbs_ShapeEnum avoided, sdkMassProperties & sum)
{
    for (TopExp_Explorer face(shape, TopAbs_FACE, avoided); face.More(); face.Next()) {
        GProp_GProps properties;
        BRepGProp::SurfaceProperties(face.Current(), properties);
        sum.area += properties.Mass();
        sum.area_moment += moment(properties);
        ++sum.faces;
    }
}

} // namespace

bool sdkMassProperties::finite() const
{
    auto const usable = [](double number) { return std::isfinite(number) && !Precision::IsInfinite(number); };
    return usable(volume) && usable(area) && usable(volume_moment.Modulus()) && usable(area_moment.Modulus());
}

std::optional<gp_Pnt> sdkMassProperties::centroid() const
{
    if (volume != 0) {
        return gp_Pnt(volume_moment / volume);
    }
    return area != 0 ? std::optional(gp_Pnt(area_moment / area)) : std::nullopt;
}

void sdkMassProperties::add(sdkMassProperties const & other, gp_Trsf const & placement)
{
    double const scale = std::abs(placement.ScaleFactor());
    auto const moved = [&](gp_XYZ const & other_moment, double amount, double factor) {
        if (amount == 0) {
            return gp_XYZ(0, 0, 0);
        }
        return gp_Pnt(other_moment / amount).Transformed(placement).XYZ() * amount * factor;
    };
    volume_moment += moved(other.volume_moment, other.volume, scale * scale * scale);
    area_moment += moved(other.area_moment, other.area, scale * scale);
    volume += other.volume * scale * scale * scale;
    area += other.area * scale * scale;
    solid_area += other.solid_area * scale * scale;
    solids += other.solids;
    faces += other.faces;
    if (!other.box.IsVoid()) {
        box.Add(other.box.Transformed(placement));
    }
}

sdkMassProperties sdk_mass_properties(TopoDS_Shape const & shape)
{
    sdkMassProperties sum;
    if (shape.IsNull()) {
        return sum;
    }
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
        GProp_GProps properties;
        BRepGProp::VolumeProperties(solid.Current(), properties);
        sum.volume += properties.Mass();
        sum.volume_moment += moment(properties);
        ++sum.solids;
        add_faces(solid.Current(), TopAbs_SHAPE, sum);
    }
    sum.solid_area = sum.area;
    add_faces(shape, TopAbs_SOLID, sum);
    BRepBndLib::Add(shape, sum.box, Standard_False);
    return sum;
}

sdkMassProperties sdkMassPropertiesOfLabels::of(TDF_Label const & label)
{
    if (label.IsNull()) {
        return {};
    }
    TDF_Label referred;
    if (XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
        sdkMassProperties placed;
        placed.add(of(referred), XCAFDoc_ShapeTool::GetLocation(label).Transformation());
        return placed;
    }
    if (auto const * const known = m_known.Seek(label)) {
        return *known;
    }
    sdkMassProperties properties;
    TDF_LabelSequence components;
    if (XCAFDoc_ShapeTool::IsAssembly(label) && XCAFDoc_ShapeTool::GetComponents(label, components)) {
        for (auto const & component : components) {
            properties.add(of(component), gp_Trsf());
        }
    } else {
        properties = sdk_mass_properties(XCAFDoc_ShapeTool::GetShape(label));
    }
    m_known.Bind(label, properties);
    return properties;
}
