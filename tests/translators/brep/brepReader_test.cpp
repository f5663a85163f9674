#include "brepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkRigidPlaces.h"
#include "translators/kit/kitFault.h"
#include "translators/kit/kitIndicator.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>

#include <random>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

class BrepReader : public brepFormatTest {
protected:
    // A file that another program wrote of the shape.
    std::string file_of(TopoDS_Shape const & shape)
    {
        std::ostringstream stream;
        BRepTools::Write(shape, stream);
        return folder().write("other.brep", stream.str());
    }

    // True when a process of its own reads a file of that content without an error or a crash.
    bool ends_well(std::string const & content)
    {
        auto const file = folder().write("damaged.brep", content);
        auto const child = ::fork();
        if (child == 0) {
            kitSide side(BREP_MANIFEST, "BREP", {}, file);
            sdkDocument document;
            auto const reader = make_reader(side.context());
            ::_exit(kit_read(*reader, file, document) ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return status == 0;
    }
};

TEST_F(BrepReader, NamesThePartAfterTheFile)
{
    sdkDocument document;
    ASSERT_TRUE(read(file_of(kit_cube(10)), document));
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"other"});
    EXPECT_TRUE(said().says("6 faces, 0 curves and 0 points read, taking lengths to be in mm"));
}

TEST_F(BrepReader, NamesSolidsWithoutFaces)
{
    TopoDS_Solid empty;
    BRep_Builder().MakeSolid(empty);
    sdkDocument document;
    ASSERT_TRUE(read(file_of(kit_compound({kit_cube(10), empty})), document));
    EXPECT_EQ(account().held(sdkSourceKind::solid), 2);
    ASSERT_EQ(account().findings().size(), 1U);
    EXPECT_EQ(account().findings()[0].kind, "empty-solid");
    EXPECT_EQ(account().findings()[0].source, 1);
}

TEST_F(BrepReader, TakesTheUnitThatItIsTold)
{
    auto const file = file_of(kit_cube(1));
    for (auto const & [unit, length] : {std::pair("mm", 1.0), {"in", 25.4}, {"m", 1000.0}, {"um", 0.001}}) {
        sdkDocument document;
        ASSERT_TRUE(read(file, document, {{"brepReadUnit", unit}}));
        EXPECT_NEAR(sdk_measure(document).volume / (length * length * length), 1, 1e-6) << unit;
    }
}

TEST_F(BrepReader, ReadsAFileOfTheInteractiveProgram)
{
    std::ostringstream stream;
    BRepTools::Write(kit_cube(10), stream);
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("draw.brep", "DBRep_DrawableShape\n" + stream.str() + "0\n"), document));
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
}

TEST_F(BrepReader, MakesOnePartOrAnAssemblyOfACompound)
{
    auto const file = file_of(kit_compound({kit_cube(1), kit_compound({kit_cube(2), kit_cube(3)})}));
    sdkDocument part;
    ASSERT_TRUE(read(file, part));
    EXPECT_EQ(part.parts().Length(), 1);
    sdkDocument assembly;
    ASSERT_TRUE(read(file, assembly, {{"brepReadStructure", "assembly"}}));
    EXPECT_EQ(assembly.parts().Length(), 3);
    ASSERT_EQ(assembly.free_shapes().Length(), 1);
    auto const root = assembly.free_shapes().First();
    EXPECT_TRUE(XCAFDoc_ShapeTool::IsAssembly(root));
    EXPECT_EQ(XCAFDoc_ShapeTool::NbComponents(root), 2);
    EXPECT_EQ(sdkDocument::name(root), "other");
    EXPECT_NEAR(sdk_measure(assembly).volume, 1 + 8 + 27, 1e-6);
}

TEST_F(BrepReader, LeavesOutWhatTheOptionsTurnOff)
{
    auto const file = file_of(kit_compound({kit_cube(1), kit_wire()}));
    sdkDocument surfaces;
    ASSERT_TRUE(read(file, surfaces, {{"vmrOptProcessWireframe", "false"}}));
    EXPECT_EQ(surfaces.count_entities().curves, 0);
    EXPECT_EQ(surfaces.count_entities().faces, 6);
    sdkDocument wireframe;
    ASSERT_TRUE(read(file, wireframe, {{"vmrOptProcessSurfaces", "false"}}));
    EXPECT_EQ(wireframe.count_entities().curves, 2);
    EXPECT_EQ(wireframe.count_entities().faces, 0);
    EXPECT_TRUE(said().says("6 faces are left out"));
}

