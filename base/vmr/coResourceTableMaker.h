#pragma once

#include "vmr/coResourceTable.h"

enum coResourceError {
    coResourceOk = 0,
    coResourceIllegalValue =
        1 ///< the text is no legal value of the registered resource, and was stored as it stands
};

class coResourceTableMaker {
public:
    /// Sets `name` to the text `value` in `table`, adding it if absent. The text of a registered resource is
    /// stored in its neutral form.
    static coResourceError merge_entry(utString const & name, utString const & value,
                                       coResourceTable & table);
};
