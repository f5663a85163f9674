#include "igesFormatTest.h"
#include "igesText.h"
#include "sdk/geometry/sdkMeasures.h"

class IgesAccount : public igesFormatTest {
protected:
    sdkAccount read_account(std::string const & file, sdkDocument & document, Values const & values = {})
    {
        EXPECT_TRUE(read(file, document, values)) << file;
        return account();
    }

    static std::string block() { return "10.,10.,10.,0.,0.,0.,1.,0.,0.,0.,0.,1."; }
};

TEST_F(IgesAccount, CountsWhatAFileHolds)
{
    sdkDocument document;
    auto const solid = read_account(FAULTS "/blank.igs", document, {{"igesReadVisibleOnly", "false"}});
    EXPECT_EQ(solid.held(sdkSourceKind::root), 1);
    EXPECT_EQ(solid.held(sdkSourceKind::solid), 1);
    EXPECT_EQ(solid.held(sdkSourceKind::shell), 1);
    EXPECT_EQ(solid.held(sdkSourceKind::face), 6);
    EXPECT_TRUE(solid.findings().empty());
    EXPECT_EQ(said().failed(), 0);
    auto const faces = read_account(FAULTS "/plain408_faces.igs", document);
    EXPECT_EQ(faces.held(sdkSourceKind::root), 2);
    EXPECT_EQ(faces.held(sdkSourceKind::solid), 0);
    EXPECT_EQ(faces.held(sdkSourceKind::face), 9);
    EXPECT_TRUE(faces.findings().empty());
    EXPECT_EQ(said().failed(), 0);
}

TEST_F(IgesAccount, CountsCurvesAndPoints)
{
    igesText file;
    file.add({110, "0.,0.,0.,10.,0.,0."});
    auto const point = file.add({116, "1.,2.,3.,0", 0, 0, "00010000"});
    auto const line = file.add({110, "0.,0.,0.,0.,10.,0.", 0, 0, "00010000"});
    file.add({402, "2," + std::to_string(point) + "," + std::to_string(line), 7});
    sdkDocument document;
    auto const account = read_account(folder().write("curves.igs", file.text()), document);
    EXPECT_EQ(account.held(sdkSourceKind::root), 2);
    EXPECT_EQ(account.held(sdkSourceKind::curve), 2);
    EXPECT_EQ(account.held(sdkSourceKind::point), 1);
    EXPECT_TRUE(account.findings().empty());
    EXPECT_EQ(said().failed(), 0);
}

TEST_F(IgesAccount, NamesSolidsThatAreNotKnownBesideOthers)
{
    igesText file;
    file.add({150, block()});
    file.add({168, "5.,4.,3.,0.,0.,0.,1.,0.,0.,0.,0.,1."});
    auto const operand = std::to_string(file.add({150, block(), 0, 0, "00010000"}));
    file.add({180, "3,-" + operand + ",-" + operand + ",1"});
    sdkDocument document;
    auto const account = read_account(folder().write("unknown.igs", file.text()), document);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_EQ(account.held(sdkSourceKind::root), 3);
    EXPECT_EQ(account.held(sdkSourceKind::solid), 3);
    ASSERT_EQ(account.findings().size(), 2u);
    EXPECT_EQ(said().failed(), 2);
    for (std::size_t at = 0; at < 2; ++at) {
        auto const & finding = account.findings()[at];
        EXPECT_EQ(finding.weight, sdkWeight::loss);
        EXPECT_EQ(finding.kind, "not-translated");
        EXPECT_EQ(finding.place, at == 0 ? "D3" : "D7");
        EXPECT_TRUE(finding.text.fits());
        EXPECT_NE(finding.text.formatted().find(at == 0 ? "(ellipsoid)" : "(boolean tree)"),
                  std::string::npos);
    }
}

