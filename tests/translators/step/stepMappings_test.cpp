#include "stepTextTest.h"

#include "sdk/sdkVisibility.h"

class StepMappings : public stepTextTest {
protected:
    // A block of 6 x 1 x 1 from (1, 2, 3), mapped by the item #100 into the shape of the only product.
    std::string mapped(std::string const & target, std::string const & origin = "#16")
    {
        return file_of("#100", "#100=MAPPED_ITEM('',#101,#102);\n#101=REPRESENTATION_MAP(" + origin +
                                   ",#103);\n#103=SHAPE_REPRESENTATION('',(#104),#10);\n"
                                   "#104=CSG_SOLID('',#105);\n#105=BLOCK('',#16,6.,1.,1.);\n"
                                   "#106=CARTESIAN_POINT('',(0.,0.,0.));\n"
                                   "#107=AXIS2_PLACEMENT_3D('',#106,#14,#15);\n"
                                   "#108=DIRECTION('',(-1.,0.,0.));\n#109=DIRECTION('',(0.,1.,0.));\n"
                                   "#110=CARTESIAN_POINT('',(100.,0.,0.));\n" +
                                   target);
    }

    // The extent along x of what is read, and its volume.
    void expect_range(std::string const & file, double from, double to, double volume)
    {
        sdkDocument document;
        auto const result = read(file, document);
        ASSERT_TRUE(result) << result.text().formatted();
        auto const measures = sdk_measure(document);
        EXPECT_NEAR(measures.volume, volume, 1e-6);
        EXPECT_NEAR(measures.box.CornerMin().X(), from, 1e-6);
        EXPECT_NEAR(measures.box.CornerMax().X(), to, 1e-6);
    }
};

TEST_F(StepMappings, AProductThatIsAnotherMappedStandsBesideIt)
{
    expect_volumes(fault("mapped1.step"), {6000, 6000});
    sdkDocument document;
    ASSERT_TRUE(read(fault("mapped1.step"), document));
    EXPECT_EQ(kit_part_names(document), (std::vector<std::string>{"box", "part2"}));
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 110, 1e-6);
}

TEST_F(StepMappings, ItsScaleIsInTheGeometry)
{
    expect_volumes(fault("mapped_scale2.step"), {6000, 48000});
}

TEST_F(StepMappings, ItsMirrorIsInTheGeometryAndTheVolumePositive)
{
    expect_volumes(fault("mapped_mirror.step"), {6000, 6000});
    sdkDocument document;
    ASSERT_TRUE(read(fault("mapped_mirror.step"), document));
    EXPECT_NEAR(sdk_measure(document).box.CornerMin().Z(), -30, 1e-6);
}

TEST_F(StepMappings, WithinAProductTheyAreScaledAndMirroredToo)
{
    expect_range(
        mapped("#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',#15,#109,#110,2.,#14);\n", "#107"), 102,
        114, 48);
    expect_range(
        mapped("#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',#108,#109,#110,1.,#14);\n", "#107"), 93,
        99, 6);
    expect_range(mapped("#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',$,$,#110,0.5,$);\n", "#107"),
                 100.5, 103.5, 0.75);
}

TEST_F(StepMappings, AnOperatorActsOnTheFrameOfTheOrigin)
{
    expect_range(mapped("#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',#15,#109,#110,2.,#14);\n"), 100,
                 112, 48);
    expect_range(mapped("#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',#15,#109,#110,1.,#14);\n"), 100,
                 106, 6);
    expect_range(mapped("#102=AXIS2_PLACEMENT_3D('',#110,#14,#15);\n"), 100, 106, 6);
}

TEST_F(StepMappings, RigidOnesWithinAProductStayInstances)
{
    sdkDocument document;
    ASSERT_TRUE(
        read(file_of("#100,#120", "#100=MAPPED_ITEM('',#101,#102);\n#120=MAPPED_ITEM('',#101,#121);\n"
                                  "#101=REPRESENTATION_MAP(#107,#103);\n"
                                  "#103=SHAPE_REPRESENTATION('',(#104),#10);\n"
                                  "#104=CSG_SOLID('',#105);\n#105=BLOCK('',#16,6.,1.,1.);\n"
                                  "#106=CARTESIAN_POINT('',(0.,0.,0.));\n"
                                  "#107=AXIS2_PLACEMENT_3D('',#106,#14,#15);\n"
                                  "#102=AXIS2_PLACEMENT_3D('',#13,#14,#15);\n"
                                  "#121=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',$,$,#13,1.,$);\n"),
             document));
    EXPECT_EQ(sdk_measure(document).solids, 2);
    EXPECT_EQ(document.parts().Length(), 1);
}

