#include "vmr/vmrResourceFile.h"

#include <filesystem>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"
#include "vmr/vmrTableInstance.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class ResourceFile : public testing::Test {
protected:
    void SetUp() override { m_table.set_value("a", "1"); }

    kitTempFolder m_directory;
    coResourceTable m_table;
    std::vector<std::string> m_problems;
};

TEST_F(ResourceFile, IsWrittenWithNothingLeftBesideIt)
{
    EXPECT_NE(vmr_resource_save(m_directory / "a.rsc", &m_table), 0);
    EXPECT_EQ(m_directory.count(), 1);
    vmrTableInstance const loaded((m_directory / "a.rsc").c_str());
    EXPECT_EQ(loaded.default_table()->value("a"), utString("1"));
}

TEST_F(ResourceFile, LosesWhatItHeldBefore)
{
    auto const path = m_directory.write("a.rsc", "old = 1\nolder = 2\n");
    EXPECT_NE(vmr_resource_save(path, &m_table), 0);
    vmrTableInstance const loaded(path.c_str());
    EXPECT_EQ(loaded.default_table()->count(), 1);
}

TEST_F(ResourceFile, KeepsItsPermissions)
{
    auto const path = m_directory.write("a.rsc", "");
    std::filesystem::permissions(path, std::filesystem::perms(0640));
    EXPECT_NE(vmr_resource_save(path, &m_table), 0);
    EXPECT_EQ(m_directory.mode("a.rsc"), 0640u);
}

TEST_F(ResourceFile, IsReplacedBehindALinkAndTheLinkStays)
{
    auto const target = m_directory.write("target.rsc", "");
    std::filesystem::create_symlink(target, m_directory / "link.rsc");
    EXPECT_NE(vmr_resource_save(m_directory / "link.rsc", &m_table), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(m_directory / "link.rsc"));
    EXPECT_THAT(m_directory.read("target.rsc"), testing::HasSubstr("a = 1\n"));
}

TEST_F(ResourceFile, StaysAsItWasWhenItIsProtected)
{
    auto const path = m_directory.write("a.rsc", "old = 1\n");
    give_to_ordinary_user(m_directory.path().string());
    give_to_ordinary_user(path);
    std::filesystem::permissions(path, std::filesystem::perms(0444));
    EXPECT_TRUE(as_ordinary_user([&] { return vmr_resource_save(path, &m_table) == 0; }));
    EXPECT_EQ(m_directory.read("a.rsc"), "old = 1\n");
    EXPECT_EQ(m_directory.count(), 1);
}

TEST_F(ResourceFile, IsNotWrittenWhereItCannotBe)
{
    EXPECT_EQ(vmr_resource_save(m_directory / "none/a.rsc", &m_table), 0);
    EXPECT_EQ(vmr_resource_save(m_directory.path().string(), &m_table), 0);
    EXPECT_EQ(vmr_resource_save("", &m_table), 0);
    EXPECT_EQ(vmr_resource_save(m_directory / "a.rsc", nullptr), 0);
    EXPECT_EQ(m_directory.count(), 0);
}

TEST_F(ResourceFile, MayHaveABackslashInItsName)
{
    EXPECT_NE(vmr_resource_save(m_directory / "user\\Default", &m_table), 0);
    EXPECT_TRUE(m_directory.exists("user\\Default"));
}

TEST_F(ResourceFile, NamesItselfAndTheLineOfAProblem)
{
    auto const path = m_directory.write("a.rsc", "good = 1\nbad\n");
    coResourceTable table;
    EXPECT_NE(vmr_resource_load(path, table, m_problems), 0);
    EXPECT_THAT(m_problems, ElementsAre(path + ", line 2: there is no \"=\""));
    EXPECT_EQ(table.count(), 1);
}

TEST_F(ResourceFile, CannotBeReadWhenItIsAbsentOrADirectory)
{
    coResourceTable table;
    for (auto const & path : {m_directory / "none.rsc", m_directory.path().string(), std::string()}) {
        m_problems.clear();
        EXPECT_EQ(vmr_resource_load(path, table, m_problems), 0) << path;
        EXPECT_THAT(m_problems, ElementsAre(StartsWith(path + ": "))) << path;
    }
    EXPECT_TRUE(table.empty());
}

TEST_F(ResourceFile, IsRefusedWhenItIsMuchTooLarge)
{
    auto const path = m_directory.write("a.rsc", "a = 1\n");
    std::filesystem::resize_file(path, (16 << 20) + 1);
    coResourceTable table;
    EXPECT_EQ(vmr_resource_load(path, table, m_problems), 0);
    EXPECT_TRUE(table.empty());
}

TEST_F(ResourceFile, MayBeAFileOfAnotherKindWithoutHarm)
{
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 37 % 256);
    coResourceTable table;
    EXPECT_NE(vmr_resource_load(m_directory.write("a.rsc", bytes), table, m_problems), 0);
    EXPECT_FALSE(m_problems.empty());
}
