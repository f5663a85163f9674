#include "stepFormatTest.h"

#include "sdk/sdkStated.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <gp_Trsf.hxx>

#include <regex>

class StepValidation : public stepFormatTest {
protected:
    // Reads a file and keeps what was found out about it.
    void read_file(std::string const & file, Values const & values = {})
    {
        kitSide side(STEP_MANIFEST, "STEP", values, file);
        sdkDocument document;
        ASSERT_TRUE(kit_read(*make_reader(side.context()), file, document));
        m_findings = side.context().account().findings();
        m_stated = sdk_stated(document);
        for (auto const & finding : m_findings) {
            EXPECT_TRUE(finding.text.fits()) << finding.text.key();
        }
    }

    void read_text(std::string const & text) { read_file(folder().write("read.stp", text)); }

    std::string written(TopoDS_Shape const & shape, Values values = {})
    {
        values.emplace("stepWriteValidation", "always");
        EXPECT_TRUE(write(shape, path("written.stp"), values));
        return kit_read_file(path("written.stp"));
    }

    std::string written_assembly(Values values = {})
    {
        values.emplace("stepWriteValidation", "always");
        sdkDocument document;
        kit_add_assembly(document);
        EXPECT_TRUE(write(document, path("written.stp"), values));
        return kit_read_file(path("written.stp"));
    }

    // The findings of a kind; notes that sum up are "validation-property".
    std::vector<sdkFinding> of_kind(std::string const & kind) const
    {
        std::vector<sdkFinding> found;
        std::copy_if(m_findings.begin(), m_findings.end(), std::back_inserter(found),
                     [&](auto const & finding) { return finding.kind == kind; });
        return found;
    }

    void expect_all_agree(int number)
    {
        ASSERT_EQ(m_findings.size(), 1U) << m_findings.front().text.formatted();
        EXPECT_EQ(m_findings.front().weight, sdkWeight::note);
        EXPECT_EQ(m_findings.front().kind, "validation-property");
        EXPECT_EQ(m_findings.front().source, number);
        EXPECT_EQ(m_findings.front().output, number);
    }

    std::vector<sdkFinding> const & findings() const { return m_findings; }
    std::int64_t stated() const { return m_stated; }

private:
    std::vector<sdkFinding> m_findings;
    std::int64_t m_stated = 0;
};

namespace {

std::string replaced(std::string text, std::string const & pattern, std::string const & by)
{
    std::regex const expression(pattern);
    EXPECT_TRUE(std::regex_search(text, expression)) << pattern;
    return std::regex_replace(text, expression, by);
}

std::string with_entities(std::string text, std::string const & entities)
{
    return text.insert(text.find("DATA;") + 5, "\n" + entities);
}

// The number of the first entity of a kind, with its number sign.
std::string first(std::string const & text, std::string const & kind)
{
    std::smatch match;
    EXPECT_TRUE(std::regex_search(text, match, std::regex("(#[0-9]+) *= *" + kind + "\\("))) << kind;
    return match[1];
}

std::string geometric_context(std::string const & text)
{
    std::smatch match;
    EXPECT_TRUE(std::regex_search(text, match,
                                  std::regex("(#[0-9]+) *= *\\( *GEOMETRIC_REPRESENTATION_CONTEXT\\(3\\)")));
    return match[1];
}

// The definition of the shape of an instance, counted from 0.
std::string shape_of_usage(std::string const & text, int number)
{
    std::regex const usage("(#[0-9]+) *= *NEXT_ASSEMBLY_USAGE_OCCURRENCE");
    auto found = std::sregex_iterator(text.begin(), text.end(), usage);
    std::advance(found, number);
    std::smatch match;
    EXPECT_TRUE(std::regex_search(
        text, match,
        std::regex("(#[0-9]+) *= *PRODUCT_DEFINITION_SHAPE\\([^#]*" + (*found)[1].str() + "\\s*\\)")));
    return match[1];
}

double amount(std::string const & text, std::string const & measure)
{
    std::smatch match;
    EXPECT_TRUE(std::regex_search(text, match, std::regex(measure + "\\(([^)]*)\\)"))) << measure;
    return std::stod(match[1]);
}

} // namespace

