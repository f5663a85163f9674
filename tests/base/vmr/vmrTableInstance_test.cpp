#include "vmr/vmrTableInstance.h"

#include "kit/kitTempFolder.h"
#include "vmr/vmrResourceFile.h"
#include "vmrTestResources.h"

#include <chrono>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

class TableInstance : public testing::Test {
protected:
    void SetUp() override
    {
        register_test_resources();
        m_file = m_directory.write("tst.rsc", "tstLevel = 5\ntstHeal = false\nother = x\n");
    }

    kitTempFolder m_directory;
    std::string m_file;
};

TEST_F(TableInstance, IsInvalidWithoutAFile)
{
    vmrTableInstance const instance(nullptr);
    EXPECT_TRUE(instance.invalid());
    EXPECT_FALSE(instance.modified());
    EXPECT_TRUE(instance.resource_file().empty());
    EXPECT_TRUE(vmrTableInstance().invalid());
}

TEST_F(TableInstance, HoldsTheValuesOfItsFileAndNoOverrides)
{
    vmrTableInstance const instance(m_file.c_str());
    EXPECT_FALSE(instance.invalid());
    EXPECT_FALSE(instance.modified());
    EXPECT_EQ(instance.resource_file(), utString(m_file));
    EXPECT_EQ(instance.default_table()->count(), 3);
    EXPECT_TRUE(instance.table()->empty());
}

TEST_F(TableInstance, HasAnEmptyTableForAFileThatCannotBeRead)
{
    vmrTableInstance instance(nullptr);
    auto const missing = m_directory / "none.rsc";
    EXPECT_EQ(instance.initialise(missing), 0);
    EXPECT_FALSE(instance.invalid());
    EXPECT_EQ(instance.resource_file(), utString(missing));
    EXPECT_TRUE(instance.default_table()->empty());
    EXPECT_TRUE(instance.table()->empty());
    EXPECT_THAT(instance.problems(), SizeIs(1));
}

TEST_F(TableInstance, GoesBackToItsFileWhenInitialisedWithItsOwnName)
{
    vmrTableInstance instance(m_file.c_str());
    instance.add_resource("tstLevel", "7");
    instance.default_table()->set_value("tstHeal", "true");
    EXPECT_NE(instance.initialise(instance.resource_file()), 0);
    EXPECT_FALSE(instance.modified());
    EXPECT_EQ(instance.default_table()->value("tstHeal"), utString("false"));
    EXPECT_EQ(instance.resource_file(), utString(m_file));
}

TEST_F(TableInstance, NamesTheOverridesThatHaveNoEffect)
{
    vmrTableInstance instance(m_file.c_str());
    auto const before = instance.effective_value("tstLevel");
    instance.add_resource("tstHeal", "true");
    EXPECT_THAT(instance.refused_overrides(), IsEmpty());
    instance.add_as_it_stands("tstLevel", "much");
    EXPECT_EQ(instance.effective_value("tstLevel"), before);
    EXPECT_EQ(instance.refused_overrides(), (std::map<std::string, std::string>{{"tstLevel", "much"}}));
}

TEST_F(TableInstance, RecordsAFileNameWithoutReading)
{
    vmrTableInstance instance(m_file.c_str());
    instance.set_resource_file("/elsewhere/x.rsc");
    EXPECT_EQ(instance.resource_file(), utString("/elsewhere/x.rsc"));
    EXPECT_EQ(instance.default_table()->count(), 3);
}

TEST_F(TableInstance, IsModifiedByAnOverride)
{
    vmrTableInstance instance(m_file.c_str());
    EXPECT_NE(instance.add_resource("tstLevel", "7"), 0);
    EXPECT_TRUE(instance.modified());
    EXPECT_EQ(instance.table()->value("tstLevel"), utString("7"));
    EXPECT_EQ(instance.default_table()->value("tstLevel"), utString("5"));
}

TEST_F(TableInstance, StoresOverridesInTheNeutralForm)
{
    vmrTableInstance instance(m_file.c_str());
    instance.add_resource("tstHeal", "True");
    instance.add_resource("tstGap", "0.250");
    EXPECT_EQ(instance.table()->value("tstHeal"), utString("true"));
    EXPECT_EQ(instance.table()->value("tstGap"), utString("0.25"));
}

TEST_F(TableInstance, TakesNoOverrideThatIsNotLegal)
{
    vmrTableInstance instance(m_file.c_str());
    EXPECT_EQ(instance.add_resource("tstLevel", "11"), 0);
    EXPECT_EQ(instance.add_resource("tstSchema", "AP999"), 0);
    EXPECT_FALSE(instance.modified());
}

