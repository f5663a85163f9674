#include "igesFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <regex>

class IgesOptions : public igesFormatTest {
protected:
    std::string written(Values const & values)
    {
        sdkDocument document;
        kit_add_assembly(document);
        EXPECT_TRUE(write(document, path("written.igs"), values));
        return kit_read_file(path("written.igs"));
    }

    void read_assembly(sdkDocument & document, Values const & values)
    {
        written({});
        ASSERT_TRUE(read(path("written.igs"), document, values));
    }
};

namespace {

// Entities of a type in the directory.
std::ptrdiff_t count_entities(std::string const & text, int type)
{
    std::regex const entry("\n {5}" + std::to_string(type) + "[^\n]{64}D");
    return std::distance(std::sregex_iterator(text.begin(), text.end(), entry), std::sregex_iterator()) / 2;
}

bool any_coloured(sdkDocument const & document)
{
    auto const parts = document.parts();
    return std::any_of(parts.begin(), parts.end(), [&](TDF_Label const & part) {
        return !kit_colour(document, part).IsEqual(Quantity_Color(0, 0, 0, Quantity_TOC_RGB));
    });
}

int layers(sdkDocument const & document)
{
    TDF_LabelSequence labels;
    document.layers()->GetLayerLabels(labels);
    return labels.Length();
}

} // namespace

TEST_F(IgesOptions, SolidsAreWrittenAsSolidsOrAsTrimmedSurfaces)
{
    auto const solids = written({{"igesWriteSolids", "true"}});
    EXPECT_EQ(count_entities(solids, 186), 3);
    EXPECT_EQ(count_entities(solids, 144), 0);
    auto const surfaces = written({{"igesWriteSolids", "false"}});
    EXPECT_EQ(count_entities(surfaces, 186), 0);
    EXPECT_EQ(count_entities(surfaces, 144), 18);
}

TEST_F(IgesOptions, FacesAreNotSewnWhenSolidsAreNotWanted)
{
    written({{"igesWriteSolids", "false"}});
    sdkDocument document;
    ASSERT_TRUE(read(path("written.igs"), document, {{"igesReadSolids", "false"}}));
    EXPECT_EQ(sdk_measure(document).solids, 0);
    EXPECT_EQ(sdk_measure(document).faces, 18);
}

TEST_F(IgesOptions, SewToleranceIsTheGapThatIsClosed)
{
    auto faces = kit_loose_faces(kit_cube(10));
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(0, 0, 0.05));
    faces.back() = BRepBuilderAPI_Transform(faces.back(), shift, Standard_True).Shape();
    ASSERT_TRUE(write(kit_compound(faces), path("gap.igs")));
    sdkDocument open;
    ASSERT_TRUE(read(path("gap.igs"), open, {{"igesReadSewTolerance", "0.01"}}));
    EXPECT_EQ(sdk_measure(open).solids, 0);
    sdkDocument closed;
    ASSERT_TRUE(read(path("gap.igs"), closed, {{"igesReadSewTolerance", "0.1"}}));
    EXPECT_EQ(sdk_measure(closed).solids, 1);
}

TEST_F(IgesOptions, UnitsOfTheUserReplaceThoseOfTheFile)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.igs")));
    sdkDocument document;
    ASSERT_TRUE(read(path("cube.igs"), document, {{"igesReadUnits", "cm"}}));
    EXPECT_NEAR(sdk_measure(document).volume, 1e6, 1);
    EXPECT_TRUE(said().says("Its lengths are taken to be in cm"));
}

TEST_F(IgesOptions, EntitiesThatAreBlankedAreLeftOutWhenOnlyVisibleOnesAreWanted)
{
    sdkDocument both;
    both.add_shape(kit_cube(10), "One");
    both.add_shape(kit_cube(20), "Two");
    ASSERT_TRUE(write(both, path("both.igs")));
    auto text = kit_read_file(path("both.igs"));
    // The status of the first solid, in columns 65 to 72 of its first directory record, begins with the blank
    // flag.
    auto const solid = text.find("\n     186");
    ASSERT_NE(solid, std::string::npos);
    text.replace(solid + 1 + 64, 2, "01");
    folder().write("both.igs", text);
    sdkDocument all;
    ASSERT_TRUE(read(path("both.igs"), all));
    EXPECT_EQ(sdk_measure(all).solids, 2);
    sdkDocument visible;
    ASSERT_TRUE(read(path("both.igs"), visible, {{"igesReadVisibleOnly", "true"}}));
    EXPECT_EQ(sdk_measure(visible).solids, 1);
}

TEST_F(IgesOptions, NamesColoursAndLayersAreNotReadWhenTheyAreNotWanted)
{
    sdkDocument with;
    read_assembly(with, {});
    EXPECT_EQ(kit_part_names(with).front(), "Blue box");
    EXPECT_TRUE(any_coloured(with));
    EXPECT_GT(layers(with), 0);
    sdkDocument without;
    read_assembly(without,
                  {{"igesReadNames", "false"}, {"igesReadColours", "false"}, {"igesReadLayers", "false"}});
    EXPECT_NE(kit_part_names(without).front(), "Blue box");
    EXPECT_FALSE(any_coloured(without));
    EXPECT_EQ(layers(without), 0);
}

TEST_F(IgesOptions, NamesColoursAndLayersAreNotWrittenWhenTheyAreNotWanted)
{
    EXPECT_NE(written({}).find("HBlue box"), std::string::npos);
    EXPECT_EQ(written({{"igesWriteNames", "false"}}).find("HBlue box"), std::string::npos);
    sdkDocument document;
    written({{"igesWriteColours", "false"}, {"igesWriteLayers", "false"}});
    ASSERT_TRUE(read(path("written.igs"), document));
    EXPECT_FALSE(any_coloured(document));
    EXPECT_EQ(layers(document), 0);
}