TEST_F(IgesAccount, NamesWhatASubfigureLacks)
{
    igesText file;
    auto const good = file.add({150, block(), 0, 0, "00010000"});
    auto const bad = file.add({168, "5.,4.,3.,0.,0.,0.,1.,0.,0.,0.,0.,1.", 0, 0, "00010000"});
    auto const definition =
        file.add({308, "0,4HPART,2," + std::to_string(good) + "," + std::to_string(bad), 0, 0, "00010200"});
    for (auto const * const x : {"0.", "50."}) {
        file.add({408, std::to_string(definition) + "," + x + ",0.,0.,1."});
    }
    sdkDocument document;
    auto const account = read_account(folder().write("subfigure.igs", file.text()), document);
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6);
    EXPECT_EQ(account.held(sdkSourceKind::root), 2);
    ASSERT_EQ(account.findings().size(), 1u);
    EXPECT_EQ(account.findings().front().place, "D3");
    EXPECT_EQ(said().failed(), 1);
}

TEST_F(IgesAccount, AnUnboundedPlaneIsNamedAndLeftOut)
{
    sdkDocument document;
    auto const account = read_account(FAULTS "/ig_plane.igs", document);
    EXPECT_NEAR(sdk_measure(document).volume, 6000, 1e-6);
    EXPECT_EQ(sdk_measure(document).faces, 6);
    ASSERT_EQ(account.findings().size(), 1u);
    EXPECT_EQ(account.findings().front().weight, sdkWeight::loss);
    EXPECT_EQ(account.findings().front().place, "D105");
    EXPECT_NE(account.findings().front().text.formatted().find("D105: the plane has no bounds"),
              std::string::npos);
    EXPECT_EQ(said().failed(), 1);
}

TEST_F(IgesAccount, AFileOfAnUnboundedPlaneHasNoShapes)
{
    igesText file;
    file.add({108, "0.,0.,1.,50.,0,0.,0.,0.,0."});
    EXPECT_NE(refusal("plane.igs", file.text()).find("no shapes that can be read"), std::string::npos);
}

TEST_F(IgesAccount, AFileOfNothingThatIsKnownHasNoShapes)
{
    igesText file;
    file.add({168, "5.,4.,3.,0.,0.,0.,1.,0.,0.,0.,0.,1."});
    EXPECT_NE(refusal("ellipsoid.igs", file.text()).find("no shapes that can be read"), std::string::npos);
    EXPECT_EQ(account().findings().size(), 1u);
}

TEST_F(IgesAccount, GroupsThatGatherEachOtherAreNamed)
{
    igesText file;
    file.add({402, "1,3", 7});
    file.add({402, "1,1", 7});
    EXPECT_NE(refusal("circle.igs", file.text()).find("an entity contains itself: D1 > D3 > D1"),
              std::string::npos);
}

TEST_F(IgesAccount, SolidsThatReferToNothingAreNamed)
{
    igesText file;
    file.add({150, block()});
    file.add({164, "0,5.,0.,0.,1."});
    file.add({184, "2,0,0,0,0"});
    file.add({430, "0"});
    file.add({150, "0.,1.,1.,0.,0.,0.,1.,0.,0.,1.,0.,0."});
    sdkDocument document;
    auto const account = read_account(folder().write("nothing.igs", file.text()), document);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_EQ(account.findings().size(), 4u);
    EXPECT_EQ(said().failed(), 4);
}

TEST_F(IgesAccount, DrawingAnnotationIsOneLoss)
{
    igesText file;
    file.add({150, block()});
    for (int note = 0; note < 2; ++note) {
        file.add({212, "1,4,10.,2.,1,1.5707963,0.,0,0,0.,0.,0.,4HNote"});
    }
    sdkDocument document;
    auto const account = read_account(folder().write("notes.igs", file.text()), document);
    ASSERT_EQ(account.findings().size(), 1u);
    EXPECT_EQ(account.findings().front().kind, "annotation");
    EXPECT_EQ(account.findings().front().source, 2);
    EXPECT_EQ(account.held(sdkSourceKind::root), 1);
}
