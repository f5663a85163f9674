#include "stepTextTest.h"

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
