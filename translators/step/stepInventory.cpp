#include "step/stepInventory.h"

#include "step/stepSolids.h"

#include <IFSelect_Signature.hxx>
#include <Interface_Check.hxx>
#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <StepGeom_Curve.hxx>
#include <StepGeom_Placement.hxx>
#include <StepGeom_Point.hxx>
#include <StepGeom_Surface.hxx>
#include <StepRepr_MappedItem.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <StepRepr_RepresentationRelationship.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_EdgeBasedWireframeModel.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_FaceBasedSurfaceModel.hxx>
#include <StepShape_GeometricSet.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopoDS_Iterator.hxx>
#include <TransferBRep.hxx>
#include <Transfer_Binder.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <utility>

namespace {

std::string name_of(Handle(Standard_Transient) const & entity)
{
    auto const item = Handle(StepRepr_RepresentationItem)::DownCast(entity);
    return item.IsNull() || item->Name().IsNull() ? std::string() : std::string(item->Name()->ToCString());
}

bool is_surface_model(Handle(Standard_Transient) const & entity)
{
    return entity->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_FaceBasedSurfaceModel)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_ConnectedFaceSet)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_Face));
}

} // namespace

stepInventory::stepInventory(Handle(XSControl_WorkSession) const & session, stepTextualLinks const & links,
                             std::string file, sdkContext & context)
    : m_session(session), m_process(session->TransferReader()->TransientProcess()), m_links(links),
      m_file(std::move(file)), m_context(context), m_products(session->Model())
{
    auto const model = session->Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const relation = Handle(StepRepr_RepresentationRelationship)::DownCast(model->Value(number));
        if (!relation.IsNull() && !relation->Rep1().IsNull() && !relation->Rep2().IsNull()) {
            m_related.emplace(relation->Rep1().get(), relation->Rep2());
            m_related.emplace(relation->Rep2().get(), relation->Rep1());
        }
    }
}

void stepInventory::take(std::vector<Entity> const & roots)
{
    m_context.account().holds(sdkSourceKind::root, static_cast<std::int64_t>(roots.size()));
    take_faces();
    take_gaps();
    take_product_shapes();
    take_lone_shapes();
    for (auto const & root : roots) {
        take_root(root);
    }
}

void stepInventory::take_faces()
{
    for (int number = 1; number <= m_process->NbMapped(); ++number) {
        auto const & entity = m_process->Mapped(number);
        auto const binder = m_process->MapItem(number);
        if (!entity.IsNull() && !binder.IsNull() && !binder->HasResult() &&
            entity->IsKind(STANDARD_TYPE(StepShape_Face))) {
            lose(entity);
        }
    }
}

void stepInventory::take_gaps()
{
    for (auto const & gap : m_links.gaps()) {
        m_lost.insert(gap.holder.get());
        if (!gap.target.IsNull()) {
            lose(gap.target);
            continue;
        }
        std::string const place = "#" + std::to_string(gap.number);
        m_context.reporter().failed(1);
        m_context.account().add(
            {.weight = sdkWeight::loss,
             .kind = "not-translated",
             .part = {},
             .place = place,
             .text =
                 sdkText("step::%s, %s: the file does not have this entity, to which %s %s refers; export "
                         "the file again",
                         m_file, place, label(gap.holder), kind(gap.holder))});
    }
}

void stepInventory::take_product_shapes()
{
    auto const model = m_session->Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const shape = Handle(StepRepr_Representation)::DownCast(model->Value(number));
        if (shape.IsNull()) {
            continue;
        }
        if (auto const product = m_products.product_of(shape); !product.IsNull()) {
            m_part = stepProducts::name(product);
            take_representation(shape);
        }
    }
    m_part.clear();
}

void stepInventory::take_lone_shapes()
{
    auto const & graph = m_session->Graph();
    auto const model = m_session->Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const shape = Handle(StepShape_ShapeRepresentation)::DownCast(model->Value(number));
        if (!shape.IsNull() && m_seen.count(shape.get()) == 0 && graph.Sharings(shape).NbEntities() == 0) {
            take_representation(shape);
        }
    }
}

void stepInventory::take_root(Entity const & root)
{
    auto const definition = Handle(StepBasic_ProductDefinition)::DownCast(root);
    if (definition.IsNull() || has_shape(root)) {
        return;
    }
    // A product may have no shape; one whose shape has a loss of its own is told of already.
    if (m_products.has_unknown_shape(definition)) {
        m_part = stepProducts::name(definition);
        lose(root);
        m_part.clear();
    }
}

