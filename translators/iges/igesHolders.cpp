#include "iges/igesHolders.h"

#include <IGESBasic_Group.hxx>
#include <IGESBasic_SubfigureDef.hxx>
#include <IGESData_HArray1OfIGESEntity.hxx>
#include <IGESSolid_Face.hxx>
#include <IGESSolid_HArray1OfFace.hxx>
#include <IGESSolid_Shell.hxx>
#include <TColStd_HArray1OfInteger.hxx>
#include <TCollection_HAsciiString.hxx>

#include <utility>
#include <vector>

namespace {

using Entity = Handle(IGESData_IGESEntity);
using Drop = std::function<bool(Entity const & member)>;

bool drop_faces(IGESSolid_Shell & shell, Drop const & drop)
{
    std::vector<std::pair<Handle(IGESSolid_Face), int>> kept;
    for (int at = 1; at <= shell.NbFaces(); ++at) {
        if (auto const & face = shell.Face(at); !face.IsNull() && !drop(face)) {
            kept.emplace_back(face, shell.Orientation(at) ? 1 : 0);
        }
    }
    if (kept.empty()) {
        return true;
    }
    auto const count = static_cast<int>(kept.size());
    Handle(IGESSolid_HArray1OfFace) const faces = new IGESSolid_HArray1OfFace(1, count);
    Handle(TColStd_HArray1OfInteger) const orientations = new TColStd_HArray1OfInteger(1, count);
    for (int at = 1; at <= count; ++at) {
        auto const & [face, orientation] = kept[static_cast<std::size_t>(at - 1)];
        faces->SetValue(at, face);
        orientations->SetValue(at, orientation);
    }
    bool const closed = shell.IsClosed();
    shell.Init(faces, orientations);
    shell.SetClosed(closed);
    return false;
}

// What is left of so many members.
template <class Member>
Handle(IGESData_HArray1OfIGESEntity) kept_of(int count, Member const & member, Drop const & drop)
{
    std::vector<Entity> kept;
    for (int at = 1; at <= count; ++at) {
        if (Entity const one = member(at); !one.IsNull() && !drop(one)) {
            kept.push_back(one);
        }
    }
    if (kept.empty()) {
        return {};
    }
    Handle(IGESData_HArray1OfIGESEntity) const array =
        new IGESData_HArray1OfIGESEntity(1, static_cast<int>(kept.size()));
    for (int at = 1; at <= array->Upper(); ++at) {
        array->SetValue(at, kept[static_cast<std::size_t>(at - 1)]);
    }
    return array;
}

} // namespace

bool iges_is_holder(Entity const & entity)
{
    return entity->IsKind(STANDARD_TYPE(IGESSolid_Shell)) || entity->IsKind(STANDARD_TYPE(IGESBasic_Group)) ||
           entity->IsKind(STANDARD_TYPE(IGESBasic_SubfigureDef));
}

bool iges_has_gaps(Entity const & entity)
{
    auto const shell = Handle(IGESSolid_Shell)::DownCast(entity);
    for (int at = 1; !shell.IsNull() && at <= shell->NbFaces(); ++at) {
        if (shell->Face(at).IsNull()) {
            return true;
        }
    }
    return false;
}

bool iges_drop_members(Entity const & holder, Drop const & drop)
{
    if (auto const shell = Handle(IGESSolid_Shell)::DownCast(holder); !shell.IsNull()) {
        return drop_faces(*shell, drop);
    }
    if (auto const group = Handle(IGESBasic_Group)::DownCast(holder); !group.IsNull()) {
        auto const kept = kept_of(
            group->NbEntities(), [&](int at) { return group->Entity(at); }, drop);
        if (!kept.IsNull()) {
            int const form = group->FormNumber();
            group->Init(kept);
            group->SetOrdered(form == 14 || form == 15);
            group->SetWithoutBackP(form == 7 || form == 15);
        }
        return kept.IsNull();
    }
    auto const definition = Handle(IGESBasic_SubfigureDef)::DownCast(holder);
    if (definition.IsNull()) {
        return false;
    }
    auto const kept = kept_of(
        definition->NbEntities(), [&](int at) { return definition->AssociatedEntity(at); }, drop);
    if (!kept.IsNull()) {
        definition->Init(definition->Depth(), definition->Name(), kept);
    }
    return kept.IsNull();
}
