#include "stlFormatTest.h"

#include "sdk/geometry/sdkFacets.h"
#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitIndicator.h"

#include <limits>
#include <random>

class StlReader : public stlFormatTest {};

TEST_F(StlReader, MakesAPartWithOneFaceOfTrianglesOfEachSolid)
{
    sdkDocument document;
    ASSERT_TRUE(read_content(stl_binary("any", {stl_triangle}), document));
    auto const count = document.count_entities();
    EXPECT_EQ(count.faces, 1);
    EXPECT_EQ(count.facets_only, 1);
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"part"});
    EXPECT_NEAR(sdk_measure(document).area, 0.5, 1e-12);
    EXPECT_TRUE(said().says("1 triangles in 1 solids read, taking lengths to be in mm"));
}

TEST_F(StlReader, ReadsABinaryFileWhoseHeaderSaysSolid)
{
    sdkDocument document;
    ASSERT_TRUE(read_content(stl_binary("solid facet", {stl_triangle}), document));
    EXPECT_EQ(sdk_measure(document).triangles, 1);
}

TEST_F(StlReader, TakesTheUnitThatItIsTold)
{
    for (auto const & [unit, length] : {std::pair("mm", 1.0), {"in", 25.4}, {"m", 1000.0}, {"um", 0.001}}) {
        sdkDocument document;
        ASSERT_TRUE(read_content(stl_binary("", {stl_triangle}), document, {{"stlReadUnit", unit}}));
        EXPECT_NEAR(sdk_measure(document).area, length * length / 2, 1e-9 * length * length) << unit;
    }
}

TEST_F(StlReader, MergesEqualCornersAndNearOnesWhenAsked)
{
    auto near = stl_triangle;
    near[3] = 0.001F;
    near[5] = 0.5F;
    auto const content = stl_binary("", {stl_triangle, near});
    sdkDocument exact;
    ASSERT_TRUE(read_content(content, exact));
    EXPECT_FALSE(said().says("moved"));
    sdkDocument merged;
    ASSERT_TRUE(read_content(content, merged, {{"stlReadMergeTolerance", "0.6"}}));
    EXPECT_TRUE(said().says("1 corners were moved to others nearby"));
    EXPECT_NEAR(sdk_measure(merged).area, 1, 1e-9);
    EXPECT_GT(sdk_measure(exact).area, 1.01);
}

TEST_F(StlReader, DropsTrianglesWithoutAreaAndCountsThem)
{
    auto point = stl_triangle;
    std::copy_n(point.begin() + 3, 3, point.begin() + 6);
    sdkDocument document;
    ASSERT_TRUE(read_content(stl_binary("", {stl_triangle, point}), document));
    EXPECT_EQ(sdk_measure(document).triangles, 1);
    EXPECT_TRUE(said().says("1 triangles without area are left out"));
}

TEST_F(StlReader, SaysHowManyTrianglesContradictTheirNormals)
{
    auto turned = stl_triangle;
    turned[2] = -1;
    sdkDocument document;
    ASSERT_TRUE(read_content(stl_binary("", {stl_triangle, turned}), document));
    EXPECT_TRUE(said().says("1 triangles are turned against their normals"));
}

TEST_F(StlReader, LeavesOutEmptySolidsAndSaysSo)
{
    sdkDocument document;
    ASSERT_TRUE(read_content("solid a\nendsolid a\nsolid b\n" + stl_text_facet() + "endsolid b\n", document));
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"b"});
    EXPECT_TRUE(said().says("1 solids have no triangles"));
}

TEST_F(StlReader, CompletesWithNothingForFilesWithoutTriangles)
{
    for (auto const & content : {std::string("solid nothing\nendsolid nothing\n"), stl_binary("empty", {})}) {
        sdkDocument document;
        EXPECT_TRUE(read_content(content, document));
        EXPECT_TRUE(document.empty());
        EXPECT_TRUE(said().says("0 triangles in 1 solids"));
    }
}

TEST_F(StlReader, ReadsNothingWhenSurfacesAreTurnedOff)
{
    sdkDocument document;
    ASSERT_TRUE(read_content(stl_binary("", {stl_triangle}), document, {{"vmrOptProcessSurfaces", "false"}}));
    EXPECT_TRUE(document.empty());
    EXPECT_TRUE(said().says("1 faces are left out because surfaces are not to be processed"));
}

