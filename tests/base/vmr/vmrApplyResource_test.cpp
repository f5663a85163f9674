#include "vmr/vmrApplyResource.h"

#include <thread>

#include "vmr/vmrResourceRegistry.h"
#include "vmr/vmrTableInstance.h"

#include <gtest/gtest.h>

namespace {

utString current_units()
{
    coResourceKeyBase const key("vmrOptOutputUnits");
    return vmr_resource_table_inquire()->lookup_resource(&key)->value_text();
}

vmrTableInstance with_units(char const * units)
{
    vmrTableInstance instance(nullptr);
    instance.add_resource("vmrOptOutputUnits", units);
    return instance;
}

} // namespace

TEST(ApplyResource, PutsTheValuesOfAnInstanceInForceAndTakesThemBack)
{
    EXPECT_EQ(current_units(), utString("mm"));
    {
        vmrApplyResource const apply(with_units("in"));
        EXPECT_EQ(current_units(), utString("in"));
    }
    EXPECT_EQ(current_units(), utString("mm"));
}

TEST(ApplyResource, LeavesTheBuiltInDefaultOfWhatTheInstanceDoesNotHave)
{
    vmrApplyResource const apply(with_units("in"));
    EXPECT_EQ(vmr_resource_table_inquire()->value("vmrOptProcessSurfaces"), utString("true"));
    EXPECT_EQ(vmr_default_resource_table().value("vmrOptOutputUnits"), utString("mm"));
}

TEST(ApplyResource, LetsTheInnermostScopeCount)
{
    vmrApplyResource const outer(with_units("in"));
    {
        vmrTableInstance plain(nullptr);
        plain.add_resource("vmrOptProcessSurfaces", "false");
        vmrApplyResource const inner(plain);
        EXPECT_EQ(current_units(), utString("mm"));
    }
    EXPECT_EQ(current_units(), utString("in"));
}

TEST(ApplyResource, ConcernsItsOwnThreadOnly)
{
    vmrApplyResource const apply(with_units("in"));
    utString elsewhere;
    std::thread([&] { elsewhere = current_units(); }).join();
    EXPECT_EQ(elsewhere, utString("mm"));
}
