#pragma once

#include "vmr/coResourceTable.h"

class vmrTableInstance;

/// While one lives, vmr_resource_table_inquire gives its thread the effective values of an instance, as they
/// were when the scope began, in place of the built-in defaults. Scopes nest; the innermost counts.
class vmrApplyResource {
public:
    explicit vmrApplyResource(vmrTableInstance const & instance);
    ~vmrApplyResource();
    vmrApplyResource(vmrApplyResource const &) = delete;
    vmrApplyResource & operator=(vmrApplyResource const &) = delete;

    /// The table of the innermost scope of the calling thread, null without one.
    static coResourceTable * table_in_force();

private:
    coResourceTable m_table;
    vmrApplyResource * m_outer;
};