TEST_F(TableInstance, TakesAnyOverrideOfAResourceThatIsNotRegistered)
{
    vmrTableInstance instance(m_file.c_str());
    EXPECT_NE(instance.add_resource("unheard", " x "), 0);
    EXPECT_EQ(instance.table()->value("unheard"), utString(" x "));
}

TEST_F(TableInstance, TakesOverridesWithoutAFileAndStaysInvalid)
{
    vmrTableInstance instance(nullptr);
    EXPECT_NE(instance.add_resource("tstLevel", "7"), 0);
    EXPECT_TRUE(instance.invalid());
    EXPECT_TRUE(instance.modified());
    EXPECT_EQ(instance.effective_value("tstLevel"), utString("7"));
}

TEST_F(TableInstance, LosesEverythingWhenReset)
{
    vmrTableInstance instance(m_file.c_str());
    instance.add_resource("tstLevel", "7");
    instance.reset();
    EXPECT_TRUE(instance.invalid());
    EXPECT_FALSE(instance.modified());
    EXPECT_TRUE(instance.resource_file().empty());
}

TEST_F(TableInstance, SharesItsTablesInAShallowCopyAndNotItsName)
{
    vmrTableInstance working(m_file.c_str());
    working.add_resource("tstLevel", "7");
    vmrTableInstance mine((m_directory / "mine.rsc").c_str());
    mine.shallow_copy(working);
    EXPECT_EQ(mine.table(), working.table());
    EXPECT_EQ(mine.default_table(), working.default_table());
    EXPECT_EQ(mine.resource_file(), utString(m_directory / "mine.rsc"));
    working.add_resource("tstLevel", "8");
    EXPECT_EQ(mine.effective_value("tstLevel"), utString("8"));
}

TEST_F(TableInstance, KeepsSharedTablesAliveAndUntouchedByALaterLoad)
{
    vmrTableInstance mine(nullptr);
    {
        vmrTableInstance working(m_file.c_str());
        working.add_resource("tstLevel", "7");
        mine.shallow_copy(working);
        working.initialise(m_file);
    }
    EXPECT_EQ(mine.effective_value("tstLevel"), utString("7"));
    EXPECT_EQ(mine.default_table()->count(), 3);
}

TEST_F(TableInstance, CopiesInFull)
{
    vmrTableInstance original(m_file.c_str());
    original.add_resource("tstLevel", "7");
    vmrTableInstance const constructed(original);
    vmrTableInstance assigned;
    assigned = original;
    vmrTableInstance deep(nullptr);
    deep.deep_copy(original);
    original.add_resource("tstLevel", "8");
    original.default_table()->set_value("other", "y");
    for (auto const copy : {&constructed, static_cast<vmrTableInstance const *>(&assigned),
                            static_cast<vmrTableInstance const *>(&deep)}) {
        EXPECT_EQ(copy->resource_file(), utString(m_file));
        EXPECT_EQ(copy->effective_value("tstLevel"), utString("7"));
        EXPECT_EQ(copy->default_table()->value("other"), utString("x"));
    }
}

TEST_F(TableInstance, GetsPrivateTablesByWayOfADeepCopyAndBack)
{
    vmrTableInstance mine(m_file.c_str());
    vmrTableInstance other;
    other.shallow_copy(mine);
    vmrTableInstance aside(nullptr);
    aside.deep_copy(mine);
    mine.deep_copy(aside);
    mine.add_resource("tstLevel", "9");
    EXPECT_EQ(other.effective_value("tstLevel"), utString("5"));
    EXPECT_EQ(mine.resource_file(), utString(m_file));
}

TEST_F(TableInstance, IsUnchangedByAssignmentToItself)
{
    vmrTableInstance instance(m_file.c_str());
    instance.add_resource("tstLevel", "7");
    auto & same = instance;
    instance = same;
    EXPECT_EQ(instance.effective_value("tstLevel"), utString("7"));
    instance.deep_copy(same);
    EXPECT_EQ(instance.effective_value("tstHeal"), utString("false"));
}

TEST_F(TableInstance, StaysInvalidAsACopyOfAnInvalidOne)
{
    vmrTableInstance instance(m_file.c_str());
    instance.deep_copy(vmrTableInstance(nullptr));
    EXPECT_TRUE(instance.invalid());
}

TEST_F(TableInstance, PutsTheOverrideBeforeTheFileAndTheFileBeforeTheDefault)
{
    vmrTableInstance instance(m_file.c_str());
    EXPECT_EQ(instance.effective_value("tstSchema"), utString("AP214"));
    EXPECT_EQ(instance.effective_value("tstLevel"), utString("5"));
    instance.add_resource("tstLevel", "7");
    EXPECT_EQ(instance.effective_value("tstLevel"), utString("7"));
    EXPECT_EQ(instance.effective_value("other"), utString("x"));
    EXPECT_TRUE(instance.effective_value("unheard").invalid());
}

