#pragma once

#include "ut/utString.h"
#include "vmr/vmrResourceDeclaration.h"

/// The type of a resource that some loaded translator, or the program itself, has registered.
class sdbResourceType {
public:
    explicit sdbResourceType(vmrResourceDeclaration const & declaration) : m_declaration(declaration) {}

    /// Null when no resource of that name is registered in this run. A type lives to the end of the process.
    /// Any thread.
    static sdbResourceType const * look_up_type(utString const & name);

    vmrResourceKind kind() const { return m_declaration.kind; }
    vmrResourceDeclaration const & declaration() const { return m_declaration; }

private:
    vmrResourceDeclaration const & m_declaration;
};
