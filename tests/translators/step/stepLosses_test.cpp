#include "stepFormatTest.h"

class StepLosses : public stepFormatTest {
protected:
    // A cube in a file that has these entities as well.
    std::string cube_and(std::string const & entities)
    {
        EXPECT_TRUE(write(kit_cube(10), path("cube.stp")));
        auto const text = kit_read_file(path("cube.stp"));
        return text.substr(0, text.find("DATA;")) + "DATA;\n" + entities +
               text.substr(text.find("DATA;") + 5);
    }

    void read_text(std::string const & text)
    {
        sdkDocument document;
        EXPECT_TRUE(read(folder().write("read.stp", text), document));
        EXPECT_FALSE(document.empty());
    }
};

TEST_F(StepLosses, AreNotToldOfAFileThatHasNone)
{
    read_text(cube_and(""));
    EXPECT_TRUE(account().findings().empty());
}

TEST_F(StepLosses, CountDimensionsTolerancesDatumsAnnotationsAndViews)
{
    read_text(
        cube_and("#90001=SHAPE_ASPECT('','',#90002,.F.);\n#90002=PRODUCT_DEFINITION_SHAPE('','',$);\n"
                 "#90003=DIMENSIONAL_SIZE(#90001,'diameter');\n#90004=DIMENSIONAL_SIZE(#90001,'diameter');\n"
                 "#90005=DIMENSIONAL_LOCATION('linear distance',$,#90001,#90001);\n"
                 "#90006=DATUM('','',#90002,.F.,'A');\n"
                 "#90007=FLATNESS_TOLERANCE('','',#90008,#90001);\n"
                 "#90008=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(0.1),#90009);\n"
                 "#90009=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.));\n"
                 "#90010=CAMERA_MODEL_D3('Front',$,$);\n"
                 "#90011=ANNOTATION_OCCURRENCE('',(),#90012);\n#90012=CARTESIAN_POINT('',(0.,0.,0.));\n"
                 "#90013=TESSELLATED_ANNOTATION_OCCURRENCE('',(),#90012);\n"));
    ASSERT_EQ(account().findings().size(), 1U);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.weight, sdkWeight::loss);
    EXPECT_EQ(finding.kind, "annotation");
    EXPECT_EQ(finding.source, 8);
    EXPECT_NE(finding.text.formatted().find(
                  "3 dimensions, 1 geometric tolerances, 1 datums, 2 annotations and 1 views are lost"),
              std::string::npos);
    EXPECT_FALSE(said().says("lost"));
}

TEST_F(StepLosses, CountTheAnnotationOfDrawings)
{
    read_text(cube_and("#90001=ANNOTATION_FILL_AREA_OCCURRENCE('',(),#90003,#90003);\n"
                       "#90002=(ANNOTATION_OCCURRENCE()ANNOTATION_SUBFIGURE_OCCURRENCE()"
                       "DRAUGHTING_ANNOTATION_OCCURRENCE()GEOMETRIC_REPRESENTATION_ITEM()"
                       "REPRESENTATION_ITEM('')STYLED_ITEM((),#90003));\n"
                       "#90003=CARTESIAN_POINT('',(0.,0.,0.));\n"));
    ASSERT_EQ(account().findings().size(), 1U);
    EXPECT_EQ(account().findings().front().source, 2);
}

TEST_F(StepLosses, CountTolerancesOfKindsThatTheToolkitDoesNotKnow)
{
    read_text(cube_and("#90001=SHAPE_ASPECT('','',#90002,.F.);\n#90002=PRODUCT_DEFINITION_SHAPE('','',$);\n"
                       "#90003=DIMENSIONAL_SIZE(#90001,'diameter');\n"
                       "#90004=(FLATNESS_TOLERANCE()GEOMETRIC_TOLERANCE('','',$,#90001)"
                       "GEOMETRIC_TOLERANCE_WITH_DEFINED_AREA_UNIT(.SQUARE.,$)"
                       "GEOMETRIC_TOLERANCE_WITH_DEFINED_UNIT($));\n"));
    ASSERT_EQ(account().findings().size(), 1U);
    EXPECT_EQ(account().findings().front().source, 2);
}
