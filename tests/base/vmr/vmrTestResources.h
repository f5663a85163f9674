#pragma once

#include "vmr/vmrResourceRegistry.h"

/// Registers one resource of each kind, as the translator of a format "tst" would. Tests of one program share
/// the registry, so that every use declares the same.
inline void register_test_resources()
{
    std::vector<vmrResourceDeclaration> declarations(5);
    declarations[0].name = "tstHeal";
    declarations[0].kind = vmrResourceKind::boolean;
    declarations[0].default_value = "true";
    declarations[1].name = "tstLevel";
    declarations[1].kind = vmrResourceKind::integer;
    declarations[1].default_value = "3";
    declarations[1].minimum = 1;
    declarations[1].maximum = 10;
    declarations[2].name = "tstGap";
    declarations[2].kind = vmrResourceKind::real;
    declarations[2].default_value = "0.5";
    declarations[2].minimum = 0;
    declarations[3].name = "tstAuthor";
    declarations[3].kind = vmrResourceKind::text;
    declarations[4].name = "tstSchema";
    declarations[4].kind = vmrResourceKind::choice;
    declarations[4].default_value = "AP214";
    declarations[4].choices = {"AP203", "AP214", "AP242"};
    vmr_register_resources(declarations);
}
