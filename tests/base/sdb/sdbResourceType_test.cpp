#include "sdb/sdbResourceType.h"

#include "vmr/vmrResourceRegistry.h"

#include <gtest/gtest.h>

TEST(ResourceType, IsNullUntilTheResourceIsRegistered)
{
    EXPECT_EQ(sdbResourceType::look_up_type("typLater"), nullptr);
    vmrResourceDeclaration declaration;
    declaration.name = "typLater";
    declaration.kind = vmrResourceKind::integer;
    declaration.default_value = "1";
    vmr_register_resources({declaration});
    auto const type = sdbResourceType::look_up_type("typLater");
    ASSERT_NE(type, nullptr);
    EXPECT_EQ(type->kind(), vmrResourceKind::integer);
    EXPECT_EQ(type->declaration(), declaration);
}

TEST(ResourceType, StaysTheSameObject)
{
    EXPECT_NE(sdbResourceType::look_up_type("vmrOptOutputUnits"), nullptr);
    EXPECT_EQ(sdbResourceType::look_up_type("vmrOptOutputUnits"),
              sdbResourceType::look_up_type("vmrOptOutputUnits"));
}

TEST(ResourceType, IsLookedUpByTheExactName)
{
    EXPECT_EQ(sdbResourceType::look_up_type("vmroptoutputunits"), nullptr);
    EXPECT_EQ(sdbResourceType::look_up_type(""), nullptr);
}