TEST_F(StepValidation, OfAPartIsWritten)
{
    for (char const * const schema : {"AP214", "AP242"}) {
        auto const text = written(kit_cube(10), {{"stepWriteSchema", schema}});
        EXPECT_NE(text.find("PROPERTY_DEFINITION('geometric validation property'"), std::string::npos);
        EXPECT_NEAR(amount(text, "VOLUME_MEASURE"), 1000, 1e-6);
        EXPECT_NEAR(amount(text, "AREA_MEASURE"), 600, 1e-6);
        EXPECT_TRUE(std::regex_search(text, std::regex(R"('centre point',\(5\.)"))) << text;
    }
}

TEST_F(StepValidation, IsWrittenAsTheOptionSays)
{
    auto const states = [&](std::string const & option, std::int64_t stated, std::string const & schema) {
        sdkDocument document;
        document.add_shape(kit_cube(10), "Part");
        sdk_add_stated(document, stated);
        EXPECT_TRUE(write(document, path("option.stp"),
                          {{"stepWriteValidation", option}, {"stepWriteSchema", schema}}));
        return kit_read_file(path("option.stp")).find("geometric validation property") != std::string::npos;
    };
    EXPECT_TRUE(states("always", 0, "AP214"));
    EXPECT_TRUE(states("always", 2, "AP242"));
    EXPECT_FALSE(states("stated", 0, "AP214"));
    EXPECT_FALSE(said().says("volume"));
    EXPECT_TRUE(states("stated", 2, "AP214"));
    EXPECT_TRUE(said().says("Volume, area and centroid of 1 products were measured"));
    EXPECT_FALSE(states("never", 0, "AP214"));
    EXPECT_FALSE(said().says("lost"));
    // What the source has stated is not dropped without a word.
    EXPECT_FALSE(states("never", 2, "AP214"));
    EXPECT_TRUE(said().says("states for 2 products are lost; to have them written change the option"));
    EXPECT_FALSE(states("always", 2, "AP203"));
    EXPECT_TRUE(said().says("AP203 files hold no validation properties"));
}

TEST_F(StepValidation, IsNotMeasuredTwiceWhenTheOutputIsReadBack)
{
    kitSide side(STEP_MANIFEST, "STEP", {}, path("part.stp"));
    auto const writer = make_writer(side.context());
    EXPECT_EQ(side.context().promise().read_back.at("stepReadValidation"), "false");
}

TEST_F(StepValidation, IsComparedOnlyWhenItIsWanted)
{
    auto const text = replaced(written(kit_cube(10)), "VOLUME_MEASURE\\([^)]*\\)", "VOLUME_MEASURE(50000.)");
    auto const file = folder().write("read.stp", text);
    read_file(file, {{"stepReadValidation", "false"}});
    EXPECT_TRUE(findings().empty());
    EXPECT_EQ(stated(), 1);
    read_file(file, {{"stepReadValidation", "true"}});
    EXPECT_FALSE(findings().empty());
    EXPECT_EQ(stated(), 1);
}

TEST_F(StepValidation, StatedByTheSourceGoesFromStepToStep)
{
    written_assembly({{"vmrOptOutputUnits", "in"}});
    for (char const * const structure : {"assembly", "flat"}) {
        sdkDocument document;
        ASSERT_TRUE(read(path("written.stp"), document, {{"stepReadStructure", structure}}));
        ASSERT_TRUE(write(document, path("again.stp"), {{"vmrOptOutputUnits", "m"}}));
        read_file(path("again.stp"));
        SCOPED_TRACE(structure);
        expect_all_agree(9);
    }
}