TEST_F(TableInstance, PassesOverAValueThatIsNotLegalWhenItMatters)
{
    vmrTableInstance const instance(m_directory.write("bad.rsc", "tstLevel = 500\ntstGap = 2\n").c_str());
    EXPECT_EQ(instance.default_table()->value("tstLevel"), utString("500"));
    EXPECT_EQ(instance.effective_value("tstLevel"), utString("3"));
    EXPECT_THAT(instance.effective_values(), ElementsAre(Pair("tstGap", "2"), Pair("tstLevel", "3")));
    EXPECT_THAT(instance.problems(), SizeIs(1));
}

TEST_F(TableInstance, GivesATranslatorTheValuesOfBothTables)
{
    vmrTableInstance instance(m_file.c_str());
    instance.add_resource("tstLevel", "7");
    instance.add_resource("tstGap", "2");
    EXPECT_THAT(instance.effective_values(), ElementsAre(Pair("other", "x"), Pair("tstGap", "2"),
                                                         Pair("tstHeal", "false"), Pair("tstLevel", "7")));
    EXPECT_THAT(vmrTableInstance().effective_values(), SizeIs(0));
}

TEST_F(TableInstance, ComesBackFromTheFileThatItsTableWasSavedTo)
{
    vmrTableInstance first(m_file.c_str());
    first.default_table()->set_value("tstAuthor", "  a\nb\\ ");
    auto const path = m_directory / "saved.rsc";
    ASSERT_NE(vmr_resource_save(path, first.default_table()), 0);
    vmrTableInstance const second(path.c_str());
    EXPECT_EQ(second.effective_values(), first.effective_values());
    EXPECT_EQ(vmr_resource_text(*second.default_table()), vmr_resource_text(*first.default_table()));
    EXPECT_TRUE(second.problems().empty());
}

TEST_F(TableInstance, ComesBackFromASavedTableOfAllDefaults)
{
    auto const path = m_directory / "Default";
    vmrResourceTableMark const mark;
    ASSERT_NE(vmr_resource_save(path, vmr_resource_table_inquire()), 0);
    vmrTableInstance const loaded(path.c_str());
    EXPECT_EQ(vmr_resource_text(*loaded.default_table()), vmr_resource_text(*vmr_resource_table_inquire()));
}

TEST_F(TableInstance, KnowsWhetherItIsAsItWasLoaded)
{
    vmrTableInstance instance(m_file.c_str());
    auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!instance.is_as_loaded() && std::chrono::steady_clock::now() < deadline) // the file is too young
        instance.initialise(m_file);
    ASSERT_TRUE(instance.is_as_loaded());

    vmrTableInstance const copy = instance;
    EXPECT_TRUE(copy.is_as_loaded());
    vmrTableInstance shared;
    EXPECT_FALSE(shared.is_as_loaded());
    shared.shallow_copy(instance);
    EXPECT_FALSE(shared.is_as_loaded()); // it has no file
    shared.set_resource_file(m_file);
    EXPECT_TRUE(shared.is_as_loaded());

    instance.add_resource("tstLevel", "6");
    EXPECT_TRUE(instance.is_as_loaded()); // overrides do not count
    instance.default_table()->set_value("tstLevel", "7");
    EXPECT_FALSE(instance.is_as_loaded());
    EXPECT_TRUE(copy.is_as_loaded());
    m_directory.write("tst.rsc", "tstLevel = 6\n");
    EXPECT_FALSE(copy.is_as_loaded());
}

TEST_F(TableInstance, SharesItsDefaultsAlone)
{
    vmrTableInstance instance(m_file.c_str());
    instance.add_resource("tstLevel", "6");
    vmrTableInstance other;
    other.share_defaults(instance);
    EXPECT_EQ(other.default_table(), instance.default_table());
    EXPECT_EQ(other.resource_file(), instance.resource_file());
    EXPECT_FALSE(other.modified());
    EXPECT_TRUE(instance.modified());
}

TEST_F(TableInstance, TakesItsOverridesOutOfASharing)
{
    vmrTableInstance instance(m_file.c_str());
    instance.add_resource("tstLevel", "6");
    auto const * const alone = instance.table();
    instance.own_overrides();
    EXPECT_EQ(instance.table(), alone);
    vmrTableInstance other;
    other.shallow_copy(instance);
    instance.own_overrides();
    EXPECT_NE(instance.table(), other.table());
    EXPECT_EQ(instance.table()->value("tstLevel"), utString("6"));
}
