#include "sdk/sdkLimits.h"

sdkText sdk_too_many_places(std::string const & file, std::int64_t places)
{
    return sdkText(
        "host::%s: its nested assemblies stand for %d shapes at as many places, and at most %d can be "
        "translated; export parts of the assembly one by one",
        file, places, sdk_most_places);
}

sdkText sdk_too_deep(std::string const & file, std::int64_t depth)
{
    return sdkText("host::%s: its assemblies lie %d levels deep within each other, and at most %d can be "
                   "translated; export parts of the assembly one by one",
                   file, depth, sdk_deepest_nest);
}
