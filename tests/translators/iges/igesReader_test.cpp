#include "igesFormatTest.h"
#include "igesText.h"
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

TEST_F(IgesReader, TakesAUnitThatIsGivenByName)
{
    sdkDocument document;
    ASSERT_TRUE(read(FAULTS "/ig_flag3_inch.igs", document));
    EXPECT_TRUE(said().says("Length unit of the file is in"));
    EXPECT_NEAR(sdk_measure(document).volume, 98322384, 1);
    EXPECT_TRUE(account().findings().empty());
}

TEST_F(IgesReader, SaysThatItAssumesAUnitWhoseNameIsNotKnown)
{
    igesText file("1.,3,3HFOO");
    file.add({150, "1.,1.,1.,0.,0.,0.,1.,0.,0.,0.,0.,1."});
    auto const named = folder().write("foo.igs", file.text());
    sdkDocument document;
    ASSERT_TRUE(read(named, document));
    ASSERT_EQ(account().findings().size(), 1u);
    EXPECT_EQ(account().findings().front().kind, "unit-assumed");
    EXPECT_TRUE(has(account().findings().front().text.formatted(), "\"FOO\", which is not known; mm"));
    EXPECT_NEAR(sdk_measure(document).volume, 1, 1e-6);
    ASSERT_TRUE(read(named, document, {{"igesReadUnits", "cm"}}));
    EXPECT_TRUE(account().findings().empty());
}

TEST_F(IgesReader, SaysThatAModelHasAScaleAndKeepsItsLengths)
{
    sdkDocument document;
    ASSERT_TRUE(read(FAULTS "/ig_scale05.igs", document));
    ASSERT_EQ(account().findings().size(), 1u);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.kind, "model-scale");
    EXPECT_EQ(finding.weight, sdkWeight::note);
    EXPECT_EQ(finding.source, 0.5);
    EXPECT_TRUE(has(finding.text.formatted(), "0.5 times the real size"));
    EXPECT_NEAR(sdk_measure(document).volume, 6000, 1e-6);
}
