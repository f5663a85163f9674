#include "sdk/geometry/sdkPartEdit.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitIndicator.h"
#include "translators/kit/kitParts.h"

#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Ax2.hxx>
#include <gtest/gtest.h>

namespace {

std::optional<TopoDS_Shape> larger_cube(TDF_Label const &, TopoDS_Shape const & shape, sdkShapeHistory &)
{
    return shape.ShapeType() == TopAbs_SOLID ? std::optional(kit_cube(20)) : std::nullopt;
}

} // namespace

TEST(PartEdit, LetsAllInstancesOfAPartFollow)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const counts = sdk_edit_parts(document, document.parts(), larger_cube);
    EXPECT_EQ(counts.changed, 2);
    EXPECT_NEAR(sdk_measure(document).volume, 3 * 8000, 1e-6);
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 60, 1e-4);
}

TEST(PartEdit, CountsNamedSubShapesThatAreGone)
{
    sdkDocument document;
    auto const cube = kit_cube(10);
    auto const label = document.add_shape(cube, "Cube");
    auto const detail = document.shapes()->AddSubShape(label, TopExp_Explorer(cube, TopAbs_FACE).Current());
    sdkDocument::set_name(detail, "Top");
    EXPECT_EQ(sdk_edit_parts(document, document.parts(), larger_cube).details, 1);
}

TEST(PartEdit, StopsAfterThePartDuringWhichTheUserCancels)
{
    sdkDocument document;
    kit_add_assembly(document);
    Handle(kitIndicator) const progress = new kitIndicator;
    progress->cancelled = true;
    auto const counts = sdk_edit_parts(document, document.parts(), larger_cube, progress->Start());
    EXPECT_TRUE(counts.cancelled);
    EXPECT_EQ(counts.changed, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 8000 + 2 * 500, 1e-6);
}

TEST(PartEdit, RemembersWhatShapesBecameWhereverTheyLie)
{
    sdkShapeHistory history;
    auto const before = kit_cube(1);
    auto const after = kit_cube(2);
    history.replace(before, after);
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(5, 0, 0));
    TopLoc_Location const place(shift);
    EXPECT_TRUE(history.now(before.Moved(place)).IsEqual(after.Moved(place)));
    EXPECT_TRUE(history.now(kit_cube(3)).ShapeType() == TopAbs_SOLID);
    history.replace(before, TopoDS_Shape());
    EXPECT_TRUE(history.now(before).IsNull());
}

TEST(PartEdit, PutsScalesAndMirrorsOfMembersIntoTheGeometryAndLetsDetailsFollow)
{
    gp_Trsf mirror;
    mirror.SetMirror(gp_Ax2(gp_Pnt(-5, 0, 0), gp::DX()));
    gp_Trsf scale;
    scale.SetScale(gp_Pnt(20, 0, 0), 2);
    auto const cube = kit_cube(10);
    BRep_Builder builder;
    TopoDS_Compound whole;
    builder.MakeCompound(whole);
    builder.Add(whole, cube);
    builder.Add(whole, cube.Moved(TopLoc_Location(mirror), Standard_False));
    builder.Add(whole, cube.Moved(TopLoc_Location(scale), Standard_False));
    sdkDocument document;
    auto const part = document.add_shape(whole, "Cubes");
    for (TopoDS_Iterator member(whole); member.More(); member.Next()) {
        TDF_Label detail;
        ASSERT_TRUE(document.shapes()->AddSubShape(
            part, TopExp_Explorer(member.Value(), TopAbs_FACE).Current(), detail));
        document.colours()->SetColor(detail, kit_red(), XCAFDoc_ColorSurf);
    }
    auto const nothing = [](TDF_Label const &, TopoDS_Shape const &, sdkShapeHistory &) {
        return std::optional<TopoDS_Shape>();
    };
    auto const larger_face_area = [&] {
        TDF_LabelSequence details;
        XCAFDoc_ShapeTool::GetSubShapes(part, details);
        double area = 0;
        for (auto const & detail : details) {
            auto const face = XCAFDoc_ShapeTool::GetShape(detail);
            EXPECT_TRUE(document.shapes()->IsSubShape(part, face));
            EXPECT_TRUE(kit_colour(document, detail).IsEqual(kit_red()));
            area += sdk_measure(face).area;
        }
        return area;
    };
    auto counts = sdk_edit_parts(document, document.parts(), nothing);
    EXPECT_EQ(counts.changed, 1);
    EXPECT_EQ(counts.details, 0);
    EXPECT_NEAR(sdk_measure(document).volume, 1000 + 1000 + 8000, 1e-6);
    EXPECT_NEAR(sdk_measure(document).box.CornerMin().X(), -20, 1e-5);
    EXPECT_NEAR(larger_face_area(), 100 + 100 + 400, 1e-6);
    EXPECT_EQ(sdk_edit_parts(document, document.parts(), nothing).changed, 0);
}
