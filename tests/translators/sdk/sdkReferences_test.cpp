#include "sdk/geometry/sdkLosses.h"
#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/sdkFlatten.h"
#include "translators/kit/kitParts.h"

#include <gtest/gtest.h>

// A free shape that was added with a place of its own is a reference to a definition beside it.
class References : public testing::Test {
protected:
    References()
    {
        for (double const x : {0.0, 30.0}) {
            gp_Trsf shift;
            shift.SetTranslation(gp_Vec(x, 0, 5));
            m_document.add_shape(m_cube.Moved(TopLoc_Location(shift)), "");
        }
    }

    static std::optional<TopoDS_Shape> larger(TDF_Label const &, TopoDS_Shape const & shape,
                                              sdkShapeHistory &)
    {
        return shape.ShapeType() == TopAbs_SOLID ? std::optional(kit_cube(20)) : std::nullopt;
    }

    static std::optional<TopoDS_Shape> nothing(TDF_Label const &, TopoDS_Shape const &, sdkShapeHistory &)
    {
        return TopoDS_Shape();
    }

    TopoDS_Shape m_cube = kit_cube(10);
    sdkDocument m_document;
};

TEST_F(References, AreTwoPlacesOfOnePart)
{
    EXPECT_EQ(m_document.free_shapes().Length(), 2);
    ASSERT_EQ(m_document.parts().Length(), 1);
    EXPECT_TRUE(XCAFDoc_ShapeTool::IsSimpleShape(m_document.parts().First()));
    ASSERT_EQ(sdkDocument::parts_of(m_document.free_shapes()).Length(), 1);
    EXPECT_EQ(sdkDocument::parts_of(m_document.free_shapes()).First(), m_document.parts().First());
    EXPECT_EQ(m_document.count_entities().faces, 6);
}

TEST_F(References, FollowWhenThePartIsEdited)
{
    auto const counts = sdk_edit_parts(m_document, m_document.parts(), larger);
    EXPECT_EQ(counts.changed, 1);
    EXPECT_NEAR(sdk_measure(m_document).volume, 2 * 8000, 1e-6);
    EXPECT_NEAR(sdk_measure(m_document).box.CornerMax().X(), 50, 1e-4);
    EXPECT_NEAR(sdk_measure(m_document).box.CornerMin().Z(), 5, 1e-4);
}

TEST_F(References, GoWithAPartOfWhichNothingIsLeft)
{
    EXPECT_EQ(sdk_edit_parts(m_document, m_document.parts(), nothing).emptied, 1);
    EXPECT_TRUE(m_document.empty());
    EXPECT_EQ(m_document.parts().Length(), 0);
}

TEST_F(References, AreTakenApart)
{
    for (auto const placing : {sdkPlacing::compound, sdkPlacing::geometry}) {
        sdk_flatten(m_document, m_document.free_shapes(), placing);
        EXPECT_EQ(m_document.parts().Length(), 2);
        for (auto const & label : m_document.free_shapes()) {
            EXPECT_TRUE(XCAFDoc_ShapeTool::IsSimpleShape(label));
        }
        EXPECT_NEAR(sdk_measure(m_document).volume, 2000, 1e-6);
        EXPECT_NEAR(sdk_measure(m_document).box.CornerMax().X(), 40, 1e-4);
    }
}

TEST_F(References, ToAnAssemblyAreTakenApartWithIt)
{
    sdkDocument document;
    kit_add_assembly(document);
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(100, 0, 0));
    auto const whole = XCAFDoc_ShapeTool::GetShape(document.free_shapes().First());
    document.add_shape(whole.Moved(TopLoc_Location(shift)), "");
    ASSERT_TRUE(XCAFDoc_ShapeTool::IsReference(document.free_shapes().First()));
    EXPECT_EQ(document.parts().Length(), 2);
    EXPECT_EQ(sdk_flatten(document, document.free_shapes(), sdkPlacing::compound), 1);
    EXPECT_EQ(document.free_shapes().Length(), 3);
    EXPECT_EQ(sdk_count_attributes(document).assemblies, 0);
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6);
    EXPECT_NEAR(sdk_measure(document).box.CornerMin().X(), 100, 1e-4);
}
