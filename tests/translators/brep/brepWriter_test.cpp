#include "brepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkTessellation.h"
#include "sdk/sdkLengthUnit.h"
#include "sdk/sdkVisibility.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <TopoDS_Iterator.hxx>

#include <filesystem>
#include <numbers>

class BrepWriter : public brepFormatTest {
protected:
    // What comes back when a shape is written and read.
    sdkMeasures trip(TopoDS_Shape const & shape, Values const & values = {})
    {
        EXPECT_TRUE(write(shape, path("trip.brep"), values));
        auto const unit = values.find("vmrOptOutputUnits");
        sdkDocument document;
        EXPECT_TRUE(read(path("trip.brep"), document,
                         {{"brepReadUnit", unit == values.end() ? std::string("mm") : unit->second}}));
        return sdk_measure(document);
    }
};

TEST_F(BrepWriter, KeepsTheSizeOfCubesOfAMillimetreAnInchAndAMetre)
{
    for (auto const * form : {"text", "binary"}) {
        for (double const side : {10.0, 25.4, 1000.0}) {
            auto const measures = trip(kit_cube(side), {{"brepWriteForm", form}});
            EXPECT_NEAR(measures.volume / (side * side * side), 1, 1e-9);
            EXPECT_NEAR(measures.area / (6 * side * side), 1, 1e-9);
            EXPECT_EQ(measures.solids, 1);
            EXPECT_EQ(measures.faces, 6);
            EXPECT_EQ(measures.edges, 12);
            EXPECT_EQ(measures.vertices, 8);
            EXPECT_EQ(measures.triangles, 0);
        }
    }
}

TEST_F(BrepWriter, KeepsCurvedSurfacesCavitiesCurvesAndPoints)
{
    for (auto const * form : {"text", "binary"}) {
        auto const cylinder = trip(BRepPrimAPI_MakeCylinder(5, 10).Shape(), {{"brepWriteForm", form}});
        EXPECT_NEAR(cylinder.volume / (250 * std::numbers::pi), 1, 1e-6);
        EXPECT_NEAR(trip(kit_hollow_cube(), {{"brepWriteForm", form}}).volume, 7000, 1e-6);
        EXPECT_EQ(trip(kit_wire(), {{"brepWriteForm", form}}).free_edges, 2);
        EXPECT_EQ(
            trip(BRepBuilderAPI_MakeVertex(gp_Pnt(1, 2, 3)).Shape(), {{"brepWriteForm", form}}).vertices, 1);
    }
}

