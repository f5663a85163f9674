#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

#include "TranslatorFolder.h"
#include "kit/kitOrdinaryUser.h"

namespace {

/// STEP, IGES and two formats of triangles, with the signatures by which their files are known.
class Recognition : public testing::Test {
protected:
    Recognition()
    {
        auto step = format_value("STEP", {"stp", "step", "p21"});
        step["signatures"] = {{{"kind", "text"}, {"text", "ISO-10303-21;"}, {"within", 4096}}};
        auto iges = format_value("IGES", {"igs", "iges"});
        iges["signatures"] = {{{"kind", "column"}, {"column", 73}, {"text", "S"}}};
        auto stl = format_value("STL", {"stl"});
        stl["signatures"] = {{{"kind", "counted"}, {"header", 84}, {"count_offset", 80}, {"record", 50}},
                             {{"kind", "words"}, {"first", "solid"}, {"then", "facet"}}};
        auto solid = format_value("Another solid", {"sol"});
        solid["signatures"] = {{{"kind", "words"}, {"first", "solid"}, {"then", "facet"}}};
        auto viewer = format_value("A viewer", {"stp", "igs", "stl", "vue"});
        viewer["viewer"] = true;
        viewer["signatures"] = step["signatures"];
        folder.add("all", manifest_value({step, iges, stl, solid, viewer}));
        EXPECT_TRUE(folder.make().ok());
    }

    std::string write(std::string const & name, std::string const & content) const
    {
        return folder.temp().write(name, content);
    }
    std::string input_format(std::string const & path) const { return format(folder.input(), path); }
    std::string output_format(std::string const & path) const { return format(folder.output(), path); }
    static std::string format(sdbTranslatorDlls const & dlls, std::string const & path)
    {
        auto const * const translator = dlls.translator_for_file(utString(path));
        return translator ? translator->declaration().name : "none";
    }

    std::string const step_content = "/* by hand */\nISO-10303-21;\nHEADER;\n";
    std::string const iges_content = std::string(72, ' ') + "S      1\n";
    TranslatorFolder folder;
};

} // namespace

TEST_F(Recognition, GoesByTheContent)
{
    EXPECT_EQ(input_format(write("part.txt", step_content)), "STEP");
    EXPECT_EQ(input_format(write("part.step", iges_content)), "IGES");
    EXPECT_EQ(input_format(write("part", iges_content)), "IGES");
}

TEST_F(Recognition, GoesByTheExtensionWhereNoSignatureFits)
{
    EXPECT_EQ(input_format(write("notes.step", "Remember the milk.\n")), "STEP");
    EXPECT_EQ(input_format(write("empty.igs", "")), "IGES");
}

TEST_F(Recognition, IgnoresTheCaseOfTheExtension)
{
    EXPECT_EQ(input_format(write("PART.STEP", "")), "STEP");
    EXPECT_EQ(input_format(write("Part.P21", "")), "STEP");
}

TEST_F(Recognition, GivesNothingForAnUnknownFile)
{
    EXPECT_EQ(input_format(write("letter.doc", "Dear Sir")), "none");
    EXPECT_EQ(input_format(write("step", "a name, not an extension")), "none");
    EXPECT_EQ(input_format(write(".stp", "a hidden file")), "none");
    EXPECT_EQ(input_format(""), "none");
}

TEST_F(Recognition, PrefersTheExtensionWhenSeveralSignaturesFit)
{
    std::string const facets = "solid x\nfacet normal 0 0 1\n";
    EXPECT_EQ(input_format(write("part.stl", facets)), "STL");
    EXPECT_EQ(input_format(write("part.sol", facets)), "Another solid");
    EXPECT_EQ(input_format(write("part.txt", facets)), "Another solid");
}

TEST_F(Recognition, PrefersTheTranslatorOfTheFormatToAViewer)
{
    EXPECT_EQ(input_format(write("part.stp", step_content)), "STEP");
    EXPECT_EQ(input_format(write("empty.stp", "")), "STEP");
    EXPECT_EQ(input_format(write("part.vue", "")), "A viewer");
}

TEST_F(Recognition, TakesTheSizeIntoAccount)
{
    std::string binary(84 + 50, '\0');
    binary[80] = 1;
    EXPECT_EQ(input_format(write("part.bin", binary)), "STL");
    EXPECT_EQ(input_format(write("more.bin", binary + "x")), "none");
}

TEST_F(Recognition, GivesNothingForWhatIsNoFile)
{
    std::filesystem::create_directory(folder.temp() / "folder.step");
    ASSERT_EQ(::mkfifo((folder.temp() / "pipe.step").c_str(), 0600), 0);
    EXPECT_EQ(input_format(folder.temp() / "folder.step"), "none");
    EXPECT_EQ(input_format(folder.temp() / "pipe.step"), "none");
    EXPECT_EQ(output_format(folder.temp() / "folder.step"), "none");
}

TEST_F(Recognition, GoesByTheExtensionOfAFileThatCannotBeRead)
{
    std::filesystem::permissions(folder.temp().path(), std::filesystem::perms::all);
    auto const path = write("secret.igs", step_content);
    std::filesystem::permissions(path, std::filesystem::perms::none);
    EXPECT_TRUE(as_ordinary_user([&] { return input_format(path) == "IGES"; }));
}

TEST_F(Recognition, GoesByTheExtensionOfAFileThatIsNotThereYet)
{
    EXPECT_EQ(output_format(folder.temp() / "new.stp"), "STEP");
    EXPECT_EQ(output_format(folder.temp() / "new.doc"), "none");
}

TEST_F(Recognition, OfAnOutputFileTakesNoNoticeOfWhatIsAboutToBeReplaced)
{
    auto const path = write("part.step", iges_content);
    EXPECT_EQ(output_format(path), "STEP");
    EXPECT_EQ(output_format(write("part.doc", step_content)), "none");
}

TEST_F(Recognition, FollowsALink)
{
    std::filesystem::create_symlink(write("part.txt", step_content), folder.temp() / "link");
    EXPECT_EQ(input_format(folder.temp() / "link"), "STEP");
}

TEST_F(Recognition, TakesNamesThatAreNotText)
{
    EXPECT_EQ(input_format(write("caf\xe9.stp", "")), "STEP");
    EXPECT_EQ(input_format(write("part.st\xe9", step_content)), "STEP");
}
