#include "stepTextTest.h"

#include <algorithm>

class StepInventory : public stepTextTest {
protected:
    // The places of the losses, in their order.
    std::vector<std::string> lost() const
    {
        std::vector<std::string> places;
        for (auto const & finding : account().findings()) {
            if (finding.weight == sdkWeight::loss) {
                EXPECT_EQ(finding.kind, "not-translated");
                places.push_back(finding.place);
            }
        }
        return places;
    }

    // The file gives the box beside the item #920, which is lost and named.
    void expect_box_and_loss(std::string const & file, std::string const & kind)
    {
        expect_volumes(fault(file), {6000});
        EXPECT_EQ(lost(), std::vector<std::string>{"#920"});
        EXPECT_EQ(said().failed(), 1);
        EXPECT_EQ(account().held(sdkSourceKind::solid), 2);
        EXPECT_NE(account().findings().front().text.formatted().find(kind), std::string::npos);
        EXPECT_EQ(account().findings().front().part, "box");
        EXPECT_TRUE(said().errors.empty()) << said().errors.front();
    }

    std::string cube_text()
    {
        EXPECT_TRUE(write(kit_cube(10), path("cube.stp")));
        return kit_read_file(path("cube.stp"));
    }
};

TEST_F(StepInventory, CountsWhatAFileHolds)
{
    auto const file = folder().write("cube.stp", cube_text());
    sdkDocument document;
    ASSERT_TRUE(read(file, document));
    EXPECT_EQ(account().held(sdkSourceKind::root), 1);
    EXPECT_EQ(account().held(sdkSourceKind::solid), 1);
    EXPECT_EQ(account().held(sdkSourceKind::shell), 1);
    EXPECT_EQ(account().held(sdkSourceKind::face), 6);
    EXPECT_EQ(account().held(sdkSourceKind::curve), 0);
    EXPECT_TRUE(account().findings().empty());
    EXPECT_EQ(said().failed(), 0);
}

TEST_F(StepInventory, CountsLooseCurves)
{
    ASSERT_TRUE(write(kit_wire(), path("wire.stp")));
    sdkDocument document;
    ASSERT_TRUE(read(path("wire.stp"), document));
    EXPECT_EQ(account().held(sdkSourceKind::curve), 2);
    EXPECT_EQ(account().held(sdkSourceKind::solid), 0);
    EXPECT_TRUE(lost().empty());
}

TEST_F(StepInventory, NamesAHalfSpaceBesideABox)
{
    expect_box_and_loss("halfspace.step", "HALF_SPACE_SOLID");
}

TEST_F(StepInventory, NamesAnOperationThatLeavesNothingBesideABox)
{
    expect_box_and_loss("boolsolid.step", "CSG_SOLID");
}

TEST_F(StepInventory, NamesAFaceThatIsNotInTheFileAndKeepsTheOthers)
{
    auto text = cube_text();
    auto const shell = text.find("CLOSED_SHELL('',(#") + std::string("CLOSED_SHELL('',(").size();
    text.replace(shell, text.find(',', shell) - shell, "#99999");
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("dangling.stp", text), document));
    EXPECT_EQ(sdk_measure(document).faces, 5);
    EXPECT_EQ(lost(), std::vector<std::string>{"#99999"});
    EXPECT_EQ(said().failed(), 1);
}

TEST_F(StepInventory, NamesAKindThatIsNotKnownBesideABox)
{
    expect_volumes(fault("sweptdisk.step"), {6000});
    EXPECT_EQ(lost(), std::vector<std::string>{"#920"});
    EXPECT_EQ(said().failed(), 1);
    EXPECT_TRUE(said().errors.empty());
    EXPECT_NE(account().findings().front().text.formatted().find("SWEPT_DISK_SOLID"), std::string::npos);
}

TEST_F(StepInventory, SaysNothingOfSolidsThatAreBuilt)
{
    for (auto const * file : {"csg_block.step", "extruded.step", "revolved.step", "solidreplica.step",
                              "mapped1.step", "mapped_mirror.step"}) {
        sdkDocument document;
        ASSERT_TRUE(read(fault(file), document)) << file;
        EXPECT_TRUE(lost().empty()) << file;
        EXPECT_TRUE(said().errors.empty()) << said().errors.front();
        EXPECT_EQ(account().held(sdkSourceKind::solid), std::string(file).starts_with("mapped") ? 1 : 2)
            << file;
    }
}

TEST_F(StepInventory, NamesOneInvalidPrimitiveAndReadsTheOther)
{
    expect_volumes(file_of("#100,#101", "#100=CSG_SOLID('good',#200);\n#200=SPHERE('',5.,#13);\n"
                                        "#101=CSG_SOLID('bad',#201);\n#201=TORUS('',#17,2.,3.);\n"),
                   {4 / 3.0 * M_PI * 125});
    EXPECT_EQ(lost(), std::vector<std::string>{"#101"});
    EXPECT_NE(account().findings().front().text.formatted().find("\"bad\""), std::string::npos);
}

TEST_F(StepInventory, NamesMappedItemsInACircle)
{
    sdkDocument document;
    ASSERT_TRUE(read(file_of("#100,#104", "#100=MAPPED_ITEM('',#101,#16);\n#101=REPRESENTATION_MAP(#16,#9);\n"
                                          "#104=CSG_SOLID('',#105);\n#105=BLOCK('',#16,6.,1.,1.);\n"),
                     document));
    EXPECT_EQ(lost(), std::vector<std::string>{"#100"});
    EXPECT_EQ(sdk_measure(document).solids, 1);
}

TEST_F(StepInventory, NamesASolidInAShapeThatNoProductHas)
{
    sdkDocument document;
    ASSERT_TRUE(read(file_of("#100", "#100=CSG_SOLID('',#101);\n#101=BLOCK('',#16,6.,1.,1.);\n"
                                     "#110=SHAPE_REPRESENTATION('alone',(#111),#10);\n"
                                     "#111=CSG_SOLID('lone',#112);\n#112=SPHERE('',-1.,#13);\n"),
                     document));
    EXPECT_EQ(lost(), std::vector<std::string>{"#111"});
}

TEST_F(StepInventory, NamesAProductWhoseShapeIsOfAKindThatIsNotKnown)
{
    sdkDocument document;
    ASSERT_TRUE(read(
        file_of("#100",
                "#100=CSG_SOLID('',#101);\n#101=BLOCK('',#16,6.,1.,1.);\n"
                "#110=PRODUCT('Other','Other','',(#2));\n#111=PRODUCT_DEFINITION_FORMATION('','',#110);\n"
                "#112=PRODUCT_DEFINITION('design','',#111,#3);\n#113=PRODUCT_DEFINITION_SHAPE('','',#112);\n"
                "#114=SHAPE_DEFINITION_REPRESENTATION(#113,#115);\n"
                "#115=VOXEL_SHAPE_REPRESENTATION('',(#16),#10);\n"),
        document));
    EXPECT_EQ(lost(), std::vector<std::string>{"#112"});
    EXPECT_EQ(account().findings().front().part, "Other");
}