TEST_F(StlReader, NamesTheByteAtWhichABinaryFileIsCutOff)
{
    auto content = stl_binary("cut", {stl_triangle, stl_triangle, stl_triangle});
    content.resize(150);
    auto const failure = failure_of(content);
    EXPECT_NE(failure.find("promises 3 triangles, and the file ends at byte 150 in triangle 2"),
              std::string::npos)
        << failure;
    EXPECT_NE(failure.find("part.stl"), std::string::npos);
}

TEST_F(StlReader, RefusesAHugeCountBeforeItAllocatesAnything)
{
    auto content = stl_binary(std::string("\0binary", 7), {stl_triangle});
    content.replace(80, 4, "\xFF\xFF\xFF\xFF");
    EXPECT_NE(failure_of(content).find("promises 4294967295 triangles"), std::string::npos);
}

TEST_F(StlReader, NamesTheTriangleAndByteOfACoordinateThatIsNotFinite)
{
    auto bad = stl_triangle;
    bad[7] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_NE(failure_of(stl_binary("", {stl_triangle, bad})).find("triangle 2 at byte 134"),
              std::string::npos);
    bad[7] = std::numeric_limits<float>::infinity();
    EXPECT_NE(failure_of(stl_binary("", {bad})).find("triangle 1 at byte 84"), std::string::npos);
}

TEST_F(StlReader, IgnoresBytesAfterTheLastTriangleAndSaysSo)
{
    sdkDocument document;
    ASSERT_TRUE(read_content(stl_binary(std::string("\x01", 1), {stl_triangle}) + "tail", document));
    EXPECT_TRUE(said().says("4 bytes after the last triangle are ignored"));
}

TEST_F(StlReader, RefusesFilesThatAreNoStl)
{
    EXPECT_NE(failure_of("").find("is empty"), std::string::npos);
    EXPECT_NE(failure_of("x").find("is not an STL file"), std::string::npos);
    EXPECT_NE(failure_of("# a letter, long enough to hold a binary header, " + std::string(200, '.'))
                  .find("is not an STL"),
              std::string::npos);
    sdkDocument document;
    EXPECT_EQ(read(path("absent.stl"), document).status(), sdkStatus::read_error);
    EXPECT_EQ(read(folder().path().string(), document).status(), sdkStatus::read_error);
}

TEST_F(StlReader, RefusesRandomBytes)
{
    std::mt19937 random(1);
    for (std::size_t const size : {10U, 83U, 84U, 1000U, 100'000U}) {
        std::string content(size, '\0');
        for (auto & byte : content) {
            byte = static_cast<char>(random());
        }
        EXPECT_NE(failure_of(content), "") << size;
    }
}

TEST_F(StlReader, StopsWhenTheUserCancels)
{
    std::vector<std::array<float, 12>> const many(100'000, stl_triangle);
    std::string text = "solid x\n";
    for (int facet = 0; facet < 50'000; ++facet) {
        text += stl_text_facet();
    }
    for (auto const & content : {stl_binary("", many), text + "endsolid\n"}) {
        auto const file = folder().write("many.stl", content);
        kitSide side(STL_MANIFEST, "STL", {}, file);
        Handle(kitIndicator) const progress = new kitIndicator;
        progress->cancelled = true;
        EXPECT_EQ(make_reader(side.context())->parse(file, progress->Start()).status(), sdkStatus::cancelled);
    }
}

TEST_F(StlReader, GivesAMeshThatBecomesASolid)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.stl")));
    for (bool const merged : {false, true}) {
        sdkDocument document;
        ASSERT_TRUE(read(path("cube.stl"), document));
        auto const counts = sdk_make_facets(document, {.merge_coplanar = merged});
        EXPECT_EQ(counts.solids, 1);
        EXPECT_EQ(counts.faces, merged ? 6 : 12);
        EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-9);
    }
}

TEST_F(StlReader, KeepsAnAccountOfItsFile)
{
    sdkDocument document;
    ASSERT_TRUE(read_content("solid a\n" + stl_text_facet() + "endsolid a\nsolid b\nendsolid b\nsolid c\n" +
                                 stl_text_facet(5) + "endsolid c\n",
                             document));
    EXPECT_EQ(account().held(sdkSourceKind::root), 3);
    EXPECT_EQ(account().held(sdkSourceKind::face), 2);
    EXPECT_EQ(account().held(sdkSourceKind::solid), 0);
}
