#include "sdb/sdbResourceType.h"

#include <map>
#include <mutex>

#include "vmr/vmrResourceRegistry.h"

sdbResourceType const * sdbResourceType::look_up_type(utString const & name)
{
    auto const declaration = vmr_look_up_resource(name.view());
    if (!declaration)
        return nullptr;
    static std::mutex mutex;
    static std::map<vmrResourceDeclaration const *, sdbResourceType> types;
    std::scoped_lock const lock(mutex);
    return &types.try_emplace(declaration, *declaration).first->second;
}
