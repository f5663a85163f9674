#include "vmr/coResourceTableMaker.h"

#include "vmrTestResources.h"

#include <gtest/gtest.h>

class ResourceTableMaker : public testing::Test {
protected:
    void SetUp() override { register_test_resources(); }

    coResourceTable m_table;
};

TEST_F(ResourceTableMaker, AddsAResourceThatIsAbsentAndChangesOneThatIsThere)
{
    EXPECT_EQ(coResourceTableMaker::merge_entry("unheard", "1", m_table), coResourceOk);
    EXPECT_EQ(coResourceTableMaker::merge_entry("unheard", "2", m_table), coResourceOk);
    EXPECT_EQ(m_table.count(), 1);
    EXPECT_EQ(m_table.value("unheard"), utString("2"));
}

TEST_F(ResourceTableMaker, StoresTheDisplayedFormOfABooleanAsTheNeutralOne)
{
    EXPECT_EQ(coResourceTableMaker::merge_entry("tstHeal", "False", m_table), coResourceOk);
    EXPECT_EQ(m_table.value("tstHeal"), utString("false"));
}

TEST_F(ResourceTableMaker, StoresAnIllegalTextAsItStandsAndSaysSo)
{
    EXPECT_EQ(coResourceTableMaker::merge_entry("tstLevel", "many", m_table), coResourceIllegalValue);
    EXPECT_EQ(m_table.value("tstLevel"), utString("many"));
}
