#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <thread>
#include <vector>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"
#include "sdu/sduStartupInfo.h"

class StartupInfoDisk : public testing::Test {
protected:
    sduStartupInfo loaded() const
    {
        sduStartupInfo info;
        info.load(m_path.c_str());
        return info;
    }

    kitTempFolder m_temp;
    std::string m_path = m_temp / "startup.hrk";
};

TEST_F(StartupInfoDisk, MakesTheDirectoryForTheFirstSave)
{
    sduStartupInfo info;
    info.load((m_temp / "a/b/startup.hrk").c_str());
    EXPECT_NE(info.using_defaults(), 0);
    info.add_field("a", "1");
    EXPECT_EQ(info.using_defaults(), 0);
    EXPECT_EQ(m_temp.read("a/b/startup.hrk"), "a = 1\n");
}

TEST_F(StartupInfoDisk, UsesDefaultsWhereTheDirectoryCannotBeWritten)
{
    m_temp.write("startup.hrk", "a = 1\n");
    ASSERT_EQ(chmod(m_temp.path().string().c_str(), 0555), 0);
    EXPECT_TRUE(as_ordinary_user([&] {
        auto info = loaded();
        bool const read = info.find_field("a") == utString("1") && info.using_defaults() != 0;
        info.add_field("a", "2");
        return read && info.find_field("a") == utString("2") && info.using_defaults() != 0;
    }));
    EXPECT_EQ(m_temp.read("startup.hrk"), "a = 1\n");
}

TEST_F(StartupInfoDisk, RespectsAFileThatMayNotBeWritten)
{
    give_to_ordinary_user(m_temp.path().string());
    give_to_ordinary_user(m_temp.write("startup.hrk", "a = 1\n"));
    ASSERT_EQ(chmod(m_path.c_str(), 0444), 0);
    EXPECT_TRUE(as_ordinary_user([&] {
        auto info = loaded();
        bool const defaults = info.using_defaults() != 0;
        info.add_field("a", "2");
        return defaults && info.using_defaults() != 0;
    }));
    EXPECT_EQ(m_temp.read("startup.hrk"), "a = 1\n");
}

TEST_F(StartupInfoDisk, NeverWritesOverAFileThatItCannotRead)
{
    give_to_ordinary_user(m_temp.path().string());
    give_to_ordinary_user(m_temp.write("startup.hrk", "a = 1\n"));
    ASSERT_EQ(chmod(m_path.c_str(), 0200), 0);
    EXPECT_TRUE(as_ordinary_user([&] {
        auto info = loaded();
        info.add_field("b", "2");
        return info.using_defaults() != 0 && info.find_field("b") == utString("2");
    }));
    ASSERT_EQ(chmod(m_path.c_str(), 0600), 0);
    EXPECT_EQ(m_temp.read("startup.hrk"), "a = 1\n");
}

TEST_F(StartupInfoDisk, UsesDefaultsForADirectoryInPlaceOfTheFile)
{
    std::filesystem::create_directory(m_path);
    auto info = loaded();
    EXPECT_NE(info.using_defaults(), 0);
    info.add_field("a", "1");
    EXPECT_NE(info.using_defaults(), 0);
    EXPECT_EQ(info.find_field("a"), utString("1"));
    EXPECT_EQ(m_temp.count(), 1);
}

TEST_F(StartupInfoDisk, KeepsTheOldFileWhenASaveIsCutShort)
{
    std::string const old = "a = " + std::string(3000, 'x') + "\n";
    give_to_ordinary_user(m_temp.path().string());
    give_to_ordinary_user(m_temp.write("startup.hrk", old));
    EXPECT_TRUE(as_ordinary_user([&] {
        auto info = loaded();
        rlimit const small{1000, 1000};
        std::signal(SIGXFSZ, SIG_IGN);
        if (setrlimit(RLIMIT_FSIZE, &small) != 0)
            return false;
        info.add_field("b", "2");
        return info.using_defaults() != 0 && info.find_field("b") == utString("2");
    }));
    EXPECT_EQ(m_temp.read("startup.hrk"), old);
    EXPECT_EQ(m_temp.count(), 1);
}

TEST_F(StartupInfoDisk, SavesThroughALink)
{
    std::filesystem::create_directory(m_temp / "dotfiles");
    m_temp.write("dotfiles/settings", "a = 1\n");
    std::filesystem::create_symlink("dotfiles/settings", m_path);
    auto info = loaded();
    info.add_field("a", "2");
    EXPECT_TRUE(std::filesystem::is_symlink(m_path));
    EXPECT_EQ(m_temp.read("dotfiles/settings"), "a = 2\n");
}

TEST_F(StartupInfoDisk, LosesNoFieldWhenManySaveAtOnce)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([this, i] {
            auto info = loaded();
            for (int n = 0; n < 10; ++n)
                info.add_field(utString("k") + utString(std::to_string(i * 10 + n)), "v");
        });
    for (auto & thread : threads)
        thread.join();
    auto const info = loaded();
    for (int i = 0; i < 40; ++i)
        EXPECT_EQ(info.find_field(utString("k") + utString(std::to_string(i))), utString("v")) << i;
}

TEST_F(StartupInfoDisk, SurvivesPathsOfAnyLengthAndNone)
{
    for (auto const & path : {"/" + std::string(4000, 'x'), std::string()}) {
        sduStartupInfo info;
        info.load(path.c_str());
        info.add_field("a", "1");
        EXPECT_EQ(info.find_field("a"), utString("1"));
        EXPECT_NE(info.using_defaults(), 0);
        EXPECT_EQ(info.changed(), 0);
    }
    sduStartupInfo info;
    info.load(nullptr);
    EXPECT_NE(info.using_defaults(), 0);
}