TEST_F(StepValidation, IsInTheUnitOfTheOutput)
{
    auto const inches = written(kit_cube(25.4), {{"vmrOptOutputUnits", "in"}});
    EXPECT_NEAR(amount(inches, "VOLUME_MEASURE"), 1, 1e-9);
    EXPECT_NEAR(amount(inches, "AREA_MEASURE"), 6, 1e-9);
    EXPECT_TRUE(std::regex_search(inches, std::regex(R"('centre point',\(0?\.5)"))) << inches;
    auto const metres = written(kit_cube(2000), {{"vmrOptOutputUnits", "m"}});
    EXPECT_NEAR(amount(metres, "VOLUME_MEASURE"), 8, 1e-9);
    EXPECT_NEAR(amount(metres, "AREA_MEASURE"), 24, 1e-9);
}

TEST_F(StepValidation, AgreesInEachUnit)
{
    for (char const * const unit : {"um", "mm", "cm", "m", "km", "uin", "mil", "in", "ft", "mi"}) {
        written(BRepPrimAPI_MakeSphere(gp_Pnt(30, -20, 10), 25).Shape(), {{"vmrOptOutputUnits", unit}});
        read_file(path("written.stp"));
        SCOPED_TRACE(unit);
        expect_all_agree(3);
    }
}

TEST_F(StepValidation, OfAnAssemblyCountsEveryPlace)
{
    auto const text = written_assembly({{"vmrOptOutputUnits", "in"}});
    std::regex const volume("VOLUME_MEASURE");
    EXPECT_EQ(std::distance(std::sregex_iterator(text.begin(), text.end(), volume), {}), 3);
    read_file(path("written.stp"));
    expect_all_agree(9);
}

TEST_F(StepValidation, OfAPartAtAPlaceIsInItsOwnFrame)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(100, 40, 25));
    for (auto const & shape : {kit_cube(10), kit_compound({kit_cube(10), kit_hollow_cube()})}) {
        written(shape.Moved(translation));
        read_file(path("written.stp"));
        expect_all_agree(3);
    }
}

TEST_F(StepValidation, OfFacesAloneHasNoVolume)
{
    auto const text = written(kit_compound(kit_loose_faces(kit_cube(10))));
    EXPECT_EQ(text.find("VOLUME_MEASURE"), std::string::npos);
    EXPECT_NEAR(amount(text, "AREA_MEASURE"), 600, 1e-6);
    read_file(path("written.stp"));
    expect_all_agree(2);
    EXPECT_EQ(written(kit_wire()).find("validation"), std::string::npos);
    EXPECT_FALSE(said().says("stated in the output"));
}

TEST_F(StepValidation, ADifferentVolumeIsADifference)
{
    read_text(replaced(written(kit_cube(10)), "VOLUME_MEASURE\\([^)]*\\)", "VOLUME_MEASURE(1001.)"));
    auto const found = of_kind("validation-volume");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].weight, sdkWeight::difference);
    EXPECT_EQ(found[0].part, "Part");
    EXPECT_EQ(found[0].place, first(kit_read_file(path("read.stp")), "PROPERTY_DEFINITION"))
        << found[0].place;
    EXPECT_NEAR(*found[0].source, 1001, 1e-6);
    EXPECT_NEAR(*found[0].output, 1000, 1e-6);
    EXPECT_NE(found[0].text.formatted().find("1001"), std::string::npos);
    // The area and the centroid still agree.
    EXPECT_EQ(of_kind("validation-property").at(0).output, 2);
    EXPECT_EQ(of_kind("validation-property").at(0).source, 3);
}

TEST_F(StepValidation, MostOfTheVolumeMissingIsALoss)
{
    read_text(replaced(written(kit_cube(10)), "VOLUME_MEASURE\\([^)]*\\)", "VOLUME_MEASURE(50000.)"));
    auto const found = of_kind("validation-volume");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].weight, sdkWeight::loss);
}

TEST_F(StepValidation, AnAreaBeyondOnePartInAHundredIsALossToo)
{
    read_text(replaced(written(kit_cube(10)), "([(=, ])AREA_MEASURE\\([^)]*\\)", "$1AREA_MEASURE(650.)"));
    auto const found = of_kind("validation-area");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].weight, sdkWeight::loss);
    EXPECT_NEAR(*found[0].source, 650, 1e-6);
    EXPECT_NEAR(*found[0].output, 600, 1e-6);
}

