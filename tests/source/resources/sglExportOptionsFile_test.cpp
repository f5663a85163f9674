#include "sglExportOptionsFile.h"

#include "kit/kitAppTest.h"

namespace {

using Overrides = std::vector<std::pair<std::string, std::string>>;

Overrides overrides_of(sglExportSystem const * system)
{
    Overrides found;
    if (!system)
        return found;
    for (sglExportSystemIT walk(*system); ++walk;)
        found.emplace_back(walk.resource().str(), walk.value().str());
    return found;
}

struct ExportFile : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
    }

    int read(std::string const & text)
    {
        m_file.set_options_file(utString(folder().write("systems.txt", text)));
        return m_file.read_options_file();
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (int index = 0; index < m_file.num_systems(); ++index)
            found.push_back(m_file.system(index)->get_system_name().str());
        return found;
    }

    sglExportOptionsFile m_file;
};

using Names = std::vector<std::string>;

} // namespace

TEST_F(ExportFile, GivesTheSystemsInTheOrderOfTheFile)
{
    EXPECT_TRUE(m_file.invalid());
    EXPECT_TRUE(read("Milling\nvmrOptOutputUnits   in\nvmrOptProcessWireframe False\n# end\n"
                     "Casting\nvmrOptOutputUnits cm\n#\n"));
    EXPECT_FALSE(m_file.invalid());
    EXPECT_EQ(names(), (Names{"Milling", "Casting"}));
    EXPECT_EQ(overrides_of(m_file.system(0)),
              (Overrides{{"vmrOptOutputUnits", "in"}, {"vmrOptProcessWireframe", "False"}}));
    EXPECT_EQ(overrides_of(m_file.system(1)), (Overrides{{"vmrOptOutputUnits", "cm"}}));
    EXPECT_EQ(m_file.system(2), nullptr);
    EXPECT_EQ(m_file.system(-1), nullptr);
}

TEST_F(ExportFile, TakesASystemWithoutOverrides)
{
    EXPECT_TRUE(read("As it is\n#\n"));
    EXPECT_EQ(names(), Names{"As it is"});
    EXPECT_EQ(overrides_of(m_file.system(0)), Overrides{});
}

TEST_F(ExportFile, DropsABlockWhoseLastLineHasNoLineEnd)
{
    EXPECT_TRUE(read("First\n#\nSecond\n#"));
    EXPECT_EQ(names(), Names{"First"});
}

TEST_F(ExportFile, HasNoSystemWhenTheOnlyBlockIsNotClosed)
{
    EXPECT_FALSE(read("First\nvmrOptOutputUnits cm\n"));
    EXPECT_FALSE(read(""));
    EXPECT_FALSE(read("\n"));
    EXPECT_TRUE(m_file.invalid());
}

TEST_F(ExportFile, KeepsTheBlanksBehindAName)
{
    EXPECT_TRUE(read("Milling  \n#\n"));
    EXPECT_EQ(names(), Names{"Milling  "});
    EXPECT_EQ(m_file.find_named_system("Milling"), nullptr);
    EXPECT_EQ(m_file.find_named_system("Milling  "), m_file.system(0));
}

TEST_F(ExportFile, OpensASystemWithoutANameAtAnEmptyLine)
{
    EXPECT_TRUE(read("First\n#\n\nSecond name\nvmrOptOutputUnits cm\n#\n"));
    EXPECT_EQ(names(), (Names{"First", ""}));
    EXPECT_EQ(overrides_of(m_file.system(1)), (Overrides{{"vmrOptOutputUnits", "cm"}}));
}

TEST_F(ExportFile, FindsTheFirstOfTwoSystemsOfOneName)
{
    EXPECT_TRUE(read("Same\nvmrOptOutputUnits cm\n#\nSame\nvmrOptOutputUnits in\n#\n"));
    EXPECT_EQ(m_file.num_systems(), 2);
    EXPECT_EQ(m_file.find_named_system("Same"), m_file.system(0));
    EXPECT_EQ(m_file.find_named_system("same"), nullptr);
}

TEST_F(ExportFile, PassesOverAResourceThatIsNotThereAndTakesTheOthers)
{
    EXPECT_TRUE(read("Milling\nnoSuchResource 5\nvmrOptOutputUnits cm\nvmrTolTriangulate3d much\n#\n"));
    EXPECT_EQ(overrides_of(m_file.system(0)), (Overrides{{"vmrOptOutputUnits", "cm"}}));
}

TEST_F(ExportFile, PassesOverAnOverrideLineWithoutABlank)
{
    EXPECT_TRUE(read("Milling\nvmrOptOutputUnits\n   \nvmrOptProcessSurfaces False\n#\n"));
    EXPECT_EQ(overrides_of(m_file.system(0)), (Overrides{{"vmrOptProcessSurfaces", "False"}}));
}

TEST_F(ExportFile, CannotBeUsedWithAClosingLineWhereANameIsExpected)
{
    EXPECT_FALSE(read("# a comment\nFirst\n#\n"));
    EXPECT_EQ(m_file.num_systems(), 0);
    EXPECT_FALSE(read("First\n#\n#\nSecond\n#\n"));
}

TEST_F(ExportFile, EndsAtALineThatIsTooLong)
{
    std::string const longest(1023, 'n');
    EXPECT_TRUE(read(longest + "\n#\n" + longest + "n\n#\nThird\n#\n"));
    EXPECT_EQ(names(), Names{longest});
}

TEST_F(ExportFile, CountsNoCarriageReturnAmongTheCharactersOfALine)
{
    std::string const longest(1023, 'n');
    EXPECT_TRUE(read(longest + "\r\n#\r\n" + longest + "n\r\n#\r\nThird\r\n#\r\n"));
    EXPECT_EQ(names(), Names{longest});
}

TEST_F(ExportFile, MayComeFromAnotherPlatform)
{
    EXPECT_TRUE(read("Milling\r\nvmrOptProcessSurfaces False\r\n#\r\n"));
    EXPECT_EQ(names(), Names{"Milling"});
    EXPECT_EQ(overrides_of(m_file.system(0)), (Overrides{{"vmrOptProcessSurfaces", "False"}}));
}

TEST_F(ExportFile, CannotBeReadBeforeItIsNamedOrWhenItIsNotThere)
{
    EXPECT_TRUE(m_file.get_options_file().invalid());
    EXPECT_FALSE(m_file.read_options_file());
    m_file.set_options_file(utString(folder() / "not-there.txt"));
    EXPECT_FALSE(m_file.read_options_file());
    m_file.set_options_file(utString(folder().path().string()));
    EXPECT_FALSE(m_file.read_options_file());
}

TEST_F(ExportFile, IsFoundInTheUsersFolderBeforeTheInstallation)
{
    EXPECT_FALSE(m_file.use_default_options_file());
    EXPECT_TRUE(m_file.get_options_file().invalid());
    auto const installed = install("share/vmr/resources/export_overrides.txt", "Installed\n#\n");
    EXPECT_TRUE(m_file.use_default_options_file());
    EXPECT_EQ(m_file.get_options_file(), utString(installed));
    auto const own = folder().write("user/Tester/resources/export_overrides.txt", "Own\n#\n");
    EXPECT_TRUE(m_file.use_default_options_file());
    EXPECT_EQ(m_file.get_options_file(), utString(own));
    EXPECT_TRUE(m_file.read_options_file());
    EXPECT_EQ(names(), Names{"Own"});
}
