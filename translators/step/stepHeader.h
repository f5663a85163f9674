#pragma once

#include <Standard_Handle.hxx>

#include <string>

class StepData_StepModel;

// What the header section of an output says of where it comes from. Texts are UTF-8; empty ones are left out.
struct stepHeader {
    std::string file;
    std::string author;
    std::string organisation;
    std::string schema = {}; // with its edition; that of the writer when it is empty

    void apply(Handle(StepData_StepModel) const & model) const;
};