TEST_F(BrepReader, RepairsShapesWhenAsked)
{
    auto const file = file_of(kit_compound({kit_inverted_face()}));
    for (auto const * wanted : {"false", "true"}) {
        sdkDocument document;
        ASSERT_TRUE(read(file, document, {{"brepReadHealing", wanted}}));
        bool const valid =
            BRepCheck_Analyzer(XCAFDoc_ShapeTool::GetShape(document.parts().First())).IsValid();
        EXPECT_EQ(valid, wanted == std::string("true"));
    }
    EXPECT_TRUE(said().says("1 of 1 parts repaired; 1 were not valid before, and 0 are not valid now"));
}

TEST_F(BrepReader, DropsEdgesShorterThanThePrecision)
{
    BRepBuilderAPI_MakePolygon outline;
    for (auto const & corner :
         {gp_Pnt(0, 0, 0), gp_Pnt(10, 0, 0), gp_Pnt(10, 10, 0), gp_Pnt(0.05, 10, 0), gp_Pnt(0, 9.98, 0)}) {
        outline.Add(corner);
    }
    outline.Close();
    auto const file = file_of(BRepBuilderAPI_MakeFace(outline.Wire(), Standard_True).Shape());
    std::vector<std::int64_t> edges;
    for (auto const * precision : {"0.0001", "0.1"}) {
        sdkDocument document;
        ASSERT_TRUE(read(file, document,
                         {{"brepReadHealing", "true"},
                          {"brepReadPrecision", precision},
                          {"vmrTolCurveOnSurface3d", "1"}}));
        edges.push_back(sdk_measure(document).edges);
    }
    EXPECT_EQ(edges, (std::vector<std::int64_t>{5, 4}));
}

TEST_F(BrepReader, CountsEdgesThatLieTooFarFromTheirSurfaces)
{
    auto const cube = kit_cube(10);
    BRep_Builder const builder;
    builder.UpdateEdge(TopoDS::Edge(TopExp_Explorer(cube, TopAbs_EDGE).Current()), 0.5);
    auto const file = file_of(cube);
    sdkDocument strict;
    ASSERT_TRUE(read(file, strict, {{"brepReadHealing", "true"}, {"vmrTolCurveOnSurface3d", "0.1"}}));
    bool const counted = said().says("1 edges lie farther from their surfaces than the tolerance of 0.1 mm");
    sdkDocument loose;
    ASSERT_TRUE(read(file, loose, {{"brepReadHealing", "true"}, {"vmrTolCurveOnSurface3d", "1"}}));
    EXPECT_TRUE(counted);
    EXPECT_FALSE(said().says("lie farther"));
}

TEST_F(BrepReader, CompletesWithNothingForAnEmptyCompound)
{
    sdkDocument document;
    EXPECT_TRUE(read(file_of(kit_compound({})), document));
    EXPECT_TRUE(document.empty());
    EXPECT_TRUE(said().says("0 faces, 0 curves and 0 points read"));
}

TEST_F(BrepReader, RefusesFilesThatAreCutOffAnywhere)
{
    for (auto const * form : {"text", "binary"}) {
        auto const content = written(BRepPrimAPI_MakeCylinder(5, 10).Shape(), {{"brepWriteForm", form}});
        ASSERT_EQ(failure_of(content), "");
        // A text file ends with a line end that may be missing.
        for (std::size_t size = 1; size + 4 < content.size(); size += content.size() / 150 + 1) {
            EXPECT_NE(failure_of(content.substr(0, size)), "")
                << form << " " << size << " of " << content.size();
        }
    }
    EXPECT_NE(failure_of(written(kit_cube(1)).substr(0, 1000)).find("is damaged or cut off"),
              std::string::npos);
}

