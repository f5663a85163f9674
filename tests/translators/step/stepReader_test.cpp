#include "stepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

class StepReader : public stepFormatTest {
protected:
    std::string cube_text()
    {
        EXPECT_TRUE(write(kit_cube(10), path("cube.stp")));
        return kit_read_file(path("cube.stp"));
    }

    std::string refusal(std::string const & text) { return kitFormatTest::refusal("refused.step", text); }
};

namespace {

bool has(std::string const & text, std::string const & part)
{
    return text.find(part) != std::string::npos;
}

std::string with(std::string text, std::string const & from, std::string const & to)
{
    return text.replace(text.find(from), from.size(), to);
}

} // namespace

TEST_F(StepReader, RefusesTextThatIsNoStepFile)
{
    EXPECT_TRUE(has(refusal("A shopping list\n- milk\n"), "is not a STEP file"));
    EXPECT_TRUE(has(refusal("solid cube\nendsolid cube\n"), "is not a STEP file"));
}

TEST_F(StepReader, RefusesAFileThatIsCutOff)
{
    auto const text = cube_text();
    EXPECT_TRUE(has(refusal(text.substr(0, text.size() / 2)), "is cut off"));
    EXPECT_TRUE(has(refusal("ISO-10303-21;"), "is cut off"));
}

TEST_F(StepReader, RefusesGarbageAfterTheRightHeader)
{
    auto const text = cube_text();
    auto const header = text.substr(0, text.find("DATA;") + 5);
    refusal(header + "\n\x01\x02((((''#;;garbage\nENDSEC;\nEND-ISO-10303-21;\n");
}

TEST_F(StepReader, RefusesAFileWithoutShapesAndNamesItsSchema)
{
    auto const text = cube_text();
    auto const header = text.substr(0, text.find("DATA;") + 5);
    auto const said = refusal(header + "\n#1=CARTESIAN_POINT('',(0.,0.,0.));\nENDSEC;\nEND-ISO-10303-21;\n");
    EXPECT_TRUE(has(said, "has no shapes")) << said;
    EXPECT_TRUE(has(said, "AUTOMOTIVE_DESIGN")) << said;
}

TEST_F(StepReader, RefusesAFileWithoutShapesThatNamesNoSchema)
{
    auto const said = refusal("ISO-10303-21;\nHEADER;\nENDSEC;\nDATA;\n#1=CARTESIAN_POINT('',(0.,0.,0.));\n"
                              "ENDSEC;\nEND-ISO-10303-21;\n");
    EXPECT_TRUE(has(said, "it names no schema")) << said;
}

TEST_F(StepReader, RefusesAnEmptyFileAFolderAndAMissingFile)
{
    EXPECT_TRUE(has(refusal(""), "is empty"));
    sdkDocument document;
    EXPECT_TRUE(has(read(folder().path().string(), document).text().formatted(), "is not a file"));
    EXPECT_TRUE(has(read(path("missing.stp"), document).text().formatted(), "No such file or directory"));
}

TEST_F(StepReader, ReadsAFileWithoutItsLastLineAndSaysSo)
{
    auto const text = cube_text();
    // The cut may lie in front of the line, in it, or in the word that closes the data.
    auto const last = text.find("END-ISO-10303-21;");
    auto const closed = text.rfind("ENDSEC;", last) + std::string("ENDSEC").size();
    for (auto const length : {last, last + 5, last + std::string("END-ISO-10303-21").size(), closed}) {
        auto const file = folder().write("short.stp", text.substr(0, length));
        sdkDocument document;
        auto const result = read(file, document);
        EXPECT_TRUE(result) << length << ": " << result.text().formatted();
        EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6) << length;
        ASSERT_EQ(said().errors.size(), 1U) << length;
        EXPECT_TRUE(has(said().errors[0], "lacks its last line")) << said().errors[0];
    }
}

TEST_F(StepReader, ReadsAFileThatBeginsWithAByteOrderMarkOrAComment)
{
    auto const text = cube_text();
    auto const cut = text.substr(0, text.find("END-ISO-10303-21;"));
    for (auto const & written :
         {"\xEF\xBB\xBF" + text, "\xEF\xBB\xBF" + cut, " \r\n/* from afar */\n" + text}) {
        sdkDocument document;
        EXPECT_TRUE(read(folder().write("marked.stp", written), document));
        EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    }
}

TEST_F(StepReader, RefusesAFileThatIsCutInItsDataWhateverStandsThere)
{
    auto const text = cube_text();
    auto const data = text.find("DATA;") + 5;
    EXPECT_TRUE(has(refusal(text.substr(0, data)), "is cut off"));
    EXPECT_TRUE(has(refusal(text.substr(0, text.rfind("ENDSEC;"))), "is cut off"));
    EXPECT_TRUE(has(refusal(text.substr(0, text.rfind("ENDSEC;") + 3)), "is cut off"));
    EXPECT_TRUE(has(refusal(text.substr(0, text.rfind("ENDSEC;")) + "END-ISO-10303-21;\n"), "is cut off"));
}

