#include "igesFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

class IgesReader : public igesFormatTest {
protected:
    std::string cube_text()
    {
        EXPECT_TRUE(write(kit_cube(10), path("cube.igs")));
        return kit_read_file(path("cube.igs"));
    }

    std::string refusal(std::string const & text) { return kitFormatTest::refusal("refused.iges", text); }
};

namespace {

bool has(std::string const & text, std::string const & part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(IgesReader, RefusesTextThatIsNoIgesFile)
{
    EXPECT_TRUE(has(refusal("ISO-10303-21;\nHEADER;\n"), "is not an IGES file"));
    EXPECT_TRUE(has(refusal(std::string(3000, 'g')), "is not an IGES file"));
}

TEST_F(IgesReader, RefusesAFileThatIsCutOff)
{
    auto const text = cube_text();
    EXPECT_TRUE(has(refusal(text.substr(0, text.size() / 2)), "is cut off"));
}

TEST_F(IgesReader, RefusesGarbageThatHasTheRightEnds)
{
    auto const text = cube_text();
    auto const first = text.substr(0, text.find('\n') + 1);
    auto const last = text.substr(text.rfind('\n', text.size() - 2) + 1);
    std::string garbage;
    for (int line = 0; line < 20; ++line) {
        garbage += std::string(72, static_cast<char>('a' + line)) + "G      1\n";
    }
    refusal(first + garbage + last);
}

TEST_F(IgesReader, RefusesTheCompressedForm)
{
    auto text = cube_text();
    text[72] = 'C';
    EXPECT_TRUE(has(refusal(text), "compressed or binary"));
}

TEST_F(IgesReader, RefusesAnEmptyFileAndAMissingOne)
{
    EXPECT_TRUE(has(refusal(""), "is empty"));
    sdkDocument document;
    EXPECT_TRUE(has(read(path("missing.igs"), document).text().formatted(), "No such file or directory"));
}

TEST_F(IgesReader, SaysHowManyFacesWereSewn)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.igs"), {{"igesWriteSolids", "false"}}));
    sdkDocument document;
    ASSERT_TRUE(read(path("cube.igs"), document));
    EXPECT_TRUE(said().says("6 faces were sewn into 1 solids and 0 open shells"));
}

TEST_F(IgesReader, OpensAFileWhoseNameIsInAnotherScript)
{
    ASSERT_TRUE(write(kit_cube(10), path("деталь 箱.igs")));
    sdkDocument document;
    EXPECT_TRUE(read(path("деталь 箱.igs"), document));
}

TEST_F(IgesReader, ReadsSeveralFilesIntoOneDocument)
{
    ASSERT_TRUE(write(kit_cube(10), path("one.igs"), {}, "One"));
    ASSERT_TRUE(write(kit_cube(20), path("two.igs"), {}, "Two"));
    sdkDocument document;
    ASSERT_TRUE(read(path("one.igs"), document));
    ASSERT_TRUE(read(path("two.igs"), document));
    EXPECT_EQ(kit_part_names(document), (std::vector<std::string>{"One", "Two"}));
    EXPECT_NEAR(sdk_measure(document).volume, 9000, 1e-6);
}
