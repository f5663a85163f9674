#include "igesFormatTest.h"

#include "igesText.h"
#include "sdk/geometry/sdkMeasures.h"

#include <BRepCheck_Analyzer.hxx>
#include <TopExp_Explorer.hxx>

#include <algorithm>

class IgesPlaces : public igesFormatTest {
protected:
    // Of all solids, sorted.
    static std::vector<double> volumes(sdkDocument const & document)
    {
        std::vector<double> volumes;
        auto const whole = sdk_whole_shape(document);
        EXPECT_TRUE(BRepCheck_Analyzer(whole).IsValid());
        for (TopExp_Explorer solid(whole, TopAbs_SOLID); solid.More(); solid.Next()) {
            volumes.push_back(sdk_measure(solid.Current()).volume);
        }
        std::sort(volumes.begin(), volumes.end());
        return volumes;
    }

    // Reads the file, and what becomes of it in an IGES file, and expects these solids both times.
    void expect_solids(std::string const & file, std::vector<double> const & wanted)
    {
        sdkDocument document;
        ASSERT_TRUE(read(FAULTS "/" + file, document));
        expect_volumes(document, wanted);
        ASSERT_TRUE(write(document, path("again.igs")));
        sdkDocument again;
        ASSERT_TRUE(read(path("again.igs"), again));
        expect_volumes(again, wanted);
    }

    static void expect_volumes(sdkDocument const & document, std::vector<double> const & wanted)
    {
        auto const found = volumes(document);
        ASSERT_EQ(found.size(), wanted.size());
        for (std::size_t at = 0; at < found.size(); ++at) {
            EXPECT_NEAR(found[at], wanted[at], wanted[at] * 1e-6);
        }
        EXPECT_EQ(sdk_measure(document).faces,
                  sdk_measure(sdk_whole_shape(document)).solids * std::int64_t(9));
    }
};

TEST_F(IgesPlaces, TwoOfOneSubfigureAreTwoInstances)
{
    expect_solids("plain408_faces.igs", {5250, 5250});
    sdkDocument document;
    ASSERT_TRUE(read(FAULTS "/plain408_faces.igs", document));
    EXPECT_TRUE(said().says("9 faces were sewn into 1 solids and 0 open shells"));
    ASSERT_EQ(document.free_shapes().Length(), 1);
    EXPECT_EQ(sdkDocument::name(document.free_shapes().First()), "plain408_faces");
    EXPECT_EQ(XCAFDoc_ShapeTool::NbComponents(document.free_shapes().First()), 2);
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"PART"});
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 110, 1e-4);
}

TEST_F(IgesPlaces, AGroupUnderAMirroringMatrixIsOneMirroredPart)
{
    expect_solids("mirror124_faces.igs", {5250});
    sdkDocument document;
    ASSERT_TRUE(read(FAULTS "/mirror124_faces.igs", document));
    EXPECT_TRUE(said().says("9 faces were sewn into 1 solids and 0 open shells"));
    ASSERT_EQ(document.parts().Length(), 1);
    EXPECT_NEAR(sdk_measure(document).box.CornerMin().X(), -15, 1e-4);
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), -5, 1e-4);
}

TEST_F(IgesPlaces, AMirroredSubfigureStandsBesideThePlainOne)
{
    expect_solids("mirror408_faces.igs", {5250, 5250});
    sdkDocument document;
    ASSERT_TRUE(read(FAULTS "/mirror408_faces.igs", document));
    EXPECT_NEAR(sdk_measure(document).box.CornerMin().X(), -15, 1e-4);
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 10, 1e-4);
}

TEST_F(IgesPlaces, AScaledSubfigureIsScaled)
{
    for (auto const * const file : {"scale408_brep.igs", "scale408_faces.igs"}) {
        expect_solids(file, {5250, 42000});
        sdkDocument document;
        ASSERT_TRUE(read(FAULTS "/" + std::string(file), document));
        EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 120, 1e-4);
    }
}

TEST_F(IgesPlaces, MembersOfGroupsAndSubfiguresAreBuiltAndPlaced)
{
    igesText file;
    int const block = file.add({150, "1.,2.,3.,0.,0.,0.,1.,0.,0.,0.,0.,1.", 0, 0, "00010000"});
    auto const definition = file.add({308, "0,4HPART,1," + std::to_string(block), 0, 0, "00010200"});
    auto const twice = file.add({408, std::to_string(definition) + ",100.,0.,0.,2.", 0, 0, "00010000"});
    int const shift = file.add({124, "1.,0.,0.,50.,0.,1.,0.,0.,0.,0.,1.,0."});
    int const ball = file.add({158, "10.,0.,0.,0.", 0, shift, "00010000"});
    file.add({402, "2," + std::to_string(twice) + "," + std::to_string(ball), 7});
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("group.igs", file.text()), document));
    auto const found = volumes(document);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_NEAR(found[0], 48, 1e-6);
    EXPECT_NEAR(found[1], 4188.790205, 1e-4);
    auto const box = sdk_measure(document).box;
    EXPECT_NEAR(box.CornerMin().X(), 40, 1e-4);
    EXPECT_NEAR(box.CornerMax().X(), 102, 1e-4);
    EXPECT_EQ(said().failed(), 0);
}

TEST_F(IgesPlaces, SolidInstancesAndAssembliesPlaceSolids)
{
    igesText file("1.,6,1HM");
    int const block = file.add({150, ".01,.01,.01,0.,0.,0.,1.,0.,0.,0.,0.,1.", 0, 0, "00010000"});
    int const shift = file.add({124, "1.,0.,0.,.05,0.,1.,0.,0.,0.,0.,1.,0.", 0, 0, "00010000"});
    auto const one = std::to_string(block);
    file.add({430, one, 0, shift});
    file.add({184, "2," + one + "," + one + ",0," + std::to_string(shift)});
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("assembly.igs", file.text()), document));
    EXPECT_EQ(volumes(document).size(), 3u);
    EXPECT_NEAR(sdk_measure(document).volume, 3000, 1e-6);
    EXPECT_NEAR(sdk_measure(document).box.CornerMin().X(), 0, 1e-4);
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 60, 1e-4);
}
