#include "igesFormatTest.h"
#include "igesText.h"
#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkVisibility.h"

#include <IGESCAFControl_Writer.hxx>
#include <IGESControl_Controller.hxx>
#include <IGESData_IGESEntity.hxx>
#include <IGESData_IGESModel.hxx>

class IgesVisibility : public igesFormatTest {
protected:
    // Names of the parts that are hidden, or of which a place is.
    static std::vector<std::string> hidden(sdkDocument const & document)
    {
        std::vector<std::string> names;
        for (auto const & label : sdk_hidden_labels(document)) {
            names.push_back(sdkDocument::name(label));
        }
        return names;
    }
};

TEST_F(IgesVisibility, ABlankedSolidIsHiddenAndIsBlankedAgain)
{
    sdkDocument document;
    ASSERT_TRUE(read(FAULTS "/blank.igs", document));
    EXPECT_EQ(sdk_hidden_labels(document).Length(), 1);
    EXPECT_NEAR(sdk_measure(document).volume, 6000, 1e-6);
    EXPECT_TRUE(account().findings().empty());
    document.add_shape(kit_cube(10), "Seen");
    ASSERT_TRUE(write(document, path("again.igs")));
    sdkDocument again;
    ASSERT_TRUE(read(path("again.igs"), again));
    ASSERT_EQ(sdk_hidden_labels(again).Length(), 1);
    EXPECT_NE(sdkDocument::name(sdk_hidden_labels(again).First()), "Seen");
    EXPECT_EQ(sdk_measure(again).solids, 2);
}

TEST_F(IgesVisibility, AHiddenInstanceAndAHiddenPartOfFacesAreBlanked)
{
    for (auto const * const solids : {"true", "false"}) {
        sdkDocument document;
        kit_add_assembly(document);
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(document.free_shapes().First(), components);
        sdk_hide(document, components.Last());
        ASSERT_TRUE(write(document, path("instance.igs"), {{"igesWriteSolids", solids}}));
        EXPECT_TRUE(account().findings().empty());
        sdkDocument again;
        ASSERT_TRUE(read(path("instance.igs"), again));
        EXPECT_EQ(hidden(again), std::vector<std::string>{kit_blue_name});
        EXPECT_EQ(sdk_measure(again).solids, 3);
    }
}

TEST_F(IgesVisibility, BlankedMembersAndInstancesAreHidden)
{
    std::string const block = "10.,10.,10.,0.,0.,0.,1.,0.,0.,0.,0.,1.";
    igesText file;
    auto const seen = file.add({150, block, 0, 0, "00010000"});
    auto const blanked = file.add({150, block, 0, 0, "01010000"});
    file.add({402, "2," + std::to_string(seen) + "," + std::to_string(blanked), 7});
    auto const solid = file.add({150, block, 0, 0, "00010000"});
    auto const definition = file.add({308, "0,4HPART,1," + std::to_string(solid), 0, 0, "00010200"});
    for (auto const * const status : {"00000000", "01000000"}) {
        file.add({408, std::to_string(definition) + ",50.,0.,0.,1.", 0, 0, status});
    }
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("members.igs", file.text()), document));
    EXPECT_EQ(sdk_measure(document).solids, 4);
    EXPECT_EQ(sdk_hidden_labels(document).Length(), 2);
}

TEST_F(IgesVisibility, SaysWhatIsLeftOutWhenOnlyVisibleEntitiesAreRead)
{
    igesText file;
    file.add({150, "10.,10.,10.,0.,0.,0.,1.,0.,0.,0.,0.,1."});
    file.add({158, "10.,0.,0.,0.", 0, 0, "01000000"});
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("one.igs", file.text()), document, {{"igesReadVisibleOnly", "true"}}));
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    ASSERT_EQ(account().findings().size(), 1u);
    EXPECT_EQ(account().findings().front().kind, "hidden");
    EXPECT_EQ(account().findings().front().weight, sdkWeight::note);
    EXPECT_EQ(said().failed(), 0);
}

// Should this fail one day, the toolkit's writer does what igesVisibility does.
TEST(IgesVisibilityOfTheToolkit, IsNotWritten)
{
    IGESControl_Controller::Init();
    sdkDocument document;
    sdk_hide(document, document.add_shape(kit_cube(10), "Cube"));
    IGESCAFControl_Writer writer;
    ASSERT_TRUE(writer.Transfer(document.handle()));
    auto const model = writer.Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        EXPECT_EQ(model->Entity(number)->BlankStatus(), 0);
    }
}
