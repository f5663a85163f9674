#include "sdk/exchange/sdkShapeProcessing.h"

#include "sdk/exchange/sdkCurvesOnSurfaces.h"
#include "sdk/exchange/sdkOpenBoundaries.h"
#include "sdk/exchange/sdkSphereBounds.h"
#include "sdk/sdkAccount.h"
#include "sdk/sdkContext.h"

#include <BRep_Tool.hxx>
#include <Geom_ConicalSurface.hxx>
#include <Geom_ElementarySurface.hxx>
#include <Geom_OffsetSurface.hxx>
#include <Geom_RectangularTrimmedSurface.hxx>
#include <ShapeExtend_MsgRegistrator.hxx>
#include <ShapeProcess_ShapeContext.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_DataMapOfShapeShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <XSAlgo.hxx>
#include <XSAlgo_AlgoContainer.hxx>

#include <string_view>

namespace {

// Elementary surfaces with left-handed axes, and cones that narrow along their axis, must be described anew
// before they are written: neither format has a place for them.
bool needs_another_description(Handle(Geom_Surface) surface)
{
    for (;;) {
        if (auto const trimmed = Handle(Geom_RectangularTrimmedSurface)::DownCast(surface);
            !trimmed.IsNull()) {
            surface = trimmed->BasisSurface();
        } else if (auto const offset = Handle(Geom_OffsetSurface)::DownCast(surface); !offset.IsNull()) {
            surface = offset->BasisSurface();
        } else {
            break;
        }
    }
    if (auto const cone = Handle(Geom_ConicalSurface)::DownCast(surface);
        !cone.IsNull() && cone->SemiAngle() < 0) {
        return true;
    }
    auto const elementary = Handle(Geom_ElementarySurface)::DownCast(surface);
    return !elementary.IsNull() && !elementary->Position().Direct();
}

bool has_surface_to_describe_anew(TopoDS_Shape const & shape)
{
    TopLoc_Location location;
    for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
        if (needs_another_description(BRep_Tool::Surface(TopoDS::Face(explorer.Current()), location))) {
            return true;
        }
    }
    return false;
}

class Container : public XSAlgo_AlgoContainer {
public:
    explicit Container(sdkHealing reading) : m_reading(reading) {}

    TopoDS_Shape ProcessShape(TopoDS_Shape const & shape, Standard_Real precision, Standard_Real tolerance,
                              Standard_CString resource_file, Standard_CString sequence,
                              Handle(Standard_Transient) & info, Message_ProgressRange const & range,
                              Standard_Boolean non_manifold) const override
    {
        bool const writing = std::string_view(sequence).starts_with("write.");
        if (writing) {
            m_curves_on_surfaces.choose_for(shape);
        }
        if (writing ? !has_surface_to_describe_anew(shape) : m_reading == sdkHealing::none) {
            return shape;
        }
        if (!writing && m_reading == sdkHealing::boundaries) {
            return close_boundaries(shape, precision, tolerance, resource_file, info);
        }
        auto const heal = [&](TopoDS_Shape const & one) {
            return XSAlgo_AlgoContainer::ProcessShape(one, precision, tolerance, resource_file, sequence,
                                                      info, range, non_manifold);
        };
        // Of IGES nobody knows whether a loop runs the right way round.
        auto const bounds = std::string_view(sequence).starts_with("read.step.")
                                ? sdk_add_sphere_bounds(shape, precision, tolerance)
                                : Handle(ShapeBuild_ReShape)();
        if (bounds.IsNull()) {
            return heal(shape);
        }
        auto const healed = heal(bounds->Apply(shape));
        auto const more = Handle(ShapeProcess_ShapeContext)::DownCast(info);
        info = record_of(shape, bounds, more, healed, resource_file);
        return healed;
    }

private:
    // From it the library takes what names and colours of faces move to. Both changes in one: those that are
    // recorded one after the other are not followed to their end.
    static Handle(ShapeProcess_ShapeContext)
        record_of(TopoDS_Shape const & shape, Handle(ShapeBuild_ReShape) const & changes,
                  Handle(ShapeProcess_ShapeContext) const & more, TopoDS_Shape const & result,
                  Standard_CString resource_file)
    {
        TopTools_IndexedMapOfShape all;
        TopExp::MapShapes(shape, all);
        TopTools_DataMapOfShapeShape whole;
        for (int at = 1; at <= all.Extent(); ++at) {
            auto after = changes->Apply(all(at));
            if (!more.IsNull() && more->Map().IsBound(after)) {
                after = more->Map().Find(after);
            }
            if (!after.IsSame(all(at))) {
                whole.Bind(all(at), after);
            }
        }
        Handle(ShapeProcess_ShapeContext) const record = new ShapeProcess_ShapeContext(shape, resource_file);
        record->RecordModification(whole);
        record->SetResult(result);
        return record;
    }

    static TopoDS_Shape close_boundaries(TopoDS_Shape const & shape, double precision, double tolerance,
                                         Standard_CString resource_file, Handle(Standard_Transient) & info)
    {
        auto const changes = sdk_close_boundaries(shape, precision, tolerance);
        if (changes.IsNull()) {
            return shape;
        }
        auto const closed = changes->Apply(shape);
        info = record_of(shape, changes, nullptr, closed, resource_file);
        return closed;
    }

    sdkHealing m_reading;
    // What is chosen for one shape lasts until the next.
    sdkCurvesOnSurfaces mutable m_curves_on_surfaces;
};

} // namespace

sdkHealing sdk_reading_healing(sdkContext & context, char const * option)
{
    if (context.options().boolean(option)) {
        return sdkHealing::standard;
    }
    return context.account().read_back() ? sdkHealing::boundaries : sdkHealing::none;
}

sdkShapeProcessing::sdkShapeProcessing(sdkHealing reading) : m_old(XSAlgo::AlgoContainer())
{
    XSAlgo::SetAlgoContainer(new Container(reading));
}

sdkShapeProcessing::~sdkShapeProcessing()
{
    XSAlgo::SetAlgoContainer(m_old);
}
