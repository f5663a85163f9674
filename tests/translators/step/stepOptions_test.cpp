#include "stepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <ShapeAnalysis_ShapeTolerance.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <regex>

class StepOptions : public stepFormatTest {
protected:
    // The text of a file with the assembly.
    std::string written(Values const & values)
    {
        sdkDocument document;
        kit_add_assembly(document);
        EXPECT_TRUE(write(document, path("written.stp"), values));
        return kit_read_file(path("written.stp"));
    }

    void read_assembly(sdkDocument & document, Values const & values)
    {
        written({});
        ASSERT_TRUE(read(path("written.stp"), document, values));
    }

    // Writes the cube and changes the text of its file.
    void write_changed_cube(std::string const & from, std::string const & to)
    {
        ASSERT_TRUE(write(kit_cube(10), path("cube.stp"), {}, "NAME"));
        auto text = kit_read_file(path("cube.stp"));
        for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
            text.replace(at, from.size(), to);
        }
        folder().write("cube.stp", text);
    }
};

namespace {

double largest_tolerance(sdkDocument const & document)
{
    return ShapeAnalysis_ShapeTolerance().Tolerance(sdk_whole_shape(document), 1);
}

bool any_coloured(sdkDocument const & document)
{
    auto const parts = document.parts();
    return std::any_of(parts.begin(), parts.end(), [&](TDF_Label const & part) {
        return !kit_colour(document, part).IsEqual(Quantity_Color(0, 0, 0, Quantity_TOC_RGB));
    });
}

} // namespace

TEST_F(StepOptions, SchemaIsTheOneAskedFor)
{
    EXPECT_NE(written({}).find("AUTOMOTIVE_DESIGN"), std::string::npos);
    EXPECT_NE(written({{"stepWriteSchema", "AP203"}}).find("CONFIG_CONTROL_DESIGN"), std::string::npos);
    EXPECT_NE(written({{"stepWriteSchema", "AP242"}}).find("AP242_MANAGED_MODEL_BASED_3D_ENGINEERING"),
              std::string::npos);
}

TEST_F(StepOptions, EachSchemaIsReadBack)
{
    for (char const * const schema : {"AP203", "AP214", "AP242"}) {
        written({{"stepWriteSchema", schema}});
        sdkDocument document;
        ASSERT_TRUE(read(path("written.stp"), document)) << schema;
        EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6) << schema;
    }
}

TEST_F(StepOptions, WritePrecisionIsTheUncertaintyOfTheFile)
{
    std::regex const uncertainty(R"(UNCERTAINTY_MEASURE_WITH_UNIT\(LENGTH_MEASURE\(2\.5E-03\))");
    EXPECT_TRUE(std::regex_search(written({{"stepWritePrecision", "0.0025"}}), uncertainty));
    EXPECT_FALSE(std::regex_search(written({{"stepWritePrecision", "0"}}), uncertainty));
}

TEST_F(StepOptions, ReadPrecisionDecidesWhichCurvesOnSurfacesAreTrusted)
{
    // A curve on the cylinder that ends 0.02 above the edge it stands for.
    ASSERT_TRUE(write(BRepPrimAPI_MakeCylinder(5, 10).Shape(), path("cylinder.stp")));
    std::string const exact = "CARTESIAN_POINT('',(0.,10.))";
    auto text = kit_read_file(path("cylinder.stp"));
    ASSERT_NE(text.find(exact), std::string::npos);
    folder().write("cylinder.stp",
                   text.replace(text.find(exact), exact.size(), "CARTESIAN_POINT('',(0.,10.02))"));
    sdkDocument replaced;
    ASSERT_TRUE(read(path("cylinder.stp"), replaced, {{"stepReadPrecision", "0.0001"}}));
    sdkDocument trusted;
    ASSERT_TRUE(read(path("cylinder.stp"), trusted, {{"stepReadPrecision", "0.05"}}));
    EXPECT_LT(largest_tolerance(replaced), 0.001);
    EXPECT_NEAR(largest_tolerance(trusted), 0.02, 0.001);
}

