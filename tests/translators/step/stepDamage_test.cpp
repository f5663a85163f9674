#include "sdk/geometry/sdkMeasures.h"
#include "step/stepTextFaults.h"
#include "stepFormatTest.h"

#include <BRepPrimAPI_MakeCylinder.hxx>

#include <regex>

class StepDamage : public stepFormatTest {
protected:
    std::string cube_text()
    {
        EXPECT_TRUE(write(kit_cube(10), path("cube.stp")));
        return kit_read_file(path("cube.stp"));
    }

    static std::string with(std::string const & text, std::string const & pattern, std::string const & other)
    {
        std::regex const expression(pattern);
        EXPECT_TRUE(std::regex_search(text, expression)) << pattern;
        return std::regex_replace(text, expression, other, std::regex_constants::format_first_only);
    }

    // Reads the text, which has to leave so many faces, and returns what is told of the others.
    std::string told_of(std::string const & text, int faces)
    {
        sdkDocument document;
        auto const result = read(folder().write("damaged.stp", text), document);
        EXPECT_TRUE(result) << result.text().formatted();
        EXPECT_EQ(document.count_entities().faces, faces);
        std::string told;
        for (auto const & finding : account().findings()) {
            told += finding.text.formatted() + "\n";
        }
        return told;
    }
};

TEST_F(StepDamage, AReferenceToNothingCostsTheFaceThatHasIt)
{
    auto const told = told_of(
        with(cube_text(), R"(ADVANCED_FACE\('',\(#\d+\),#\d+)", "ADVANCED_FACE('',(#99999),#99999"), 5);
    EXPECT_NE(told.find("the ADVANCED_FACE is damaged and left out"), std::string::npos) << told;
    EXPECT_EQ(said().failed(), 1);
}

TEST_F(StepDamage, ANumberThatIsNoneCostsTheFacesThatNeedIt)
{
    auto const text = cube_text();
    for (auto const * const number : {"NaN", "1.E400", "-INF", "1.D999"}) {
        std::smatch match;
        ASSERT_TRUE(std::regex_search(text, match, std::regex(R"(VERTEX_POINT\('',#(\d+)\))")));
        auto const own = "#" + match[1].str() + " = CARTESIAN_POINT\\('',\\([^,]*,";
        auto const other = "#" + match[1].str() + " = CARTESIAN_POINT('',(" + number + ",";
        auto const said_of = told_of(with(text, own, other), 3);
        EXPECT_NE(said_of.find(std::string(number) + " stands where a number should be"), std::string::npos)
            << said_of;
    }
}

TEST_F(StepDamage, AUnitThatIsNoNumberCostsTheFile)
{
    EXPECT_TRUE(write(kit_cube(25.4), path("inch.stp"), {{"vmrOptOutputUnits", "in"}}));
    auto const text = with(kit_read_file(path("inch.stp")), R"(LENGTH_MEASURE_WITH_UNIT\(25[^,]*)",
                           "LENGTH_MEASURE_WITH_UNIT(NaN");
    EXPECT_NE(refusal("unit.stp", text).find("the units or the precision of the file cannot be read"),
              std::string::npos);
}

TEST_F(StepDamage, ListsThatAreEmptyOrCutAndEdgesOfThemselvesDoNotCrash)
{
    auto const text = cube_text();
    told_of(with(text, R"(EDGE_LOOP\('',\([^)]*\)\))", "EDGE_LOOP('',())"), 5);
    told_of(with(text, R"(VECTOR\('',#\d+,[^)]*\))", "VECTOR('')"), 4);
    told_of(with(text, R"(#(\d+) = ORIENTED_EDGE\('',\*,\*,#\d+)", "#$1 = ORIENTED_EDGE('',*,*,#$1"), 5);
}

TEST_F(StepDamage, CurvesOfSurfacesWithoutAnySurfaceCostTheirFaces)
{
    ASSERT_TRUE(write(BRepPrimAPI_MakeCylinder(5, 10).Shape(), path("cylinder.stp")));
    told_of(with(kit_read_file(path("cylinder.stp")), R"(SURFACE_CURVE\('',(#\d+),\([^)]*\))",
                 "SURFACE_CURVE('',$1,()"),
            1);
}

TEST_F(StepDamage, ColoursThatLeadNowhereCostTheColour)
{
    sdkDocument document;
    auto const label = document.add_shape(kit_cube(10), "cube");
    document.colours()->SetColor(label, Quantity_Color(1, 0, 0, Quantity_TOC_RGB), XCAFDoc_ColorSurf);
    ASSERT_TRUE(write(document, path("red.stp")));
    auto const text = kit_read_file(path("red.stp"));
    told_of(with(text, R"(SURFACE_STYLE_USAGE\(.BOTH.,#\d+\))", "SURFACE_STYLE_USAGE(.BOTH.,#99999)"), 6);
    told_of(with(text, R"(FILL_AREA_STYLE_COLOUR\('',#\d+\))", "FILL_AREA_STYLE_COLOUR('',#99999)"), 6);
}

TEST_F(StepDamage, RefusesAssembliesThatAreTooDeep)
{
    // Each product has the next one as its only component.
    std::string data = "#1=PRODUCT_DEFINITION_FORMATION('','',#2);\n#2=PRODUCT('p','p','',());\n";
    for (int level = 0; level < 20'000; ++level) {
        auto const number = std::to_string(10 + 2 * level);
        auto const next = std::to_string(12 + 2 * level);
        data += "#" + number + "=PRODUCT_DEFINITION('','',#1,$);\n#" + std::to_string(11 + 2 * level) +
                "=NEXT_ASSEMBLY_USAGE_OCCURRENCE('a','a','',#" + number + ",#" + next + ",$);\n";
    }
    sdkDocument document;
    auto const text = "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n" + data +
                      "ENDSEC;\nEND-ISO-10303-21;\n";
    auto const result = read(folder().write("deep.stp", text), document);
    EXPECT_EQ(result.status(), sdkStatus::too_big);
    EXPECT_NE(result.text().formatted().find("20000 levels deep"), std::string::npos)
        << result.text().formatted();
}

TEST(StepTextFaults, FindsNumbersThatAreNoneAndNothingElse)
{
    auto const faults = step_text_faults(
        "ISO-10303-21;\nDATA;\n#1=A('NaN ''INF',(1.,-2.5E-10,1.E+99,.T.,.NAN.,$,*,#2,1.E-400),B(1));\n"
        "#2=C(/* NaN */ 1.E400,nan);\n#3 = ( D() E(*,1.5E3) );\n#4=F((),'',());\nENDSEC;\n");
    ASSERT_EQ(faults.numbers.size(), 2u);
    EXPECT_EQ(faults.numbers[0].entity, 2);
    EXPECT_EQ(faults.numbers[0].text, "1.E400");
    EXPECT_EQ(faults.numbers[1].text, "nan");
    EXPECT_EQ(faults.empty_lists, std::set<int>{4});
}
