#pragma once

#include <Standard_Handle.hxx>

#include <cstdint>

class Interface_InterfaceModel;

// What a STEP file has that documents have no place for. Dimensions and tolerances that are attached to the
// model are not taken even where Open CASCADE reads them: it gives geometric tolerances the value 0 and
// leaves dimensions in the unit of the file, and wrong ones are worse than none. stepPmiSource takes them
// past the document, for the STEP writer only; for all others they are lost.
struct stepLosses {
    std::int64_t dimensions = 0;
    std::int64_t tolerances = 0; // geometric ones; those of a dimension belong to it
    std::int64_t datums = 0;
    std::int64_t annotations = 0; // drawn ones, among them those that show the three others
    std::int64_t views = 0;

    std::int64_t number() const { return dimensions + tolerances + datums + annotations + views; }
    bool has_pmi() const { return number() > 0; }
};

stepLosses step_count_losses(Handle(Interface_InterfaceModel) const & model);