TEST_F(StepOptions, WriteStructureFlatPutsEachPartAtItsPlace)
{
    EXPECT_EQ(written({{"stepWriteStructure", "flat"}}).find("NEXT_ASSEMBLY_USAGE_OCCURRENCE"),
              std::string::npos);
    sdkDocument document;
    ASSERT_TRUE(read(path("written.stp"), document));
    EXPECT_EQ(document.free_shapes().Length(), 3);
    auto const measures = sdk_measure(document);
    EXPECT_NEAR(measures.volume, 2000, 1e-6);
    EXPECT_NEAR(measures.box.CornerMax().X(), 50, 1e-3);
}

TEST_F(StepOptions, ReadStructureFlatKeepsNamesAndColours)
{
    sdkDocument document;
    read_assembly(document, {{"stepReadStructure", "flat"}});
    EXPECT_EQ(document.free_shapes().Length(), 3);
    EXPECT_EQ(kit_part_names(document),
              (std::vector<std::string>{kit_blue_name, kit_blue_name, kit_red_name}));
    for (auto const & part : document.parts()) {
        bool const red = sdkDocument::name(part) == kit_red_name;
        EXPECT_TRUE(kit_colour(document, part).IsEqual(red ? kit_red() : kit_blue()));
    }
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6);
}

TEST_F(StepOptions, NamesAreNotReadWhenTheyAreNotWanted)
{
    sdkDocument document;
    read_assembly(document, {{"stepReadNames", "false"}});
    auto const names = kit_part_names(document);
    EXPECT_EQ(std::count(names.begin(), names.end(), kit_red_name), 0);
}

TEST_F(StepOptions, ColoursAreNotReadWhenTheyAreNotWanted)
{
    sdkDocument with;
    read_assembly(with, {});
    EXPECT_TRUE(any_coloured(with));
    sdkDocument without;
    read_assembly(without, {{"stepReadColours", "false"}});
    EXPECT_FALSE(any_coloured(without));
}

TEST_F(StepOptions, LayersAreNotReadWhenTheyAreNotWanted)
{
    sdkDocument with;
    read_assembly(with, {});
    sdkDocument without;
    read_assembly(without, {{"stepReadLayers", "false"}});
    TDF_LabelSequence layers;
    with.layers()->GetLayerLabels(layers);
    EXPECT_EQ(layers.Length(), 1);
    TDF_LabelSequence none;
    without.layers()->GetLayerLabels(none);
    EXPECT_EQ(none.Length(), 0);
}

TEST_F(StepOptions, NamesColoursAndLayersAreNotWrittenWhenTheyAreNotWanted)
{
    auto const with = written({});
    EXPECT_NE(with.find(kit_blue_name), std::string::npos);
    EXPECT_NE(with.find("COLOUR"), std::string::npos);
    EXPECT_NE(with.find("PRESENTATION_LAYER_ASSIGNMENT"), std::string::npos);
    EXPECT_EQ(written({{"stepWriteNames", "false"}}).find(kit_blue_name), std::string::npos);
    EXPECT_EQ(written({{"stepWriteColours", "false"}}).find("COLOUR"), std::string::npos);
    EXPECT_EQ(written({{"stepWriteLayers", "false"}}).find("PRESENTATION_LAYER"), std::string::npos);
}

TEST_F(StepOptions, AuthorAndOrganisationStandInTheHeader)
{
    auto const text = written({{"stepWriteAuthor", "Zoë"}, {"stepWriteOrganisation", "Works & Co"}});
    auto const header = text.substr(0, text.find("DATA;"));
    EXPECT_NE(header.find("('Zo\\X2\\00EB\\X0\\')"), std::string::npos) << header;
    EXPECT_NE(header.find("'Works & Co'"), std::string::npos) << header;
    EXPECT_NE(header.find("'written.stp'"), std::string::npos) << header;
}