TEST_F(StepValidation, AnotherCentroidIsADifferenceByTheSizeOfThePart)
{
    auto const text = written(kit_cube(10));
    std::string const point = R"('centre point',\([^)]*\))";
    // The box has a diagonal of 17.3.
    read_text(replaced(text, point, "'centre point',(5.001,5.,5.)"));
    EXPECT_TRUE(of_kind("validation-centroid").empty());
    read_text(replaced(text, point, "'centre point',(5.01,5.,5.)"));
    auto const found = of_kind("validation-centroid");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].weight, sdkWeight::difference);
    EXPECT_NEAR(*found[0].output, 0.01, 1e-6);
    EXPECT_NE(found[0].text.formatted().find("(5.01, 5, 5)"), std::string::npos);
    // Far off, with volume and area as stated, nothing is missing.
    read_text(replaced(text, point, "'centre point',(5.,5.,50.)"));
    ASSERT_EQ(of_kind("validation-centroid").size(), 1U);
    EXPECT_EQ(of_kind("validation-centroid")[0].weight, sdkWeight::difference);
}

TEST_F(StepValidation, AFarCentroidAloneIsALoss)
{
    auto text = replaced(written(kit_cube(10)), R"('centre point',\([^)]*\))", "'centre point',(5.,5.,50.)");
    text = replaced(text, "'volume measure'|'surface area measure'", "'something else'");
    read_text(text);
    ASSERT_EQ(of_kind("validation-centroid").size(), 1U);
    EXPECT_EQ(of_kind("validation-centroid")[0].weight, sdkWeight::loss);
}

TEST_F(StepValidation, AVolumeOfNothingIsNoLoss)
{
    read_text(replaced(written(kit_cube(10)), "VOLUME_MEASURE\\([^)]*\\)", "VOLUME_MEASURE(0.)"));
    ASSERT_EQ(of_kind("validation-volume").size(), 1U);
    EXPECT_EQ(of_kind("validation-volume")[0].weight, sdkWeight::difference);
}

TEST_F(StepValidation, HasTheUnitThatStandsAtIt)
{
    // The part is in millimetres, its volume in cubic inches and its area in square centimetres.
    auto text = written(kit_cube(254));
    text = replaced(text, R"(VOLUME_MEASURE\(\s*[^)]*\),\s*#[0-9]+\))", "VOLUME_MEASURE(1000.),#90001)");
    text = replaced(text, R"(([^_])AREA_MEASURE\s*\(\s*[^)]*\),\s*#[0-9]+\))",
                    "$1AREA_MEASURE(3870.96),#90011)");
    read_text(with_entities(text,
                            "#90001=DERIVED_UNIT((#90002));\n#90002=DERIVED_UNIT_ELEMENT(#90003,3.);\n"
                            "#90003=(CONVERSION_BASED_UNIT('INCH',#90004)LENGTH_UNIT()NAMED_UNIT(#90005));\n"
                            "#90004=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(2.54),#90006);\n"
                            "#90005=DIMENSIONAL_EXPONENTS(1.,0.,0.,0.,0.,0.,0.);\n"
                            "#90006=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.CENTI.,.METRE.));\n"
                            "#90011=DERIVED_UNIT((#90012));\n#90012=DERIVED_UNIT_ELEMENT(#90006,2.);\n"));
    expect_all_agree(3);
}

