#pragma once

#include <vector>

#include "vmr/vmrResourceDeclaration.h"

/// The resources that are the same for all formats, known in every run. Tolerances are in millimetres.
std::vector<vmrResourceDeclaration> const & vmr_general_resources();
