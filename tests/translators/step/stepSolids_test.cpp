#include "stepTextTest.h"

#include <cmath>

class StepSolids : public stepTextTest {};

TEST_F(StepSolids, AnExtrudedAreaStandsBesideOtherSolids)
{
    expect_volumes(fault("extruded.step"), {6000, M_PI * 25 * 10});
}

TEST_F(StepSolids, ARevolvedAreaStandsBesideOtherSolids)
{
    expect_volumes(fault("revolved.step"), {6000, 2 * M_PI * 10 * M_PI * 25});
}

TEST_F(StepSolids, ABlockStandsBesideOtherSolids)
{
    expect_volumes(fault("csg_block.step"), {6000, 1000});
}

TEST_F(StepSolids, AReplicaIsScaledAndMoved)
{
    expect_volumes(fault("solidreplica.step"), {6000, 48000});
    sdkDocument document;
    ASSERT_TRUE(read(fault("solidreplica.step"), document));
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 120, 1e-6);
}

TEST_F(StepSolids, EachPrimitiveHasItsVolume)
{
    expect_volumes(
        file_of("#100,#101,#102,#103,#104,#105,#106",
                "#100=CSG_SOLID('block',#200);\n#200=BLOCK('',#16,10.,20.,30.);\n"
                "#101=CSG_SOLID('wedge',#201);\n#201=RIGHT_ANGULAR_WEDGE('',#16,10.,20.,30.,4.);\n"
                "#102=CSG_SOLID('sphere',#202);\n#202=SPHERE('',5.,#13);\n"
                "#103=CSG_SOLID('torus',#203);\n#203=TORUS('',#17,10.,2.);\n"
                "#104=CSG_SOLID('cylinder',#204);\n#204=RIGHT_CIRCULAR_CYLINDER('',#17,10.,3.);\n"
                "#105=CSG_SOLID('cone',#205);\n#205=RIGHT_CIRCULAR_CONE('',#17,4.,1.,0.785398163397448);\n"
                "#106=CSG_SOLID('tip',#206);\n#206=RIGHT_CIRCULAR_CONE('',#17,3.,0.,0.785398163397448);\n"),
        {6000, (10 + 4) / 2.0 * 20 * 30, 4 / 3.0 * M_PI * 125, 2 * M_PI * M_PI * 10 * 4, 90 * M_PI,
         M_PI * 4 / 3 * (1 + 5 + 25), 9 * M_PI});
}

TEST_F(StepSolids, AConeGrowsWiderAlongItsAxis)
{
    sdkDocument document;
    ASSERT_TRUE(
        read(file_of("#100",
                     "#100=CSG_SOLID('',#200);\n#200=RIGHT_CIRCULAR_CONE('',#17,4.,0.,0.785398163397448);\n"),
             document));
    GProp_GProps properties;
    BRepGProp::VolumeProperties(XCAFDoc_ShapeTool::GetShape(document.free_shapes().First()), properties);
    EXPECT_NEAR(properties.CentreOfMass().Z(), 3 + 3, 1e-6);
    EXPECT_NEAR(properties.CentreOfMass().X(), 1, 1e-6);
}

TEST_F(StepSolids, UnitsOfTheFileHold)
{
    auto const inch = "(CONVERSION_BASED_UNIT('INCH',#90)LENGTH_UNIT()NAMED_UNIT(#91))";
    std::string const inches =
        "#90=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(25.4),#92);\n#91=DIMENSIONAL_EXPONENTS("
        "1.,0.,0.,0.,0.,0.,0.);\n"
        "#92=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.));\n";
    auto const solids =
        "#100=CSG_SOLID('',#200);\n#200=BLOCK('',#16,1.,2.,3.);\n"
        "#101=EXTRUDED_AREA_SOLID('',#301,#14,2.);\n#300=PLANE('',#16);\n"
        "#301=CURVE_BOUNDED_SURFACE('',#300,(#302),.F.);\n#302=BOUNDARY_CURVE('',(#303),.F.);\n"
        "#303=COMPOSITE_CURVE_SEGMENT(.CONTINUOUS.,.T.,#304);\n#304=CIRCLE('',#16,0.5);\n"
        "#102=SOLID_REPLICA('',#100,#401);\n"
        "#401=CARTESIAN_TRANSFORMATION_OPERATOR_3D('','','',$,$,#402,0.5,$);\n"
        "#402=CARTESIAN_POINT('',(10.,0.,0.));\n";
    double const cubic = std::pow(25.4, 3);
    auto const file = file_of("#100,#101,#102", inches + solids, inch);
    expect_volumes(file, {6 * cubic, M_PI / 2 * cubic, 0.75 * cubic});
    sdkDocument document;
    ASSERT_TRUE(read(file, document));
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 11 * 25.4, 1e-6);
}