TEST_F(StepValidation, InAUnitOfLengthOrInNoneIsInThatOfTheShapes)
{
    auto text = written(kit_cube(25.4), {{"vmrOptOutputUnits", "in"}});
    std::smatch length;
    ASSERT_TRUE(std::regex_search(text, length, std::regex(R"(DERIVED_UNIT_ELEMENT\((#[0-9]+),)")));
    text = replaced(text, R"((VOLUME_MEASURE\(\s*[^)]*\)),\s*#[0-9]+\))", "$1," + length[1].str() + ")");
    text = replaced(text, R"(([^_]AREA_MEASURE\s*\(\s*[^)]*\)),\s*#[0-9]+\))", "$1,$$)");
    // The unit of length need not be the first of its context.
    text = replaced(text, R"(GLOBAL_UNIT_ASSIGNED_CONTEXT\s*\(\s*\(\s*(#[0-9]+),\s*(#[0-9]+),)",
                    "GLOBAL_UNIT_ASSIGNED_CONTEXT(($2,$1,");
    read_text(text);
    expect_all_agree(3);
}

TEST_F(StepValidation, InAUnitThatIsNotUnderstoodIsNotCompared)
{
    // The unit is defined by itself.
    auto const text = replaced(written(kit_cube(10)), R"(VOLUME_MEASURE\(\s*[^)]*\),\s*#[0-9]+\))",
                               "VOLUME_MEASURE(1000.),#90001)");
    read_text(with_entities(text,
                            "#90001=(CONVERSION_BASED_UNIT('X',#90002)LENGTH_UNIT()NAMED_UNIT(#90003));\n"
                            "#90002=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(2.),#90001);\n"
                            "#90003=DIMENSIONAL_EXPONENTS(1.,0.,0.,0.,0.,0.,0.);\n"));
    ASSERT_EQ(findings().size(), 2U);
    EXPECT_EQ(findings()[0].output, 2);
    EXPECT_NE(findings()[1].text.formatted().find("1 stated validation properties could not be compared"),
              std::string::npos);
}

TEST_F(StepValidation, OfAProductThatDidNotArriveIsALoss)
{
    auto const text = written(kit_cube(10));
    std::smatch unit;
    ASSERT_TRUE(std::regex_search(text, unit, std::regex("(#[0-9]+) *= *DERIVED_UNIT\\(")));
    read_text(with_entities(
        text, "#90001=PRODUCT_DEFINITION('design','',#90002," + first(text, "PRODUCT_DEFINITION_CONTEXT") +
                  ");\n#90002=PRODUCT_DEFINITION_FORMATION('','',#90003);\n"
                  "#90003=PRODUCT('Missing','Missing','',(" +
                  first(text, "PRODUCT_CONTEXT") +
                  "));\n"
                  "#90004=PRODUCT_DEFINITION_SHAPE('','',#90001);\n"
                  "#90005=PROPERTY_DEFINITION('geometric validation property','',#90004);\n"
                  "#90006=PROPERTY_DEFINITION_REPRESENTATION(#90005,#90007);\n"
                  "#90007=REPRESENTATION('',(#90008,#90009)," +
                  geometric_context(text) +
                  ");\n"
                  "#90008=MEASURE_REPRESENTATION_ITEM('volume measure',VOLUME_MEASURE(5.)," +
                  unit[1].str() + ");\n#90009=CARTESIAN_POINT('centre point',(1.,2.,3.));\n"));
    auto const found = of_kind("validation-volume");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].weight, sdkWeight::loss);
    EXPECT_EQ(found[0].part, "Missing");
    EXPECT_EQ(found[0].output, 0);
    ASSERT_EQ(of_kind("validation-centroid").size(), 1U);
    EXPECT_NE(of_kind("validation-centroid")[0].text.formatted().find("nothing arrived"), std::string::npos);
}

TEST_F(StepValidation, OfAnInstanceIsComparedAtItsPlace)
{
    auto const text = written_assembly();
    auto const statement = [&](char const * x) {
        // The second instance of the blue box has its centroid at x = 45.
        return "#90004=PROPERTY_DEFINITION('geometric validation property',''," + shape_of_usage(text, 2) +
               ");\n#90006=PROPERTY_DEFINITION_REPRESENTATION(#90004,#90007);\n"
               "#90007=REPRESENTATION('',(#90009)," +
               geometric_context(text) + ");\n#90009=CARTESIAN_POINT('centre point',(" + x + ",5.,2.5));\n";
    };
    read_text(with_entities(text, statement("45.")));
    expect_all_agree(10);
    read_text(with_entities(text, statement("25.")));
    ASSERT_EQ(of_kind("validation-centroid").size(), 1U);
    EXPECT_NEAR(*of_kind("validation-centroid")[0].output, 20, 1e-6);
}

