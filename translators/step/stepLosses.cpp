#include "step/stepLosses.h"

#include "step/stepPmiGraph.h"

#include <Interface_InterfaceModel.hxx>
#include <StepData_UndefinedEntity.hxx>
#include <StepDimTol_Datum.hxx>
#include <StepDimTol_GeometricTolerance.hxx>
#include <StepShape_DimensionalLocation.hxx>
#include <StepShape_DimensionalSize.hxx>
#include <StepVisual_AnnotationOccurrence.hxx>
#include <StepVisual_AnnotationPlane.hxx>
#include <StepVisual_CameraModelD3.hxx>
#include <StepVisual_TessellatedAnnotationOccurrence.hxx>

#include <string_view>

namespace {

// Drawings have many kinds of annotation that the toolkit does not know; all are called so.
bool is_unknown_annotation(Standard_Transient const & entity)
{
    auto const * part = dynamic_cast<StepData_UndefinedEntity const *>(&entity);
    for (; part != nullptr; part = part->Next().get()) {
        std::string_view const kind = part->StepType();
        if (kind.find("ANNOTATION_") != std::string_view::npos && kind.ends_with("_OCCURRENCE")) {
            return true;
        }
    }
    return false;
}

bool is_annotation(Standard_Transient const & entity)
{
    if (is_unknown_annotation(entity)) {
        return true;
    }
    // A plane only says where annotations lie.
    return entity.IsKind(STANDARD_TYPE(StepVisual_TessellatedAnnotationOccurrence)) ||
           (entity.IsKind(STANDARD_TYPE(StepVisual_AnnotationOccurrence)) &&
            !entity.IsKind(STANDARD_TYPE(StepVisual_AnnotationPlane)));
}

} // namespace

stepLosses step_count_losses(Handle(Interface_InterfaceModel) const & model)
{
    stepLosses losses;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const & entity = model->Value(number);
        auto const count = [&](Handle(Standard_Type) const & kind, std::int64_t & counter) {
            counter += entity->IsKind(kind) ? 1 : 0;
        };
        count(STANDARD_TYPE(StepShape_DimensionalSize), losses.dimensions);
        count(STANDARD_TYPE(StepShape_DimensionalLocation), losses.dimensions);
        count(STANDARD_TYPE(StepDimTol_GeometricTolerance), losses.tolerances);
        count(STANDARD_TYPE(StepDimTol_Datum), losses.datums);
        count(STANDARD_TYPE(StepVisual_CameraModelD3), losses.views);
        losses.annotations += is_annotation(*entity) ? 1 : 0;
    }
    return losses;
}

stepLosses step_count_losses(stepPmiGraph const & graph)
{
    stepLosses losses;
    for (int const item : graph.items()) {
        std::string_view const kind = step_pmi_item(graph.find(item)->kinds());
        losses.dimensions += kind == "term::dimension" ? 1 : 0;
        losses.tolerances += kind == "term::geometric tolerance" ? 1 : 0;
        losses.datums += kind == "term::datum" ? 1 : 0;
        losses.annotations += kind == "term::annotation" ? 1 : 0;
        losses.views += kind == "term::view" ? 1 : 0;
    }
    return losses;
}
