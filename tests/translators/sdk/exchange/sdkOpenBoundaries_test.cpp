#include "sdk/exchange/sdkOpenBoundaries.h"

#include "sdk/measure/sdkBodyMeasure.h"
#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom2d_Curve.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

namespace {

// A closed face runs along its seam twice; afterwards in the wrong order.
void swap_sides_of_seams(TopoDS_Shape const & shape)
{
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        auto const & face = TopoDS::Face(one.Current());
        for (TopExp_Explorer each(face.Oriented(TopAbs_FORWARD), TopAbs_EDGE); each.More(); each.Next()) {
            auto const & edge = TopoDS::Edge(each.Current());
            if (edge.Orientation() == TopAbs_FORWARD && BRep_Tool::IsClosed(edge, face)) {
                double first = 0;
                double last = 0;
                auto const there = BRep_Tool::CurveOnSurface(edge, face, first, last);
                auto const back = BRep_Tool::CurveOnSurface(TopoDS::Edge(edge.Reversed()), face, first, last);
                BRep_Builder().UpdateEdge(edge, back, there, face, BRep_Tool::Tolerance(edge));
            }
        }
    }
}

int open_faces(TopoDS_Shape const & shape)
{
    int open = 0;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        open += sdk_boundary_closes(TopoDS::Face(face.Current())) ? 0 : 1;
    }
    return open;
}

double volume(TopoDS_Shape const & shape)
{
    return sdk_measure_body(shape, sdkMeasureLevel::full).volume;
}

} // namespace

TEST(OpenBoundaries, AreNotFoundInSoundBodies)
{
    for (auto const & body : {TopoDS_Shape(BRepPrimAPI_MakeCylinder(5, 20).Solid()), kit_cube(10),
                              TopoDS_Shape(BRepPrimAPI_MakeTorus(20, 5).Solid()), kit_facet_cube()}) {
        EXPECT_EQ(open_faces(body), 0);
        EXPECT_EQ(open_faces(body.Reversed()), 0);
        EXPECT_TRUE(sdk_close_boundaries(body, 1e-4, 1).IsNull());
    }
}

TEST(OpenBoundaries, AreThoseOfSeamsWithTheirSidesSwapped)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 20).Solid();
    double const right = volume(cylinder);
    swap_sides_of_seams(cylinder);
    ASSERT_EQ(open_faces(cylinder), 1);
    ASSERT_GT(std::abs(volume(cylinder) - right), 1);
    auto const changes = sdk_close_boundaries(cylinder, 1e-4, 1);
    ASSERT_FALSE(changes.IsNull());
    auto const closed = changes->Apply(cylinder);
    EXPECT_EQ(open_faces(closed), 0);
    EXPECT_NEAR(volume(closed), right, 1e-6 * right);
}

TEST(OpenBoundaries, AreRepairedWithoutTouchingOtherFaces)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 20).Solid();
    swap_sides_of_seams(cylinder);
    auto const closed = sdk_close_boundaries(cylinder, 1e-4, 1)->Apply(cylinder);
    int same = 0;
    TopExp_Explorer before(cylinder, TopAbs_FACE);
    for (TopExp_Explorer after(closed, TopAbs_FACE); after.More(); after.Next(), before.Next()) {
        same += after.Current().IsSame(before.Current()) ? 1 : 0;
    }
    EXPECT_GE(same, 2); // the caps
}