TEST_F(StepOptions, FacetsBecomeASolidOrAreRefused)
{
    ASSERT_TRUE(write(kit_facet_cube(), path("facets.stp")));
    sdkDocument document;
    ASSERT_TRUE(read(path("facets.stp"), document));
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_EQ(sdk_measure(document).faces, 6);

    auto const refused = write(kit_facet_cube(), path("refused.stp"), {{"stepWriteFaceted", "refuse"}});
    EXPECT_EQ(refused.status(), sdkStatus::write_error);
    EXPECT_NE(refused.text().formatted().find("stepWriteFaceted"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(path("refused.stp")));
}

TEST_F(StepOptions, FacetsOfOnePlaneStayApartUnlessTheyAreToBeMerged)
{
    ASSERT_TRUE(write(kit_facet_cube(), path("facets.stp"), {{"stepWriteMergeFacets", "false"}}));
    EXPECT_TRUE(said().says("12 triangles of 1 parts became 12 plane faces in 1 solids and 0 open shells"));
    sdkDocument document;
    ASSERT_TRUE(read(path("facets.stp"), document));
    EXPECT_EQ(sdk_measure(document).faces, 12);
    EXPECT_EQ(sdk_measure(document).solids, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
}

TEST_F(StepOptions, EdgesOfPlaneFacesHaveNoCurvesInTheParametersOfTheirPlanes)
{
    ASSERT_TRUE(write(kit_facet_cube(), path("facets.stp")));
    EXPECT_EQ(kit_read_file(path("facets.stp")).find("PCURVE"), std::string::npos);
    ASSERT_TRUE(write(BRepPrimAPI_MakeCylinder(5, 10).Shape(), path("round.stp")));
    EXPECT_NE(kit_read_file(path("round.stp")).find("PCURVE"), std::string::npos);

    // One part of a document has no say in what another one needs.
    sdkDocument document;
    document.add_shape(BRepPrimAPI_MakeCylinder(5, 10).Shape(), "Round");
    document.add_shape(kit_facet_cube(), "Facets");
    ASSERT_TRUE(write(document, path("both.stp")));
    EXPECT_NE(kit_read_file(path("both.stp")).find("PCURVE"), std::string::npos);
}

TEST_F(StepOptions, MoreFacetsThanTheLimitAreRefusedWithTheNameOfTheOption)
{
    auto const refused = write(kit_facet_cube(), path("many.stp"), {{"stepWriteMaxFacets", "11"}});
    EXPECT_EQ(refused.status(), sdkStatus::write_error);
    EXPECT_EQ(refused.text().formatted(),
              "There are 12 triangles to make faces of, and the limit is 11; reduce the mesh, raise the "
              "option stepWriteMaxFacets, or write a mesh format");
    EXPECT_TRUE(write(kit_facet_cube(), path("few.stp"), {{"stepWriteMaxFacets", "12"}}));
}

TEST_F(StepOptions, CurvesBecomePolylinesWithinTheTolerance)
{
    auto const segments = [&](char const * tolerance) {
        EXPECT_TRUE(write(kit_wire(), path("wire.stp"),
                          {{"stepWriteCurves", "polyline"}, {"vmrTolPolygonizeCurve2d", tolerance}}));
        EXPECT_EQ(kit_read_file(path("wire.stp")).find("CIRCLE("), std::string::npos);
        sdkDocument document;
        EXPECT_TRUE(read(path("wire.stp"), document));
        return document.count_entities().curves;
    };
    auto const coarse = segments("0.5");
    auto const fine = segments("0.001");
    EXPECT_GT(coarse, 1);
    EXPECT_GT(fine, coarse);
    ASSERT_TRUE(write(kit_wire(), path("wire.stp")));
    EXPECT_NE(kit_read_file(path("wire.stp")).find("CIRCLE("), std::string::npos);
}

TEST_F(StepOptions, WireframeAndSurfacesAreLeftOutOnBothSides)
{
    sdkDocument mixed;
    mixed.add_shape(kit_cube(10), "Cube");
    mixed.add_shape(kit_wire(), "Wire");
    ASSERT_TRUE(write(mixed, path("mixed.stp")));
    EXPECT_EQ(said().processed(), 8);

    sdkDocument surfaces;
    ASSERT_TRUE(read(path("mixed.stp"), surfaces, {{"vmrOptProcessWireframe", "false"}}));
    EXPECT_EQ(surfaces.count_entities().curves, 0);
    EXPECT_EQ(surfaces.count_entities().faces, 6);
    sdkDocument wires;
    ASSERT_TRUE(read(path("mixed.stp"), wires, {{"vmrOptProcessSurfaces", "false"}}));
    EXPECT_EQ(wires.count_entities().curves, 2);
    EXPECT_EQ(wires.count_entities().faces, 0);

    ASSERT_TRUE(write(mixed, path("surfaces.stp"), {{"vmrOptProcessWireframe", "false"}}));
    EXPECT_EQ(said().processed(), 6);
}

TEST_F(StepOptions, BothKindsLeftOutLeavesNothingToWrite)
{
    EXPECT_TRUE(write(kit_cube(10), path("nothing.stp"),
                      {{"vmrOptProcessWireframe", "false"}, {"vmrOptProcessSurfaces", "false"}}));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_FALSE(std::filesystem::exists(path("nothing.stp")));
}

TEST_F(StepOptions, CurveOnSurfaceToleranceDecidesWhichEdgesAreRepaired)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    for (TopExp_Explorer edge(cylinder, TopAbs_EDGE); edge.More(); edge.Next()) {
        BRep_Builder().UpdateEdge(TopoDS::Edge(edge.Current()), 0.1);
    }
    ASSERT_TRUE(write(cylinder, path("loose.stp"), {{"vmrTolCurveOnSurface3d", "0.2"}}));
    EXPECT_FALSE(said().says("were repaired"));
    ASSERT_TRUE(write(cylinder, path("loose.stp"), {{"vmrTolCurveOnSurface3d", "0.01"}}));
    EXPECT_TRUE(said().says("1 parts had edges further than 0.01 mm"));
}

TEST_F(StepOptions, CodePageTellsHowNamesAreRead)
{
    write_changed_cube("NAME", "K\xF6rper");
    sdkDocument document;
    ASSERT_TRUE(read(path("cube.stp"), document, {{"stepReadCodePage", "CP1252"}}));
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"Körper"});
    sdkDocument other;
    ASSERT_TRUE(read(path("cube.stp"), other, {{"stepReadCodePage", "CP1251"}}));
    EXPECT_EQ(kit_part_names(other), std::vector<std::string>{"Kцrper"});
    sdkDocument unknown;
    ASSERT_TRUE(read(path("cube.stp"), unknown));
    EXPECT_TRUE(said().says("choose their code page"));
}

TEST_F(StepOptions, HealingTurnedOffLeavesShapesAsTheFileHasThem)
{
    // The outer bound of one face runs the wrong way round.
    ASSERT_TRUE(write(kit_cube(10), path("cube.stp")));
    auto const text = kit_read_file(path("cube.stp"));
    std::regex const bound(R"((FACE_BOUND\('',#\d+),\.[TF]\.\))");
    auto const sense = text[text.find(",.", text.find("FACE_BOUND")) + 2];
    folder().write("cube.stp", std::regex_replace(text, bound, sense == 'T' ? "$1,.F.)" : "$1,.T.)",
                                                  std::regex_constants::format_first_only));

    sdkDocument healed;
    ASSERT_TRUE(read(path("cube.stp"), healed));
    EXPECT_TRUE(BRepCheck_Analyzer(sdk_whole_shape(healed)).IsValid());
    sdkDocument untouched;
    ASSERT_TRUE(read(path("cube.stp"), untouched, {{"stepReadHealing", "false"}}));
    EXPECT_FALSE(BRepCheck_Analyzer(sdk_whole_shape(untouched)).IsValid());
}
