#pragma once

#include "sdk/sdkResult.h"

#include <IGESData_IGESModel.hxx>

#include <string>

class Interface_Graph;

// Looks at how entities use each other before anything is made of them. An error, which names the places,
// when one of them uses itself; too big when groups and subfigures lie deeper within each other, or stand at
// more places, than can be translated.
sdkResult iges_check_structure(Handle(IGESData_IGESModel) const & model, Interface_Graph const & graph,
                               std::string const & file);
