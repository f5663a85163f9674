#pragma once

#include "ut/utString.h"

/// A word of more than four bytes whose last three are "rsc" names a resource file.
inline bool sgl_is_resource_name(utString const & word)
{
    return word.length() > 4 && word.substring(word.length() - 3, 3) == "rsc";
}

/// A word behind which the name of a resource file stands; "-res_opt" is not meant.
inline bool sgl_announces_resource(utString const & word)
{
    return word.view().starts_with("-r") && !word.view().starts_with("-res_opt");
}
