#include "step/stepContextStyles.h"

#include <Interface_InterfaceModel.hxx>
#include <Interface_ReportEntity.hxx>
#include <Interface_UndefinedContent.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepData_UndefinedEntity.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepVisual_ContextDependentOverRidingStyledItem.hxx>
#include <StepVisual_HArray1OfPresentationStyleAssignment.hxx>
#include <StepVisual_PresentationStyleByContext.hxx>
#include <StepVisual_StyleContextSelect.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <vector>

namespace {

using Place = Handle(StepShape_ContextDependentShapeRepresentation);
using Style = Handle(StepVisual_ContextDependentOverRidingStyledItem);

// The toolkit keeps the parameters of what it could not read; lists are entities of their own there.
void append_places(Handle(Standard_Transient) const & content, std::vector<Place> & places)
{
    if (auto const place = Place::DownCast(content); !place.IsNull()) {
        places.push_back(place);
    }
    auto const undefined = Handle(StepData_UndefinedEntity)::DownCast(content);
    auto const parameters =
        undefined.IsNull() ? Handle(Interface_UndefinedContent)() : undefined->UndefinedContent();
    for (int at = 1; !parameters.IsNull() && at <= parameters->NbParams(); ++at) {
        if (parameters->IsParamEntity(at)) {
            append_places(parameters->ParamEntity(at), places);
        }
    }
}

// Makes a representation of the instance at that place.
Handle(StepShape_ShapeRepresentation)
    representation_of(Place const & place, Handle(Interface_InterfaceModel) const & model,
                      STEPConstruct_Styles & styles)
{
    auto const relation = place->RepresentationRelation();
    if (relation.IsNull() || relation->Rep1().IsNull() || place->RepresentedProductRelation().IsNull()) {
        return {};
    }
    int const before = model->NbEntities();
    styles.CreateNAUOSRD(relation->Rep1()->ContextOfItems(), place, {});
    for (int number = before + 1; number <= model->NbEntities(); ++number) {
        auto const made = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(model->Value(number));
        if (!made.IsNull()) {
            return Handle(StepShape_ShapeRepresentation)::DownCast(made->UsedRepresentation());
        }
    }
    return {};
}

void set_context(StepVisual_StyledItem & style, Handle(StepShape_ShapeRepresentation) const & context)
{
    StepVisual_StyleContextSelect select;
    select.SetValue(context);
    auto const before = style.Styles();
    Handle(StepVisual_HArray1OfPresentationStyleAssignment) const after =
        new StepVisual_HArray1OfPresentationStyleAssignment(before->Lower(), before->Upper());
    for (int at = before->Lower(); at <= before->Upper(); ++at) {
        Handle(StepVisual_PresentationStyleByContext) const assignment =
            new StepVisual_PresentationStyleByContext();
        if (!before->Value(at).IsNull()) {
            assignment->Init(before->Value(at)->Styles(), select);
        }
        after->SetValue(at, assignment);
    }
    style.SetStyles(after);
}

} // namespace

std::set<Standard_Transient const *> step_settle_context_styles(Handle(XSControl_WorkSession) const & session)
{
    std::set<Standard_Transient const *> settled;
    auto const model = session->Model();
    STEPConstruct_Styles styles(session);
    for (int number = 1, last = model->NbEntities(); number <= last; ++number) {
        auto const style = Style::DownCast(model->Value(number));
        if (style.IsNull() || style->Styles().IsNull() || !model->IsReportEntity(number)) {
            continue;
        }
        std::vector<Place> places;
        append_places(model->ReportEntity(number)->Content(), places);
        if (places.empty()) {
            continue;
        }
        auto const context = places.size() == 1 ? representation_of(places.front(), model, styles)
                                                : Handle(StepShape_ShapeRepresentation)();
        if (context.IsNull()) {
            style->SetItem(Handle(StepRepr_RepresentationItem)());
        } else {
            set_context(*style, context);
        }
        settled.insert(style.get());
    }
    if (!settled.empty()) {
        session->ComputeGraph(Standard_True);
        if (!session->TransferReader().IsNull()) {
            session->TransferReader()->SetGraph(session->HGraph());
        }
    }
    return settled;
}
