#include "sglExportSystem.h"

#include "kit/kitAppTest.h"

namespace {

struct ExportSystem : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
    }
};

} // namespace

TEST_F(ExportSystem, WalksItsOverridesFromBeforeTheFirst)
{
    sglExportSystem system;
    system.add_override("vmrOptOutputUnits", "in");
    system.add_override("vmrOptProcessSurfaces", "False");
    sglExportSystemIT walk(system);
    EXPECT_TRUE(walk.undefined());
    EXPECT_EQ(walk.resource(), "");
    EXPECT_EQ(walk.value(), "");
    std::map<std::string, std::string> found;
    while (++walk) {
        EXPECT_FALSE(walk.undefined());
        found[walk.resource().str()] = walk.value().str();
    }
    EXPECT_EQ(found, (std::map<std::string, std::string>{{"vmrOptOutputUnits", "in"},
                                                         {"vmrOptProcessSurfaces", "False"}}));
    EXPECT_TRUE(walk.undefined());
    EXPECT_EQ(walk.resource(), "");
    EXPECT_FALSE(++walk);

    walk.reset();
    EXPECT_TRUE(walk.undefined());
    EXPECT_TRUE(++walk);
}

TEST_F(ExportSystem, WalksNoOverridesWhenItHasNone)
{
    sglExportSystem const system;
    sglExportSystemIT walk(system);
    EXPECT_FALSE(++walk);
    EXPECT_TRUE(walk.undefined());
}

TEST_F(ExportSystem, KeepsTheLastValueOfAResource)
{
    sglExportSystem system;
    system.add_override("vmrOptOutputUnits", "in");
    system.add_override("vmrOptOutputUnits", "mm");
    sglExportSystemIT walk(system);
    ASSERT_TRUE(++walk);
    EXPECT_EQ(walk.value(), "mm");
    EXPECT_FALSE(++walk);
}

TEST_F(ExportSystem, PassesOverWhatIsNotRegisteredOrNotLegal)
{
    sglExportSystem system;
    system.add_override("noSuchResource", "1");
    system.add_override("vmrOptOutputUnits", "cubit");
    system.add_override("vmrTolTriangulate3d", "-1");
    system.add_override("", "mm");
    sglExportSystemIT walk(system);
    EXPECT_FALSE(++walk);
}
