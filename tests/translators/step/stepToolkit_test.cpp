#include "stepTextTest.h"

#include <STEPCAFControl_Reader.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <StepShape_CsgPrimitive.hxx>
#include <StepShape_CsgSelect.hxx>
#include <StepShape_CsgSolid.hxx>

// The faults of Open CASCADE that this reader and writer make up for. When one of these fails, a newer
// library makes the code that the comment names needless.
class StepToolkit : public stepTextTest {
protected:
    // What the library alone makes of a file.
    double volume_by_toolkit(std::string const & file)
    {
        STEPCAFControl_Reader reader;
        sdkDocument document;
        Handle(TDocStd_Document) handle = document.handle();
        EXPECT_EQ(reader.ReadFile(file.c_str()), IFSelect_RetDone);
        EXPECT_TRUE(reader.Transfer(handle));
        return sdk_measure(document).volume;
    }
};

// stepSolids
TEST_F(StepToolkit, LeavesOutSweptAndConstructiveSolidsAndReplicas)
{
    for (auto const * file : {"extruded.step", "revolved.step", "csg_block.step", "solidreplica.step"}) {
        EXPECT_NEAR(volume_by_toolkit(fault(file)), 6000, 1e-6) << file;
    }
}

// stepReferences, stepTextualLinks
TEST_F(StepToolkit, DropsThePrimitiveOfAConstructiveSolid)
{
    STEPCAFControl_Reader reader;
    ASSERT_EQ(reader.ReadFile(fault("csg_block.step").c_str()), IFSelect_RetDone);
    auto const model = reader.Reader().Model();
    int solids = 0;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        if (auto const solid = Handle(StepShape_CsgSolid)::DownCast(model->Value(number)); !solid.IsNull()) {
            ++solids;
            EXPECT_TRUE(solid->TreeRootExpression().BooleanResult().IsNull());
            EXPECT_TRUE(solid->TreeRootExpression().CsgPrimitive().Value().IsNull());
        }
    }
    EXPECT_EQ(solids, 1);
}

// stepMappings
TEST_F(StepToolkit, PutsAMappedProductInThePlaceOfTheOtherAndIgnoresItsScale)
{
    EXPECT_NEAR(volume_by_toolkit(fault("mapped1.step")), 6000, 1e-6);
    EXPECT_NEAR(volume_by_toolkit(fault("mapped_scale2.step")), 6000, 1e-6);
}

// step_write_visibility
TEST_F(StepToolkit, DoesNotWriteThatOneBodyOfAPartIsHidden)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_compound({kit_cube(10), kit_hollow_cube()}), "two");
    TopExp_Explorer const solids(XCAFDoc_ShapeTool::GetShape(part), TopAbs_SOLID);
    document.colours()->SetVisibility(document.shapes()->AddSubShape(part, solids.Current()), Standard_False);
    STEPCAFControl_Writer writer;
    ASSERT_TRUE(writer.Transfer(document.handle()));
    ASSERT_EQ(writer.Write(path("hidden.stp").c_str()), IFSelect_RetDone);
    EXPECT_EQ(kit_read_file(path("hidden.stp")).find("INVISIBILITY"), std::string::npos);
}