TEST_F(StepMappings, InACircleDoNoHarm)
{
    sdkDocument document;
    auto const file =
        file_of("#100,#104", "#100=MAPPED_ITEM('',#101,#102);\n#101=REPRESENTATION_MAP(#16,#103);\n"
                             "#103=SHAPE_REPRESENTATION('',(#104,#120),#10);\n"
                             "#104=CSG_SOLID('',#105);\n#105=BLOCK('',#16,6.,1.,1.);\n"
                             "#120=MAPPED_ITEM('',#121,#102);\n#121=REPRESENTATION_MAP(#16,#9);\n"
                             "#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',$,$,#13,2.,$);\n");
    read(file, document);
    EXPECT_GE(sdk_measure(document).solids, 1);
}

TEST_F(StepMappings, CopiesHaveTheColoursLayersAndVisibilityOfTheirSource)
{
    auto text = kit_read_file(fault("mapped_scale2.step"));
    auto const style = [](std::string const & first, std::string const & kind, std::string const & item,
                          std::string const & colour) {
        auto const number = [&](int more) { return "#" + std::to_string(std::stoi(first) + more); };
        return number(0) + "=" + kind + "('',(" + number(1) + ")," + item + ");\n" + number(1) +
               "=PRESENTATION_STYLE_ASSIGNMENT((" + number(2) + "));\n" + number(2) +
               "=SURFACE_STYLE_USAGE(.BOTH.," + number(3) + ");\n" + number(3) + "=SURFACE_SIDE_STYLE('',(" +
               number(4) + "));\n" + number(4) + "=SURFACE_STYLE_FILL_AREA(" + number(5) + ");\n" +
               number(5) + "=FILL_AREA_STYLE('',(" + number(6) + "));\n" + number(6) +
               "=FILL_AREA_STYLE_COLOUR(''," + number(7) + ");\n" + number(7) + "=COLOUR_RGB(''," + colour +
               ");\n";
    };
    text.insert(text.rfind("ENDSEC;"),
                style("5000", "STYLED_ITEM", "#15", "1.,0.,0.") +
                    style("5010", "OVER_RIDING_STYLED_ITEM", "#17,#5000", "0.,0.,1.") +
                    "#5020=MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION('',(#5000,#5010),#345);\n"
                    "#5021=PRESENTATION_LAYER_ASSIGNMENT('Seven','',(#15));\n#5022=INVISIBILITY((#5000));\n");
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("styled.stp", text), document));
    ASSERT_EQ(document.parts().Length(), 2);
    for (auto const & part : document.parts()) {
        Quantity_Color colour;
        ASSERT_TRUE(document.colours()->GetColor(part, XCAFDoc_ColorSurf, colour)) << sdkDocument::name(part);
        EXPECT_TRUE(colour.IsEqual(Quantity_Color(Quantity_NOC_RED)));
        TDF_LabelSequence layers;
        document.layers()->GetLayers(part, layers);
        EXPECT_EQ(layers.Length(), 1);
        EXPECT_TRUE(sdk_hidden(document, part));
        TDF_LabelSequence faces;
        XCAFDoc_ShapeTool::GetSubShapes(part, faces);
        ASSERT_EQ(faces.Length(), 1);
        ASSERT_TRUE(document.colours()->GetColor(faces.First(), XCAFDoc_ColorSurf, colour));
        EXPECT_TRUE(colour.IsEqual(Quantity_Color(Quantity_NOC_BLUE1)));
    }
}

TEST_F(StepMappings, CopiesWithinAProductHaveTheColoursOfTheirSource)
{
    auto const styles = "#500=STYLED_ITEM('',(#501),#104);\n#501=PRESENTATION_STYLE_ASSIGNMENT((#502));\n"
                        "#502=SURFACE_STYLE_USAGE(.BOTH.,#503);\n#503=SURFACE_SIDE_STYLE('',(#504));\n"
                        "#504=SURFACE_STYLE_FILL_AREA(#505);\n#505=FILL_AREA_STYLE('',(#506));\n"
                        "#506=FILL_AREA_STYLE_COLOUR('',#507);\n#507=COLOUR_RGB('',1.,0.,0.);\n"
                        "#508=MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION('',(#500),#10);\n"
                        "#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',#15,#109,#110,2.,#14);\n";
    sdkDocument document;
    ASSERT_TRUE(read(mapped(styles), document));
    ASSERT_EQ(document.parts().Length(), 1);
    EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(Quantity_Color(Quantity_NOC_RED)));
}

TEST_F(StepMappings, OperatorsWithoutSecondNameAndDescriptionAreReadAndTold)
{
    expect_range(mapped("#102=CARTESIAN_TRANSFORMATION_OPERATOR_3D('a, (b;',#15,$,#110,2.,#14);\n", "#107"),
                 102, 114, 48);
    ASSERT_EQ(account().findings().size(), 1U);
    EXPECT_EQ(account().findings().front().kind, "not-standard");
    EXPECT_EQ(account().findings().front().weight, sdkWeight::note);
    EXPECT_TRUE(said().errors.empty()) << said().errors.front();
}
