#include "iges/igesRoots.h"

#include "iges/igesActor.h"

#include <IGESData_IGESModel.hxx>
#include <Interface_ShareFlags.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

void igesRoots::add_own()
{
    auto const model = IGESModel();
    WS()->TransferReader()->SetActor(new igesActor(model));
    // Without it there is no process to ask for results when there are no roots.
    WS()->TransferReader()->BeginTransfer();
    // Fills the list; it asks the toolkit's own actor.
    NbRootsForTransfer();
    Interface_ShareFlags const used(WS()->Graph());
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const entity = model->Entity(number);
        bool const wanted = !GetReadVisible() || entity->BlankStatus() == 0;
        if (wanted && !used.IsShared(entity) && iges_is_solid(entity)) {
            theroots.Append(entity);
        }
    }
}

void igesRoots::remove(TColStd_MapOfTransient const & entities)
{
    for (int at = theroots.Length(); at >= 1; --at) {
        if (entities.Contains(theroots(at))) {
            theroots.Remove(at);
        }
    }
}