TEST_F(BrepWriter, WritesLengthsInEachUnit)
{
    for (auto const & unit : sdk_length_units) {
        // Below the tolerance of the toolkit, edges vanish: a cube of 10 m is as small as the mile allows.
        auto const measures = trip(kit_cube(10'000), {{"vmrOptOutputUnits", std::string(unit.name)}});
        EXPECT_NEAR(measures.volume / 1e12, 1, 1e-6) << unit.name;
        EXPECT_TRUE(said().says("taking lengths to be in " + std::string(unit.name)));
    }
    sdkDocument inches;
    ASSERT_TRUE(write(kit_cube(25.4), path("inch.brep"), {{"vmrOptOutputUnits", "in"}}));
    ASSERT_TRUE(read(path("inch.brep"), inches));
    EXPECT_NEAR(sdk_measure(inches).volume, 1, 1e-9);
}

TEST_F(BrepWriter, WritesTheVersionThatIsAskedFor)
{
    for (auto const * version : {"1", "2", "3"}) {
        auto const content = written(kit_cube(10), {{"brepWriteTextVersion", version}});
        EXPECT_TRUE(kit_contains(content.substr(0, 60), std::string("CASCADE Topology V") + version));
        EXPECT_NEAR(trip(kit_cube(10), {{"brepWriteTextVersion", version}}).volume, 1000, 1e-6);
    }
    for (auto const * version : {"1", "2", "3", "4"}) {
        Values const values{{"brepWriteForm", "binary"}, {"brepWriteBinaryVersion", version}};
        EXPECT_TRUE(kit_contains(written(kit_cube(10), values).substr(0, 60),
                                 std::string("Open CASCADE Topology V") + version));
        EXPECT_NEAR(trip(kit_cube(10), values).volume, 1000, 1e-6);
    }
}

TEST_F(BrepWriter, FlattensAssembliesWithTheirPlacesOrNestsThem)
{
    for (auto const * structure : {"flat", "nested"}) {
        sdkDocument original;
        kit_add_assembly(original);
        original.add_shape(kit_cube(1), "Beside");
        ASSERT_TRUE(write(original, path("assembly.brep"), {{"brepWriteStructure", structure}}));
        EXPECT_EQ(said().processed(), 18);
        EXPECT_EQ(said().says("1 assemblies with 3 instances are flattened"),
                  structure == std::string("flat"));
        EXPECT_TRUE(said().says("4 names are lost"));
        EXPECT_TRUE(said().says("the colours of 2 shapes are lost"));
        EXPECT_TRUE(said().says("the layers of 1 shapes are lost"));
        sdkDocument document;
        ASSERT_TRUE(read(path("assembly.brep"), document));
        auto const measures = sdk_measure(document);
        EXPECT_NEAR(measures.volume, 2001, 1e-6);
        EXPECT_NEAR(measures.box.CornerMax().X(), 50, 1e-5);
        int members = 0;
        for (TopoDS_Iterator member(XCAFDoc_ShapeTool::GetShape(document.parts().First())); member.More();
             member.Next()) {
            ++members;
        }
        EXPECT_EQ(members, structure == std::string("flat") ? 4 : 2);
    }
}

TEST_F(BrepWriter, WritesTrianglesWhenAskedWithinTheTolerances)
{
    auto const ball = [] { return BRepPrimAPI_MakeSphere(10).Shape(); };
    EXPECT_EQ(trip(ball()).triangles, 0);
    auto const count = [&](char const * linear, char const * angle, char const * unit) {
        return trip(ball(), {{"brepWriteTriangulation", "true"},
                             {"vmrTolTriangulate3d", linear},
                             {"brepAngularDeflection", angle},
                             {"vmrOptOutputUnits", unit}})
            .triangles;
    };
    auto const coarse = count("1", "90", "mm");
    EXPECT_GT(coarse, 0);
    EXPECT_GT(count("0.01", "90", "mm"), 10 * coarse);
    EXPECT_GT(count("1", "5", "mm"), 10 * coarse);
    EXPECT_NEAR(static_cast<double>(count("0.01", "90", "in")),
                static_cast<double>(count("0.01", "90", "mm")), 50);
}

TEST_F(BrepWriter, LeavesTrianglesOfSurfacesOutUnlessAskedButKeepsMeshes)
{
    auto const cube = kit_cube(10);
    sdk_tessellate(cube, {});
    EXPECT_EQ(trip(cube).triangles, 0);
    for (auto const * form : {"text", "binary"}) {
        auto const mesh =
            trip(kit_facet_cube(),
                 {{"brepWriteForm", form}, {"vmrOptOutputUnits", "cm"}, {"brepWriteFacets", "mesh"}});
        EXPECT_EQ(mesh.triangles, 12);
        EXPECT_NEAR(mesh.volume, 1000, 1e-6);
    }
}

TEST_F(BrepWriter, MakesFacesOfMeshes)
{
    auto const facets = trip(kit_facet_cube(), {{"brepWriteFacets", "facets"}});
    EXPECT_EQ(facets.faces, 12);
    EXPECT_EQ(facets.solids, 1);
    EXPECT_EQ(facets.triangles, 0);
    ASSERT_TRUE(write(kit_facet_cube(), path("merged.brep")));
    EXPECT_TRUE(said().says("12 triangles became 6 plane faces in 1 solids and 0 open shells"));
    EXPECT_EQ(said().processed(), 6);
    sdkDocument document;
    ASSERT_TRUE(read(path("merged.brep"), document));
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_TRUE(BRepCheck_Analyzer(XCAFDoc_ShapeTool::GetShape(document.parts().First())).IsValid());
}

TEST_F(BrepWriter, SaysOfAMeshThatItHasNoSurfaces)
{
    ASSERT_TRUE(write(kit_facet_cube(), path("mesh.brep"), {{"brepWriteFacets", "mesh"}}, "Scan"));
    ASSERT_EQ(account().findings().size(), 1U);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.weight, sdkWeight::note);
    EXPECT_EQ(finding.kind, "facets-only");
    EXPECT_EQ(finding.part, "Scan");
    EXPECT_EQ(finding.source, 12);
    EXPECT_EQ(finding.text.formatted(), "Scan: 12 triangles have no surfaces and make no solid; set the "
                                        "option brepWriteFacets to merged for solids");

    ASSERT_TRUE(write(kit_facet_cube(), path("solid.brep")));
    EXPECT_TRUE(account().findings().empty());
}

TEST_F(BrepWriter, KeepsAMeshOfMoreTrianglesThanTheLimitAndSaysSo)
{
    for (auto const * facets : {"facets", "merged"}) {
        Values const values{{"brepWriteFacets", facets}, {"brepWriteMaxFacets", "11"}};
        EXPECT_EQ(trip(kit_facet_cube(), values).triangles, 12);
        ASSERT_TRUE(write(kit_facet_cube(), path("many.brep"), values));
        ASSERT_EQ(account().findings().size(), 1U);
        EXPECT_EQ(account().findings().front().kind, "facets-only");
        EXPECT_TRUE(kit_contains(account().findings().front().text.formatted(), "brepWriteMaxFacets"));
    }
}

TEST_F(BrepWriter, WritesCurvesAsPolylinesWhenAsked)
{
    EXPECT_EQ(trip(kit_wire()).free_edges, 2);
    auto const edges = [&](char const * planar) {
        return trip(kit_wire(), {{"brepWriteCurves", "polyline"}, {"vmrTolPolygonizeCurve2d", planar}})
            .free_edges;
    };
    auto const coarse = edges("0.1");
    EXPECT_GT(coarse, 2);
    EXPECT_GT(edges("0.0001"), 4 * coarse);
    EXPECT_TRUE(write(kit_wire(), path("wire.brep"), {{"brepWriteCurves", "polyline"}}));
    EXPECT_TRUE(said().says("1 curves became polylines of"));
}

TEST_F(BrepWriter, LeavesOutWhatTheOptionsTurnOff)
{
    for (bool const wireframe : {false, true}) {
        sdkDocument document;
        document.add_shape(kit_cube(10), "Cube");
        document.add_shape(kit_wire(), "Sketch");
        ASSERT_TRUE(write(document, path("kind.brep"),
                          {{wireframe ? "vmrOptProcessSurfaces" : "vmrOptProcessWireframe", "false"}}));
        EXPECT_EQ(said().processed(), wireframe ? 2 : 6);
        EXPECT_EQ(said().failed(), 0);
        sdkDocument back;
        ASSERT_TRUE(read(path("kind.brep"), back));
        EXPECT_EQ(back.count_entities().curves, wireframe ? 2 : 0);
        EXPECT_EQ(back.count_entities().faces, wireframe ? 0 : 6);
    }
}

TEST_F(BrepWriter, CompletesWithoutAFileWhenThereIsNothingToWrite)
{
    sdkDocument empty;
    EXPECT_TRUE(write(empty, path("none.brep")));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_TRUE(said().says("There is nothing to write"));
    EXPECT_TRUE(write(kit_cube(10), path("none.brep"), {{"vmrOptProcessSurfaces", "false"}}));
    EXPECT_TRUE(said().says("the options leave out all there is"));
    EXPECT_FALSE(std::filesystem::exists(path("none.brep")));
}

TEST_F(BrepWriter, SaysWhyAFileCouldNotBeWritten)
{
    for (auto const * form : {"text", "binary"}) {
        for (auto const & shape : {kit_cube(10), BRepPrimAPI_MakeSphere(10).Shape()}) {
            auto const full = write(shape, "/dev/full",
                                    {{"brepWriteForm", form},
                                     {"brepWriteTriangulation", "true"},
                                     {"vmrTolTriangulate3d", "0.01"},
                                     {"brepAngularDeflection", "90"}});
            EXPECT_EQ(full.status(), sdkStatus::write_error);
            EXPECT_TRUE(kit_contains(full.text().formatted(), "No space left on device"));
        }
        auto const absent = write(kit_cube(10), path("no/such/folder.brep"), {{"brepWriteForm", form}});
        EXPECT_TRUE(kit_contains(absent.text().formatted(), "No such file or directory"));
    }
}

TEST_F(BrepWriter, SaysWhatItsFileHoldsAndThatItIsWhole)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.brep"), {{"vmrOptOutputUnits", "in"}}));
    EXPECT_TRUE(promise().made);
    EXPECT_TRUE(promise().checked);
    EXPECT_TRUE(promise().exact_curves);
    EXPECT_TRUE(promise().holds.surfaces && promise().holds.solids && promise().holds.points);
    EXPECT_FALSE(promise().holds.structure || promise().holds.names || promise().holds.colours);
    EXPECT_EQ(promise().read_back.at("brepReadUnit"), "in");
    ASSERT_TRUE(write(
        kit_cube(10), path("cube.brep"),
        {{"brepWriteStructure", "nested"}, {"brepWriteCurves", "polyline"}, {"brepWriteForm", "binary"}}));
    EXPECT_TRUE(promise().checked);
    EXPECT_TRUE(promise().holds.structure);
    EXPECT_EQ(promise().read_back.at("brepReadStructure"), "assembly");
    EXPECT_FALSE(promise().exact_curves);
    EXPECT_FALSE(write(kit_cube(10), "/dev/full"));
    EXPECT_FALSE(promise().checked);
}

TEST_F(BrepWriter, SaysThatHiddenShapesAreVisible)
{
    sdkDocument document;
    sdk_hide(document, document.add_shape(kit_cube(10), "Hidden"));
    document.add_shape(kit_cube(20), "Seen");
    ASSERT_TRUE(write(document, path("hidden.brep")));
    ASSERT_EQ(account().findings().size(), 1u);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.kind, "hidden");
    EXPECT_EQ(finding.weight, sdkWeight::note);
    EXPECT_TRUE(kit_contains(finding.text.formatted(), "1 hidden shapes are visible"));
    sdkDocument again;
    ASSERT_TRUE(read(path("hidden.brep"), again));
    EXPECT_NEAR(sdk_measure(again).volume, 9000, 1e-6);
}

TEST_F(BrepWriter, KeepsMembersThatAreMirroredOrScaled)
{
    expect_moved_members_kept("fault.brep");
}
