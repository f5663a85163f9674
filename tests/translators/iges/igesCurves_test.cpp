#include "igesBareFile.h"
#include "igesFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitFault.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Cylinder.hxx>

class IgesCurves : public igesFormatTest {
protected:
    // The shape that another reader finds in the file that is written.
    TopoDS_Shape trip(TopoDS_Shape const & shape)
    {
        EXPECT_TRUE(write(shape, path("curves.igs")));
        return iges_bare_read(path("curves.igs"));
    }
};

TEST_F(IgesCurves, OfWiresThatDoNotChainAreLostByTheToolkitsOwnWriter)
{
    ASSERT_TRUE(iges_bare_write(kit_fault("w_branch.brep"), path("bare.igs")));
    EXPECT_LT(sdk_count_entities(iges_bare_read(path("bare.igs"))).curves, 3)
        << "the toolkit writes them all now: sdk_split_loose_wires is needed no more";
}

TEST_F(IgesCurves, OfWiresThatDoNotChainAreAllWritten)
{
    for (auto const * const name : {"w_branch.brep", "w_misoriented.brep"}) {
        auto const after = trip(kit_fault(name));
        EXPECT_EQ(sdk_count_entities(after).curves, 3) << name;
        EXPECT_NEAR(kit_length(after), 30, 1e-6) << name;
        EXPECT_EQ(said().failed(), 0);
        EXPECT_EQ(said().processed(), 3);
    }
}

TEST_F(IgesCurves, OfAWireThatChainsStayTogether)
{
    ASSERT_TRUE(write(kit_wire(), path("wire.igs")));
    EXPECT_NE(kit_read_file(path("wire.igs")).find("\n     102"), std::string::npos);
    EXPECT_EQ(sdk_count_entities(iges_bare_read(path("wire.igs"))).curves, 2);
}

TEST_F(IgesCurves, AtADistanceOfOthersBecomeSplines)
{
    auto const before = kit_fault("e_offset.brep");
    auto const after = trip(before);
    EXPECT_EQ(sdk_count_entities(after).curves, 1);
    EXPECT_NEAR(kit_length(after), kit_length(before), 1e-5 * kit_length(before));
    EXPECT_NE(kit_read_file(path("curves.igs")).find("\n     126"), std::string::npos);
}

TEST_F(IgesCurves, AndFacesOfAllKindsAreWritten)
{
    auto const before = sdk_count_entities(kit_fault("mixed.brep"));
    auto const after = sdk_count_entities(trip(kit_fault("mixed.brep")));
    EXPECT_EQ(after.curves, before.curves);
    EXPECT_EQ(after.points, before.points);
    EXPECT_EQ(after.faces, before.faces);
    EXPECT_EQ(after.solids, before.solids);
    EXPECT_TRUE(account().findings().empty());
}

TEST_F(IgesCurves, AndFacesWithoutEndAreLosses)
{
    // An entity for a plane without bounds there is, but nobody reads a face from it.
    sdkDocument plane;
    plane.add_shape(kit_fault("f_infinite_plane.brep"), "Plane");
    ASSERT_TRUE(write(plane, path("plane.igs")));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_EQ(said().failed(), 1);
    auto const tube = BRepBuilderAPI_MakeFace(gp_Cylinder(gp_Ax3(), 5)).Face();
    auto const after = sdk_count_entities(trip(kit_compound({kit_cube(10), tube})));
    EXPECT_EQ(after.faces, 6);
    EXPECT_EQ(said().failed(), 1);
    ASSERT_EQ(account().findings().size(), 1);
    EXPECT_EQ(account().findings().front().weight, sdkWeight::loss);
}
