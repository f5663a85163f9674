#include "sdu/sduStartupInfo.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "kit/kitTempFolder.h"
#include "sdu/sduStartupKeys.h"

class StartupInfo : public testing::Test {
protected:
    void load(sduStartupInfo & info) const { info.load(m_path.c_str()); }

    kitTempFolder m_temp;
    std::string m_path = m_temp / "startup.hrk";
};

TEST_F(StartupInfo, IsAnEmptyTableAtFirst)
{
    sduStartupInfo const info;
    EXPECT_TRUE(info.find_field(sduSTARTASVIEWER).invalid());
    EXPECT_NE(info.using_defaults(), 0);
    EXPECT_EQ(info.changed(), 0);
}

TEST_F(StartupInfo, UsesDefaultsUntilTheFirstSave)
{
    sduStartupInfo info;
    load(info);
    EXPECT_NE(info.using_defaults(), 0);
    EXPECT_EQ(info.changed(), 0);
    info.add_field(sduSTARTASVIEWER, "yes");
    EXPECT_EQ(info.using_defaults(), 0);
    EXPECT_EQ(info.changed(), 0);
    EXPECT_EQ(m_temp.read("startup.hrk"), "start_as_viewer = yes\n");
    EXPECT_EQ(m_temp.count(), 1);
}

TEST_F(StartupInfo, ReadsBackWhatItSaved)
{
    sduStartupInfo first;
    load(first);
    first.add_field(sduDEFAULTSAVEDIRECTORY, " /home/\xC3\xA4/=\\n\n\xFF ");
    first.add_field(sduPREFERREDINPUTFORMAT, "");
    sduStartupInfo second;
    load(second);
    EXPECT_EQ(second.using_defaults(), 0);
    EXPECT_EQ(second.find_field(sduDEFAULTSAVEDIRECTORY), utString(" /home/\xC3\xA4/=\\n\n\xFF "));
    EXPECT_EQ(second.find_field(sduPREFERREDINPUTFORMAT), utString());
    EXPECT_TRUE(second.find_field(sduPREFERREDOUTPUTFORMAT).invalid());
}

TEST_F(StartupInfo, KeepsCommentsAndFieldsOfOtherPrograms)
{
    m_temp.write("startup.hrk", "# mine\nother.field=1\nnot a field\n");
    sduStartupInfo info;
    load(info);
    info.add_field("a", "b");
    EXPECT_EQ(m_temp.read("startup.hrk"), "# mine\nother.field=1\nnot a field\na = b\n");
}

TEST_F(StartupInfo, HoldsAFieldForThisRunWithoutEverSavingIt)
{
    sduStartupInfo info;
    load(info);
    info.add_field("a", "saved");
    info.add_field_without_saving("a", "this run");
    info.add_field_without_saving("b", "this run");
    EXPECT_EQ(info.find_field("a"), utString("this run"));
    info.add_field("c", "saved");
    EXPECT_EQ(m_temp.read("startup.hrk"), "a = saved\nc = saved\n");
    EXPECT_EQ(info.find_field("b"), utString("this run"));
    EXPECT_EQ(info.changed(), 0);
    info.add_field("a", "again");
    EXPECT_EQ(info.find_field("a"), utString("again"));
    load(info);
    EXPECT_TRUE(info.find_field("b").invalid());
}

TEST_F(StartupInfo, RemovesAFieldThatIsSetToAnInvalidString)
{
    sduStartupInfo info;
    load(info);
    info.add_field("a", "1");
    info.add_field("a", utString::make_invalid());
    EXPECT_TRUE(info.find_field("a").invalid());
    EXPECT_TRUE(m_temp.read("startup.hrk").empty());
}

TEST_F(StartupInfo, NoticesWhatOthersDoToTheFile)
{
    sduStartupInfo info;
    load(info);
    m_temp.write("startup.hrk", "a = 1\n");
    EXPECT_NE(info.changed(), 0);
    load(info);
    EXPECT_EQ(info.changed(), 0);
    m_temp.write("startup.hrk", "a = 2\n");
    EXPECT_NE(info.changed(), 0);
    m_temp.write("startup.hrk", "a = 1\n");
    EXPECT_EQ(info.changed(), 0);
    std::filesystem::remove(m_path);
    EXPECT_NE(info.changed(), 0);
}

TEST_F(StartupInfo, MergesItsSaveWithWhatAnotherProgramSaved)
{
    m_temp.write("startup.hrk", "a = 1\nb = 1\n");
    sduStartupInfo first;
    sduStartupInfo second;
    load(first);
    load(second);
    first.add_field("a", "first");
    EXPECT_NE(second.changed(), 0);
    second.add_field("b", "second");
    EXPECT_EQ(m_temp.read("startup.hrk"), "a = first\nb = second\n");
    EXPECT_EQ(second.find_field("a"), utString("first"));
    EXPECT_EQ(second.changed(), 0);
    EXPECT_NE(first.changed(), 0);
}

TEST_F(StartupInfo, WritesItsFieldsAgainWhenTheFileHasGone)
{
    sduStartupInfo info;
    load(info);
    info.add_field("a", "1");
    std::filesystem::remove(m_path);
    EXPECT_NE(info.changed(), 0);
    info.add_field("b", "2");
    EXPECT_EQ(m_temp.read("startup.hrk"), "a = 1\nb = 2\n");
}

TEST_F(StartupInfo, IsCopiedWithItsFieldsAndItsFile)
{
    sduStartupInfo info;
    load(info);
    info.add_field("a", "1");
    auto copy = info;
    copy.add_field("b", "2");
    EXPECT_EQ(m_temp.read("startup.hrk"), "a = 1\nb = 2\n");
    EXPECT_TRUE(info.find_field("b").invalid());
}

TEST_F(StartupInfo, ReplacesItsTableByALoad)
{
    m_temp.write("startup.hrk", "a = 1\n");
    sduStartupInfo info;
    load(info);
    info.load((m_temp / "missing").c_str());
    EXPECT_TRUE(info.find_field("a").invalid());
    EXPECT_NE(info.using_defaults(), 0);
}
