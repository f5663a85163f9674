#include "step/stepActor.h"

#include <StepShape_ShapeRepresentation.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>

Standard_Boolean stepActor::Recognize(Handle(Standard_Transient) const & entity)
{
    if (STEPControl_ActorRead::Recognize(entity)) {
        return Standard_True;
    }
    auto const representation = Handle(StepShape_ShapeRepresentation)::DownCast(entity);
    if (representation.IsNull() || representation->Items().IsNull()) {
        return Standard_False;
    }
    for (int index = 1; index <= representation->NbItems(); ++index) {
        if (has_shape(representation->ItemsValue(index))) {
            return Standard_True;
        }
    }
    return Standard_False;
}

bool stepActor::has_shape(Handle(Standard_Transient) const & item) const
{
    return !item.IsNull() && !TransferBRep::ShapeResult(m_process.Find(item)).IsNull();
}