TEST_F(StepReader, SaysTheLengthUnitOfTheFile)
{
    ASSERT_TRUE(write(kit_cube(25.4), path("inch.stp"), {{"vmrOptOutputUnits", "in"}}));
    sdkDocument document;
    ASSERT_TRUE(read(path("inch.stp"), document));
    EXPECT_TRUE(said().says("Length unit of the file is in"));
    EXPECT_NEAR(sdk_measure(document).volume, 25.4 * 25.4 * 25.4, 1e-6);
}

TEST_F(StepReader, NamesTheEntityThatIsNotAsTheStandardHasIt)
{
    auto const text = cube_text();
    auto const at = text.find("CLOSED_SHELL('',(");
    ASSERT_NE(at, std::string::npos);
    auto const file =
        folder().write("broken.stp", with(text, "CLOSED_SHELL('',(", "CLOSED_SHELL('','extra',("));
    sdkDocument document;
    read(file, document);
    EXPECT_TRUE(said().says("CLOSED_SHELL"));
}

TEST_F(StepReader, RefusesATransformationWithoutOrigin)
{
    auto const text = cube_text();
    auto const said =
        refusal(with(text, "DATA;\n",
                     "DATA;\n#90001=CARTESIAN_TRANSFORMATION_OPERATOR_3D('',#90002,#90002,$,1.,"
                     "#90002);\n#90002=DIRECTION('',(0.,0.,1.));\n#90003=CARTESIAN_POINT('',(0.,0.,0.));\n"));
    EXPECT_TRUE(has(said, "#90001")) << said;
}

TEST_F(StepReader, ReadsSeveralFilesIntoOneDocument)
{
    ASSERT_TRUE(write(kit_cube(10), path("one.stp"), {}, "One"));
    ASSERT_TRUE(write(kit_cube(20), path("two.stp"), {}, "Two"));
    sdkDocument document;
    ASSERT_TRUE(read(path("one.stp"), document));
    ASSERT_TRUE(read(path("two.stp"), document));
    EXPECT_EQ(kit_part_names(document), (std::vector<std::string>{"One", "Two"}));
    EXPECT_NEAR(sdk_measure(document).volume, 9000, 1e-6);
}

TEST_F(StepReader, OpensAFileWhoseNameIsInAnotherScript)
{
    ASSERT_TRUE(write(kit_cube(10), path("деталь 箱 é.stp")));
    sdkDocument document;
    EXPECT_TRUE(read(path("деталь 箱 é.stp"), document));
}

// Two products of one shape.
TEST_F(StepReader, TellsTheNamesThatAreLostWhereProductsShareAShape)
{
    for (std::string const name : {"Other", "Part"}) {
        auto text = cube_text();
        auto const number_before = [&](std::string const & kind, std::size_t from) {
            auto const at = text.rfind('#', text.find(" = " + kind + "(", from));
            return text.substr(at, text.find(' ', at) - at);
        };
        auto const link = text.find("SHAPE_DEFINITION_REPRESENTATION(#");
        auto const shape =
            text.substr(text.find(",#", link) + 1, text.find(')', link) - text.find(",#", link) - 1);
        auto const entities =
            "#9000=PRODUCT('" + name + "','" + name + "','',(" + number_before("PRODUCT_CONTEXT", 0) +
            "));\n" + "#9001=PRODUCT_DEFINITION_FORMATION('','',#9000);\n" +
            "#9002=PRODUCT_DEFINITION('design','',#9001," + number_before("PRODUCT_DEFINITION_CONTEXT", 0) +
            ");\n" + "#9003=PRODUCT_DEFINITION_SHAPE('','',#9002);\n" +
            "#9004=SHAPE_DEFINITION_REPRESENTATION(#9003," + shape + ");\n";
        text.insert(text.rfind("ENDSEC;"), entities);
        sdkDocument document;
        ASSERT_TRUE(read(folder().write("shared.stp", text), document));
        auto const & findings = account().findings();
        if (name == "Part") {
            EXPECT_TRUE(findings.empty()) << "nothing is lost";
        } else {
            ASSERT_EQ(findings.size(), 1U);
            EXPECT_EQ(findings.front().kind, "name");
            EXPECT_EQ(findings.front().weight, sdkWeight::difference);
            EXPECT_EQ(findings.front().source, 1);
            EXPECT_TRUE(findings.front().text.fits());
        }
    }
}
