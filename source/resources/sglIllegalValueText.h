#pragma once

#include "sglResourceDetails.h"

/// What a user is told whose text is no legal value of the resource: string 1210, and below it which field is
/// meant and which values it takes. Nothing more than the field is named while the resource is not
/// registered.
utString sgl_illegal_value_text(sglResourceDetails const & resource);