// The toolkit may crash on such a file, which the process of a translation is there for; it must not read for
// ever.
TEST_F(BrepReader, EndsWhateverBytesAreWrong)
{
    std::mt19937 random(7);
    for (auto const * form : {"text", "binary"}) {
        auto const content = written(kit_cube(10), {{"brepWriteForm", form}});
        int refused = 0;
        for (int attempt = 0; attempt < 60; ++attempt) {
            auto damaged = content;
            for (int count = 0; count < 3; ++count) {
                damaged[60 + random() % (damaged.size() - 60)] = form == std::string("text")
                                                                     ? static_cast<char>('0' + random() % 10)
                                                                     : static_cast<char>(random());
            }
            refused += ends_well(damaged) ? 0 : 1;
        }
        EXPECT_GT(refused, 10);
        EXPECT_TRUE(ends_well(content));
    }
}

TEST_F(BrepReader, RefusesFilesThatAreNoBrep)
{
    EXPECT_NE(failure_of("").find("is empty"), std::string::npos);
    EXPECT_NE(failure_of("solid x").find("is not a BREP file"), std::string::npos);
    EXPECT_NE(failure_of("CASCADE Topology V2, (c) Matra-Datavision\nhello").find("damaged"),
              std::string::npos);
    EXPECT_NE(
        failure_of("CASCADE Topology V2, (c) Matra-Datavision\nLocations 1000000000\n1\n").find("damaged"),
        std::string::npos);
    EXPECT_NE(failure_of("CASCADE Topology V9, (c) Open Cascade\n").find("version 9"), std::string::npos);
    std::mt19937 random(3);
    std::string bytes(5000, '\0');
    for (auto & byte : bytes) {
        byte = static_cast<char>(random());
    }
    EXPECT_NE(failure_of(bytes).find("is not a BREP file"), std::string::npos);
    EXPECT_NE(failure_of("CASCADE Topology V2, (c) Matra-Datavision\n" + bytes), "");
    EXPECT_NE(failure_of("Open CASCADE Topology V3, (c)\n" + bytes), "");
}

TEST_F(BrepReader, StopsWhenTheUserCancels)
{
    for (auto const * form : {"text", "binary"}) {
        written(kit_cube(10), {{"brepWriteForm", form}});
        kitSide side(BREP_MANIFEST, "BREP", {}, path("written.brep"));
        Handle(kitIndicator) const progress = new kitIndicator;
        progress->cancelled = true;
        EXPECT_EQ(make_reader(side.context())->parse(path("written.brep"), progress->Start()).status(),
                  sdkStatus::cancelled);
    }
}

TEST_F(BrepReader, TakesMembersThatAreMirroredOrScaledAsPartOrAssembly)
{
    for (char const * const structure : {"part", "assembly"}) {
        for (char const * const healing : {"false", "true"}) {
            for (auto const & [name, volume] :
                 {std::pair("mirror_loc.brep", 15750.0), std::pair("scale_loc.brep", 47250.0)}) {
                sdkDocument document;
                ASSERT_TRUE(read(kit_fault_file(name), document,
                                 {{"brepReadStructure", structure}, {"brepReadHealing", healing}}));
                EXPECT_NEAR(sdk_measure(document).volume, volume, 1e-6 * volume)
                    << name << structure << healing;
                EXPECT_EQ(sdk_make_places_rigid(document), 0);
            }
        }
    }
}

TEST_F(BrepReader, KeepsAnAccountOfItsFile)
{
    ASSERT_TRUE(write(kit_compound({kit_hollow_cube(), kit_wire(), kit_cube(5)}), path("mixed.brep")));
    sdkDocument document;
    ASSERT_TRUE(read(path("mixed.brep"), document, {{"vmrOptProcessWireframe", "false"}}));
    EXPECT_EQ(account().held(sdkSourceKind::root), 1);
    EXPECT_EQ(account().held(sdkSourceKind::solid), 2);
    EXPECT_EQ(account().held(sdkSourceKind::shell), 3);
    EXPECT_EQ(account().held(sdkSourceKind::face), 18);
    EXPECT_EQ(account().held(sdkSourceKind::curve), 2); // though they are not wanted
    EXPECT_EQ(account().held(sdkSourceKind::point), 0);
}