TEST_F(StepSolids, BooleanResultsOfPrimitivesAndHalfSpaces)
{
    expect_volumes(
        file_of("#100,#101,#102,#103",
                "#200=BLOCK('',#16,10.,10.,10.);\n#201=BLOCK('',#18,10.,10.,10.);\n"
                "#18=AXIS2_PLACEMENT_3D('',#19,#14,#15);\n#19=CARTESIAN_POINT('',(6.,2.,3.));\n"
                "#300=BOOLEAN_RESULT('',.UNION.,#200,#201);\n#100=CSG_SOLID('',#300);\n"
                "#301=BOOLEAN_RESULT('it''s #200',.DIFFERENCE.,#200,#201);\n#101=CSG_SOLID('',#301);\n"
                "#302=BOOLEAN_RESULT('',.INTERSECTION.,#300,/* not #1 */#303);\n#102=CSG_SOLID('',#302);\n"
                "#303=HALF_SPACE_SOLID('',#304,.T.);\n#304=PLANE('',#20);\n"
                "#20=AXIS2_PLACEMENT_3D('',#21,#15,#14);\n#21=CARTESIAN_POINT('',(3.,0.,0.));\n"
                "#305=BOOLEAN_RESULT('',.DIFFERENCE.,#200,#303);\n#103=CSG_SOLID('',#305);\n"),
        {1500, 500, 200, 800});
}

TEST_F(StepSolids, OperandsInACircleHaveNoResultAndDoNoHarm)
{
    expect_volumes(file_of("#100,#101,#102",
                           "#100=CSG_SOLID('',#200);\n#200=BLOCK('',#16,10.,10.,10.);\n"
                           "#101=CSG_SOLID('',#300);\n#300=BOOLEAN_RESULT('',.UNION.,#200,#300);\n"
                           "#102=CSG_SOLID('',#102);\n"),
                   {1000});
}

TEST_F(StepSolids, PrimitivesThatDescribeNoSolidHaveNoResult)
{
    expect_volumes(file_of("#100,#101,#102,#103",
                           "#100=CSG_SOLID('',#200);\n#200=BLOCK('',#16,10.,10.,10.);\n"
                           "#101=CSG_SOLID('',#201);\n#201=BLOCK('',#16,10.,-10.,10.);\n"
                           "#102=CSG_SOLID('',#202);\n#202=TORUS('',#17,2.,3.);\n"
                           "#103=CSG_SOLID('',#203);\n#203=SPHERE('',0.,#13);\n"),
                   {1000});
}

TEST_F(StepSolids, AnAreaSweptAgainstItsNormalHasItsMaterialInside)
{
    expect_volumes(file_of("#101", "#101=EXTRUDED_AREA_SOLID('',#301,#305,2.);\n#300=PLANE('',#16);\n"
                                   "#301=CURVE_BOUNDED_SURFACE('',#300,(#302),.F.);\n"
                                   "#302=BOUNDARY_CURVE('',(#303),.F.);\n"
                                   "#303=COMPOSITE_CURVE_SEGMENT(.CONTINUOUS.,.T.,#304);\n"
                                   "#304=CIRCLE('',#16,5.);\n#305=DIRECTION('',(0.,0.,-1.));\n"),
                   {M_PI * 50});
}

TEST_F(StepSolids, ABuiltSolidHasItsNameAndColour)
{
    std::string const style =
        "#500=STYLED_ITEM('',(#501),#100);\n#501=PRESENTATION_STYLE_ASSIGNMENT((#502));\n"
        "#502=SURFACE_STYLE_USAGE(.BOTH.,#503);\n#503=SURFACE_SIDE_STYLE('',(#504));\n"
        "#504=SURFACE_STYLE_FILL_AREA(#505);\n#505=FILL_AREA_STYLE('',(#506));\n"
        "#506=FILL_AREA_STYLE_COLOUR('',#507);\n#507=COLOUR_RGB('',1.,0.,0.);\n"
        "#508=MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION('',(#500),#10);\n";
    sdkDocument document;
    ASSERT_TRUE(read(file_of("#100", "#100=CSG_SOLID('Klotz',#200);\n#200=BLOCK('',#16,1.,2.,3.);\n" + style),
                     document));
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"Part"});
    EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(Quantity_Color(Quantity_NOC_RED)));
}
