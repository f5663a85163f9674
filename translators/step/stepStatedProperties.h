#pragma once

#include <Standard_Handle.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <gp_Pnt.hxx>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class Interface_InterfaceModel;

// The geometric validation properties that a file states of one thing, in millimetres.
struct stepStatedProperties {
    // What says of which thing they are stated.
    Handle(StepRepr_PropertyDefinition) definition;
    std::string place; // of the definition in the file, such as "#123"
    std::optional<double> volume;
    std::optional<double> area;
    std::optional<gp_Pnt> centroid;
    // Amounts whose unit is not understood.
    int unclear = 0;
    // Items that are none of these, such as the length of all curves.
    int others = 0;

    int amounts() const
    {
        return int(volume.has_value()) + int(area.has_value()) + int(centroid.has_value());
    }
};

struct stepStatements {
    // In the order of the file. Several statements of the same thing stay apart.
    std::vector<stepStatedProperties> properties;
    // Validation properties of other kinds: of assemblies, attributes, annotations, curves and open surfaces.
    int others = 0;
};

// Those of other kinds are not counted where `told_elsewhere` says so of their definition; it may be empty.
stepStatements step_stated_properties(
    Handle(Interface_InterfaceModel) const & model,
    std::function<bool(Handle(Standard_Transient) const & definition)> const & told_elsewhere);
