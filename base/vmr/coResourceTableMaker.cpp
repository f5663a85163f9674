#include "vmr/coResourceTableMaker.h"

#include "vmr/vmrResourceRegistry.h"

coResourceError coResourceTableMaker::merge_entry(utString const & name, utString const & value,
                                                  coResourceTable & table)
{
    auto const canonical = vmr_canonical_value(name.view(), value.view());
    table.set_value(name, canonical ? utString(*canonical) : value);
    return canonical ? coResourceOk : coResourceIllegalValue;
}
