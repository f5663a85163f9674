#include "iges/igesVisibility.h"

#include "iges/igesInstances.h"
#include "iges/igesKinds.h"
#include "sdk/sdkVisibility.h"

#include <IGESData_IGESModel.hxx>
#include <Interface_ShareFlags.hxx>
#include <TColStd_MapOfTransient.hxx>
#include <TopoDS_Iterator.hxx>
#include <TransferBRep.hxx>
#include <TransferBRep_ShapeMapper.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_FinderProcess.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <functional>

namespace {

using Entity = Handle(IGESData_IGESEntity);

// The label of a shape: of a free shape, or within one, where it gets a label if it has none.
TDF_Label label_of(TopoDS_Shape const & shape, sdkDocument & document)
{
    TDF_Label label;
    if (document.shapes()->Search(shape, label)) {
        return label;
    }
    for (auto const & part : document.parts()) {
        if (document.shapes()->AddSubShape(part, shape, label)) {
            return label;
        }
    }
    return {};
}

void blank(Entity const & entity)
{
    entity->InitStatus(1, entity->SubordinateStatus(), entity->UseFlag(), entity->HierarchyStatus());
    for (auto const & member : iges_members(entity)) {
        blank(member);
    }
}

// True when all of the shape has entities, which are blanked now.
bool blank(TopoDS_Shape const & shape, Handle(Transfer_FinderProcess) const & process)
{
    Handle(Standard_Transient) found;
    auto const mapper = TransferBRep::ShapeMapper(process, shape);
    if (process->FindTypedTransient(mapper, STANDARD_TYPE(IGESData_IGESEntity), found)) {
        blank(Entity::DownCast(found));
        return true;
    }
    bool whole = shape.ShapeType() == TopAbs_COMPOUND;
    for (TopoDS_Iterator member(shape); whole && member.More(); member.Next()) {
        whole = blank(member.Value(), process);
    }
    return whole;
}

} // namespace

std::int64_t iges_hide_blanked(Handle(XSControl_WorkSession) const & session, sdkDocument & document)
{
    auto const process = session->TransferReader()->TransientProcess();
    std::int64_t roots = 0;
    TColStd_MapOfTransient seen;
    std::function<bool(Entity const &)> const hide = [&](Entity const & entity) {
        if (!seen.Add(entity)) {
            return false;
        }
        if (entity->BlankStatus() != 0) {
            if (auto const shape = TransferBRep::ShapeResult(process->Find(entity)); !shape.IsNull()) {
                sdk_hide(document, label_of(shape, document));
            }
            return true;
        }
        for (auto const & member : iges_members(entity)) {
            hide(member);
        }
        return false;
    };
    auto const model = Handle(IGESData_IGESModel)::DownCast(session->Model());
    Interface_ShareFlags const used(session->Graph());
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const entity = model->Entity(number);
        bool const geometry = iges_kind(entity) || !iges_members(entity).empty();
        if (geometry && !used.IsShared(entity)) {
            roots += hide(entity) ? 1 : 0;
        }
    }
    return roots;
}

std::int64_t iges_blank_hidden(sdkDocument const & document, Handle(Transfer_FinderProcess) const & process)
{
    std::int64_t visible = 0;
    for (auto const & label : sdk_hidden_labels(document)) {
        visible += blank(XCAFDoc_ShapeTool::GetShape(label), process) ? 0 : 1;
    }
    return visible;
}