TEST_F(IgesOptions, AuthorOrganisationAndPrecisionStandInTheGlobalSection)
{
    auto text = written(
        {{"igesWriteAuthor", "Zoe"}, {"igesWriteOrganisation", "Works"}, {"igesWritePrecision", "0.0025"}});
    EXPECT_NE(text.find("3HZoe,5HWorks,"), std::string::npos);
    EXPECT_NE(text.find(",0.0025,"), std::string::npos);
}

TEST_F(IgesOptions, FacetsBecomeASolidOrAreRefused)
{
    ASSERT_TRUE(write(kit_facet_cube(), path("facets.igs")));
    sdkDocument document;
    ASSERT_TRUE(read(path("facets.igs"), document));
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    auto const refused = write(kit_facet_cube(), path("refused.igs"), {{"igesWriteFaceted", "refuse"}});
    EXPECT_EQ(refused.status(), sdkStatus::write_error);
    EXPECT_FALSE(std::filesystem::exists(path("refused.igs")));
}

TEST_F(IgesOptions, FacetsOfOnePlaneStayApartUnlessTheyAreToBeMerged)
{
    ASSERT_TRUE(write(kit_facet_cube(), path("facets.igs"), {{"igesWriteMergeFacets", "false"}}));
    EXPECT_TRUE(said().says("12 triangles of 1 parts became 12 plane faces in 1 solids and 0 open shells"));
    sdkDocument document;
    ASSERT_TRUE(read(path("facets.igs"), document));
    EXPECT_EQ(sdk_measure(document).faces, 12);
    EXPECT_EQ(sdk_measure(document).solids, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
}

TEST_F(IgesOptions, MoreFacetsThanTheLimitAreRefusedWithTheNameOfTheOption)
{
    auto const refused = write(kit_facet_cube(), path("many.igs"), {{"igesWriteMaxFacets", "11"}});
    EXPECT_EQ(refused.status(), sdkStatus::write_error);
    EXPECT_EQ(refused.text().formatted(),
              "There are 12 triangles to make faces of, and the limit is 11; reduce the mesh, raise the "
              "option igesWriteMaxFacets, or write a mesh format");
    EXPECT_TRUE(write(kit_facet_cube(), path("few.igs"), {{"igesWriteMaxFacets", "12"}}));
}

TEST_F(IgesOptions, CurvesBecomePolylinesWhenTheyAreAskedFor)
{
    ASSERT_TRUE(write(kit_wire(), path("wire.igs")));
    EXPECT_EQ(count_entities(kit_read_file(path("wire.igs")), 100), 1);
    ASSERT_TRUE(write(kit_wire(), path("wire.igs"),
                      {{"igesWriteCurves", "polyline"}, {"vmrTolPolygonizeCurve2d", "0.1"}}));
    EXPECT_EQ(count_entities(kit_read_file(path("wire.igs")), 100), 0);
    EXPECT_GT(count_entities(kit_read_file(path("wire.igs")), 110), 2);
}

TEST_F(IgesOptions, WireframeAndSurfacesAreLeftOutOnBothSides)
{
    sdkDocument mixed;
    mixed.add_shape(kit_cube(10), "Cube");
    mixed.add_shape(kit_wire(), "Wire");
    ASSERT_TRUE(write(mixed, path("mixed.igs")));
    EXPECT_EQ(said().processed(), 8);
    sdkDocument surfaces;
    ASSERT_TRUE(read(path("mixed.igs"), surfaces, {{"vmrOptProcessWireframe", "false"}}));
    EXPECT_EQ(surfaces.count_entities().curves, 0);
    EXPECT_EQ(surfaces.count_entities().faces, 6);
    ASSERT_TRUE(write(mixed, path("wires.igs"), {{"vmrOptProcessSurfaces", "false"}}));
    EXPECT_EQ(said().processed(), 2);
}

TEST_F(IgesOptions, CurveOnSurfaceToleranceDecidesWhichEdgesAreRepaired)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    for (TopExp_Explorer edge(cylinder, TopAbs_EDGE); edge.More(); edge.Next()) {
        BRep_Builder().UpdateEdge(TopoDS::Edge(edge.Current()), 0.1);
    }
    ASSERT_TRUE(write(cylinder, path("loose.igs"), {{"vmrTolCurveOnSurface3d", "0.2"}}));
    EXPECT_FALSE(said().says("were repaired"));
    ASSERT_TRUE(write(cylinder, path("loose.igs"), {{"vmrTolCurveOnSurface3d", "0.01"}}));
    EXPECT_TRUE(said().says("1 parts had edges further than 0.01 mm"));
}

TEST_F(IgesOptions, HealingRepairsFacesOrLeavesThemAsTheFileHasThem)
{
    // The boundary of the face runs the wrong way round.
    ASSERT_TRUE(write(kit_inverted_face(), path("face.igs"), {}));
    sdkDocument healed;
    ASSERT_TRUE(read(path("face.igs"), healed));
    EXPECT_TRUE(BRepCheck_Analyzer(sdk_whole_shape(healed)).IsValid());
    sdkDocument untouched;
    ASSERT_TRUE(read(path("face.igs"), untouched, {{"igesReadHealing", "false"}}));
    EXPECT_FALSE(BRepCheck_Analyzer(sdk_whole_shape(untouched)).IsValid());
}