void stepInventory::take_representation(Representation const & representation)
{
    // What belongs together is gathered first: chains of relations may be longer than the stack is deep.
    std::vector<Representation> waiting{representation};
    while (!waiting.empty()) {
        auto const current = waiting.back();
        waiting.pop_back();
        auto const product = m_products.product_of(current);
        bool const foreign = current != representation && !product.IsNull();
        if (current.IsNull() || foreign || !m_seen.insert(current.get()).second) {
            continue;
        }
        auto const related = m_related.equal_range(current.get());
        for (auto other = related.first; other != related.second; ++other) {
            waiting.push_back(other->second);
        }
        for (int index = 1; !current->Items().IsNull() && index <= current->NbItems(); ++index) {
            auto const mapped = Handle(StepRepr_MappedItem)::DownCast(current->ItemsValue(index));
            if (!mapped.IsNull() && !mapped->MappingSource().IsNull()) {
                waiting.push_back(mapped->MappingSource()->MappedRepresentation());
            }
            take_item(current->ItemsValue(index));
        }
    }
}

void stepInventory::take_item(Handle(StepRepr_RepresentationItem) const & item)
{
    if (item.IsNull() || item->IsKind(STANDARD_TYPE(StepGeom_Placement)) ||
        !m_seen.insert(item.get()).second) {
        return;
    }
    if (stepSolids::is_solid(item)) {
        m_context.account().holds(sdkSourceKind::solid);
        take_parts(item);
    } else if (is_surface_model(item)) {
        take_parts(item);
    } else if (item->IsKind(STANDARD_TYPE(StepShape_GeometricSet))) {
        for (auto elements = m_session->Graph().Shareds(item); elements.More(); elements.Next()) {
            take_geometry(elements.Value());
        }
    } else if (item->IsKind(STANDARD_TYPE(StepRepr_MappedItem)) ||
               item->IsKind(STANDARD_TYPE(StepShape_EdgeBasedWireframeModel))) {
        if (!has_shape(item) && m_process->IsBound(item)) {
            lose(item);
        }
    } else {
        take_geometry(item);
    }
}

// Counts the shells and faces of a body, and loses it when it has no shape and none of its faces says why.
void stepInventory::take_parts(Entity const & item)
{
    bool face_lost = false;
    std::vector<Entity> waiting{item};
    while (!waiting.empty()) {
        auto const current = waiting.back();
        waiting.pop_back();
        if (current->IsKind(STANDARD_TYPE(StepShape_Face))) {
            face_lost = face_lost || has_lost(current);
            m_context.account().holds(sdkSourceKind::face);
            continue;
        }
        if (current->IsKind(STANDARD_TYPE(StepShape_ConnectedFaceSet))) {
            m_context.account().holds(sdkSourceKind::shell);
        }
        for (auto parts = m_session->Graph().Shareds(current); parts.More(); parts.Next()) {
            auto const & part = parts.Value();
            if ((is_surface_model(part) || stepSolids::is_solid(part)) && m_seen.insert(part.get()).second) {
                waiting.push_back(part);
            }
        }
    }
    if (!has_shape(item) && !has_lost(item)) {
        lose(item, !face_lost);
    }
}

void stepInventory::take_geometry(Entity const & item)
{
    bool const curve = item->IsKind(STANDARD_TYPE(StepGeom_Curve));
    bool const surface = item->IsKind(STANDARD_TYPE(StepGeom_Surface));
    if (!curve && !surface && !item->IsKind(STANDARD_TYPE(StepGeom_Point))) {
        return;
    }
    m_context.account().holds(curve     ? sdkSourceKind::curve
                              : surface ? sdkSourceKind::face
                                        : sdkSourceKind::point);
    if (!has_shape(item) && !has_lost(item)) {
        lose(item);
    }
}

void stepInventory::lose(Entity const & entity, bool counted)
{
    if (!m_lost.insert(entity.get()).second) {
        return;
    }
    if (counted) {
        m_context.reporter().failed(1);
    }
    auto const place = label(entity);
    auto const name = name_of(entity);
    auto const binder = m_process->Find(entity);
    std::string const what = kind(entity) + (name.empty() ? "" : " \"" + name + "\"");
    std::string const reason = binder.IsNull() || binder->Check()->NbFails() == 0
                                   ? std::string()
                                   : std::string(binder->Check()->CFail(1));
    sdkText const text =
        reason.empty()
            ? sdkText("step::%s, %s: the %s is not translated; export it as a boundary representation",
                      m_file, place, what)
            : sdkText("step::%s, %s: the %s is not translated: %s", m_file, place, what, reason);
    m_context.account().add(
        {.weight = sdkWeight::loss, .kind = "not-translated", .part = m_part, .place = place, .text = text});
}

bool stepInventory::has_shape(Entity const & entity) const
{
    auto const shape = TransferBRep::ShapeResult(m_process->Find(entity));
    return !shape.IsNull() && (shape.ShapeType() == TopAbs_VERTEX || TopoDS_Iterator(shape).More());
}

std::string stepInventory::label(Entity const & entity) const
{
    auto const text = m_session->Model()->StringLabel(entity);
    return text.IsNull() ? std::string("?") : std::string(text->ToCString());
}

std::string stepInventory::kind(Entity const & entity) const
{
    return m_session->SignType()->Value(entity, m_session->Model());
}
