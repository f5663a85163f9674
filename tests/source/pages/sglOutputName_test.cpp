#include "sglOutputName.h"

#include "sglComboBox.h"

#include "ap/apPathSeparator.h"
#include "kit/kitFormat.h"
#include "kit/kitOrdinaryUser.h"
#include "sdu/sduStartupKeys.h"

namespace {

struct OutputName : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        kit_install_format(folder(), "installation", "ALPHA", "alpha");
        kit_install_format(folder(), "installation", "BETA", "beta");
        start();
    }
    void save_in(char const * directory)
    {
        app().startup_info().add_field_without_saving(sduDEFAULTSAVEDIRECTORY, directory);
    }
    static std::string name(char const * input_format, char const * output_format,
                            char const * input = "/data/part.one.alpha")
    {
        utString result;
        return outfile_name(input_format, input, nullptr, output_format, result) ? result.str() : "";
    }
};

} // namespace

TEST_F(OutputName, IsTheInputWithTheExtensionOfTheOutputFormat)
{
    EXPECT_EQ(name("ALPHA", "BETA"), "/data/part.one.beta");
    EXPECT_EQ(name("ALPHA", "ALPHA"), "/data/part.one.alpha");
}

TEST_F(OutputName, HasTheProposedFormatWhereNoneIsKnown)
{
    EXPECT_EQ(name("ALPHA", ""), "/data/part.one.beta");
    EXPECT_EQ(name("BETA", unknown_format().c_str()), "/data/part.one.alpha");
}

TEST_F(OutputName, TakesTheUnknownFormatInAnotherCaseForUnknownToo)
{
    EXPECT_EQ(unknown_format(), utString("unknown format"));
    EXPECT_EQ(name("ALPHA", "UNKNOWN Format"), "/data/part.one.beta");
}

TEST_F(OutputName, IsTheInputFileWhereThereIsNoTranslator)
{
    utString result;
    EXPECT_EQ(outfile_name("GAMMA", "/data/part.x", nullptr, "BETA", result), 0);
    EXPECT_EQ(result, utString("/data/part.x"));
    EXPECT_EQ(outfile_name("ALPHA", "/data/part.y", nullptr, "GAMMA", result), 0);
    EXPECT_EQ(result, utString("/data/part.y"));
}

TEST_F(OutputName, IsInTheDirectoryOfTheSettings)
{
    save_in(folder().path().c_str());
    std::string const proposed = name("ALPHA", "BETA");
    EXPECT_EQ(proposed, folder() / "part.one.beta");
    folder().write("part.one.beta", "");
    EXPECT_TRUE(std::filesystem::exists(proposed));
}

TEST_F(OutputName, HasADoubledSeparatorBehindADirectoryThatEndsInOne)
{
    std::string const separator(1, apPathSeparator);
    save_in((folder().path().string() + separator).c_str());
    EXPECT_EQ(name("ALPHA", "BETA"), folder().path().string() + separator + separator + "part.one.beta");
}

TEST_F(OutputName, KeepsTheBytesOfAName)
{
    EXPECT_EQ(name("ALPHA", "BETA", "/data/M\xc3\xbcller \xff.alpha"), "/data/M\xc3\xbcller \xff.beta");
}

TEST_F(OutputName, GetsTheFirstNumberThatIsFreeBeforeItsExtension)
{
    auto const numbered = [](char const * path, std::vector<std::string> const & taken) {
        return sgl_numbered_name(path, [&](utString const & name) {
            return std::find(taken.begin(), taken.end(), name.str()) != taken.end();
        });
    };
    EXPECT_EQ(numbered("/d.x/a.igs", {}), utString("/d.x/a.igs"));
    EXPECT_EQ(numbered("/d.x/a.igs", {"/d.x/a.igs"}), utString("/d.x/a-2.igs"));
    EXPECT_EQ(numbered("/d.x/a.igs", {"/d.x/a.igs", "/d.x/a-2.igs", "/d.x/a-3.igs"}),
              utString("/d.x/a-4.igs"));
    EXPECT_EQ(numbered("/d.x/a", {"/d.x/a"}), utString("/d.x/a-2"));
    EXPECT_EQ(numbered("/d.x/.a", {"/d.x/.a"}), utString("/d.x/.a-2"));
    EXPECT_EQ(numbered("/a.b.igs", {"/a.b.igs"}), utString("/a.b-2.igs"));
}

TEST_F(OutputName, IsWritableWhereAFileCanBeMadeAndNothingIsLeft)
{
    utString const path(folder() / "free/new.beta");
    std::filesystem::create_directory(folder() / "free");
    EXPECT_TRUE(file_is_writable(path));
    EXPECT_TRUE(std::filesystem::is_empty(folder() / "free"));
    EXPECT_FALSE(file_is_writable(utString(folder() / "missing/new.beta")));
}

TEST_F(OutputName, IsWritableOverAFileWhichStaysAsItIs)
{
    auto const path = folder().write("there.beta", "content");
    EXPECT_TRUE(file_is_writable(utString(path)));
    EXPECT_EQ(kit_read_file(path), "content");
}

TEST_F(OutputName, IsNotWritableWhereTheUserMayNotWrite)
{
    using std::filesystem::perms;
    give_to_ordinary_user(folder().path().string());
    auto const file = folder().write("closed/there.beta", "content");
    give_to_ordinary_user(file);
    give_to_ordinary_user(folder() / "closed");
    std::filesystem::permissions(file, perms::owner_read);
    std::filesystem::permissions(folder() / "closed", perms::owner_read | perms::owner_exec);
    EXPECT_TRUE(as_ordinary_user([&] {
        return !file_is_writable(utString(file)) && !file_is_writable(utString(folder() / "closed/new.beta"));
    }));
}
