#include "vmr/vmrApplyResource.h"

#include <vector>

#include "vmr/coResourceIterator.h"
#include "vmr/vmrResourceRegistry.h"
#include "vmr/vmrTableInstance.h"

namespace {

thread_local vmrApplyResource * innermost = nullptr;

} // namespace

vmrApplyResource::vmrApplyResource(vmrTableInstance const & instance)
    : m_table(vmr_default_resource_table()), m_outer(innermost)
{
    std::vector<utString> names;
    for (coResourceIterator it(&m_table); ++it;)
        names.push_back(it()->key->name);
    for (auto const & name : names)
        m_table.set_value(name, instance.effective_value(name));
    innermost = this;
}

vmrApplyResource::~vmrApplyResource()
{
    innermost = m_outer;
}

coResourceTable * vmrApplyResource::table_in_force()
{
    return innermost ? &innermost->m_table : nullptr;
}