TEST_F(StepValidation, OfOtherKindsIsTold)
{
    auto const text = written(kit_cube(10));
    read_text(with_entities(text, "#90001=PROPERTY_DEFINITION('assembly validation property',''," +
                                      first(text, "PRODUCT_DEFINITION_SHAPE") +
                                      ");\n#90002=PROPERTY_DEFINITION_REPRESENTATION(#90001,#90003);\n"
                                      "#90003=REPRESENTATION('',(#90004)," +
                                      geometric_context(text) +
                                      ");\n"
                                      "#90004=CARTESIAN_POINT('notional solids centroid',(0.,0.,0.));\n"));
    ASSERT_EQ(findings().size(), 2U);
    EXPECT_NE(findings()[1].text.formatted().find("1 validation properties of other kinds"),
              std::string::npos);
}

TEST_F(StepValidation, OfASolidAreComparedWithThatSolid)
{
    auto const two =
        kit_compound({kit_cube(10), BRepPrimAPI_MakeBox(gp_Pnt(100, 0, 0), gp_Pnt(120, 20, 20)).Shape()});
    auto const text = written(two, {{"stepWriteSchema", "AP242"}});
    std::smatch solids;
    ASSERT_TRUE(std::regex_search(text, solids,
                                  std::regex("(#[0-9]+) *= *MANIFOLD_SOLID_BREP[^#]*#[0-9]+\\);[^]*?"
                                             "(#[0-9]+) *= *MANIFOLD_SOLID_BREP")));
    auto const shape = first(text, "PRODUCT_DEFINITION_SHAPE");
    auto const context = geometric_context(text);
    std::smatch unit;
    ASSERT_TRUE(std::regex_search(text, unit, std::regex("(#[0-9]+) *= *DERIVED_UNIT\\(")));
    auto const stated = [&](std::string const & volume) {
        return "#90001=SHAPE_ASPECT('','second'," + shape +
               ",.F.);\n"
               "#90002=PROPERTY_DEFINITION('geometric validation property','',#90001);\n"
               "#90003=PROPERTY_DEFINITION_REPRESENTATION(#90002,#90004);\n"
               "#90004=REPRESENTATION('',(#90005)," +
               context +
               ");\n"
               "#90005=MEASURE_REPRESENTATION_ITEM('volume measure',VOLUME_MEASURE(" +
               volume + ")," + unit[1].str() + ");\n";
    };
    std::string const by_representation =
        "#90010=PROPERTY_DEFINITION('','',#90001);\n#90011=SHAPE_DEFINITION_REPRESENTATION(#90010,#90012);\n"
        "#90012=SHAPE_REPRESENTATION('',(" +
        solids[2].str() + ")," + context + ");\n";
    std::string const by_usage =
        "#90010=ITEM_IDENTIFIED_REPRESENTATION_USAGE('','',#90001,#90004," + solids[2].str() + ");\n";
    std::string const by_property =
        "#90010=ITEM_IDENTIFIED_REPRESENTATION_USAGE('','',#90002,#90004," + solids[2].str() + ");\n";
    for (auto const & link : {by_representation, by_usage, by_property}) {
        SCOPED_TRACE(link);
        read_text(with_entities(text, stated("8000.") + link));
        expect_all_agree(4);
        read_text(with_entities(text, stated("8100.") + link));
        auto const found = of_kind("validation-volume");
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].place, "#90002");
        EXPECT_EQ(found[0].part, "Part");
        EXPECT_NEAR(*found[0].output, 8000, 1e-6);
    }
    // Without a link nobody knows which shape is meant.
    read_text(with_entities(text, stated("8000.")));
    EXPECT_EQ(of_kind("validation-property").size(), 2U);
    EXPECT_TRUE(of_kind("validation-volume").empty());
}
