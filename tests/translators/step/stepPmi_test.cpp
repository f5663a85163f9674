#include "stepFormatTest.h"
#include "stepPmiPart.h"

#include "sdk/geometry/sdkScale.h"
#include "sdk/measure/sdkAnnotationComparison.h"
#include "step/stepDefinitions.h"

#include <BRepBuilderAPI_Copy.hxx>
#include <BRepGProp.hxx>
#include <BRepTools_ReShape.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>

namespace {

constexpr std::size_t items_of_part = 10;

gp_Pnt centre_of(TopoDS_Shape const & face)
{
    GProp_GProps properties;
    BRepGProp::SurfaceProperties(face, properties);
    return properties.CentreOfMass();
}

TopoDS_Shape face_at(TopoDS_Shape const & shape, gp_Pnt const & centre)
{
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        if (centre_of(face.Current()).Distance(centre) < 1e-6) {
            return face.Current();
        }
    }
    return {};
}

} // namespace

class StepPmi : public stepFormatTest {
protected:
    StepPmi()
    {
        EXPECT_TRUE(write(kit_cube(10), path("cube.stp"), {{"stepWriteSchema", "AP242"}}));
        m_source = folder().write("source.stp", step_with_pmi(kit_read_file(path("cube.stp"))));
    }

    std::string const & source() const { return m_source; }

    void read_source(sdkDocument & document)
    {
        auto const result = read(source(), document);
        ASSERT_TRUE(result) << result.text().formatted();
        ASSERT_EQ(sdk_annotations(document).size(), 1U);
        ASSERT_EQ(sdk_annotations(document).front().annotations.size(), items_of_part);
    }

    std::string written(sdkDocument & document, Values values = {})
    {
        values.emplace("stepWriteSchema", "AP242");
        EXPECT_TRUE(write(document, path("written.stp"), values));
        return kit_read_file(path("written.stp"));
    }

    // What comes back otherwise than it was, of what the writer has promised.
    std::vector<sdkFinding> differences(std::string const & file)
    {
        auto const promised = promise();
        EXPECT_TRUE(promised.annotations);
        sdkDocument before;
        sdkDocument after;
        EXPECT_TRUE(read(source(), before));
        EXPECT_TRUE(read(file, after));
        std::vector<sdkFinding> findings;
        sdk_compare_annotations(before, after, promised, findings);
        return findings;
    }

    // The names of the items that the writer said are lost.
    std::vector<std::string> lost() const
    {
        std::vector<std::string> names;
        for (auto const & finding : account().findings()) {
            if (finding.kind == "annotation") {
                EXPECT_EQ(finding.weight, sdkWeight::loss);
                names.push_back(std::get<std::string>(finding.text.arguments()[2]));
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    static sdkAnnotation find(sdkDocument const & document, std::string const & name)
    {
        for (auto const & set : sdk_annotations(document)) {
            for (auto const & one : set.annotations) {
                if (one.name == name) {
                    return one;
                }
            }
        }
        return {};
    }

private:
    std::string m_source;
};

TEST_F(StepPmi, ComesBackAsItWas)
{
    sdkDocument document;
    read_source(document);
    auto const text = written(document);
    EXPECT_TRUE(promise().annotations);
    EXPECT_TRUE(lost().empty());
    EXPECT_TRUE(
        said().says("10 of 10 dimensions, geometric tolerances, datums, annotations and views are kept"));
    for (auto const & difference : differences(path("written.stp"))) {
        ADD_FAILURE() << difference.text.formatted();
    }
    for (char const * kind :
         {"DIMENSIONAL_SIZE", "PLUS_MINUS_TOLERANCE", "ANGULAR_LOCATION", "FLATNESS_TOLERANCE",
          "POSITION_TOLERANCE", "DATUM_SYSTEM", "TOLERANCE_ZONE", "PLACED_DATUM_TARGET_FEATURE",
          "ANNOTATION_CURVE_OCCURRENCE", "CAMERA_MODEL_D3", "DRAUGHTING_MODEL_ITEM_ASSOCIATION",
          "MECHANICAL_DESIGN_AND_DRAUGHTING_RELATIONSHIP", "ID_ATTRIBUTE"}) {
        EXPECT_EQ(step_count_kind(text, kind), 1) << kind;
    }
    EXPECT_EQ(step_count_kind(text, "DATUM"), 4);
}

TEST_F(StepPmi, KeepsValuesAndTheirUnits)
{
    sdkDocument document;
    read_source(document);
    written(document, {{"vmrOptOutputUnits", "m"}});
    EXPECT_TRUE(differences(path("written.stp")).empty());
    sdkDocument back;
    ASSERT_TRUE(read(path("written.stp"), back));
    auto const size = find(back, "thickness").content;
    EXPECT_TRUE(kit_contains(size, "POSITIVE_LENGTH_MEASURE(0.3937007874),(CONVERSION_BASED_UNIT('INCH',"
                                   "LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(25.4),(LENGTH_UNIT()NAMED_UNIT(*)"
                                   "SI_UNIT(.MILLI.,.METRE.))"))
        << size;
    EXPECT_TRUE(kit_contains(size, "TOLERANCE_VALUE(LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(-0.001),"));
    EXPECT_TRUE(kit_contains(find(back, "angle").content,
                             "PLANE_ANGLE_MEASURE(90.),(CONVERSION_BASED_UNIT('DEGREE',"));
}

TEST_F(StepPmi, IsAttachedToTheSameFaces)
{
    sdkDocument document;
    read_source(document);
    written(document);
    sdkDocument back;
    ASSERT_TRUE(read(path("written.stp"), back));
    auto const flatness = find(back, "flat");
    ASSERT_EQ(flatness.shapes.size(), 1U);
    ASSERT_FALSE(flatness.shapes.front().IsNull());
    EXPECT_LT(centre_of(flatness.shapes.front()).Distance(gp_Pnt(5, 5, 10)), 1e-6);
    auto const datum = find(back, "B");
    ASSERT_EQ(datum.shapes.size(), 1U);
    EXPECT_LT(centre_of(datum.shapes.front()).Distance(gp_Pnt(0, 5, 5)), 1e-6);
}

TEST_F(StepPmi, MayBeAttachedToEdgesCornersAndBodies)
{
    auto text = kit_read_file(source());
    stepDefinitions const definitions(text);
    auto const first = [&](std::string_view kind) {
        for (auto const & [number, definition] : definitions.all()) {
            if (definition.starts_with(kind)) {
                return "#" + std::to_string(number);
            }
        }
        return std::string();
    };
    auto const face = text.find("#90014=");
    auto const item = text.rfind(',', text.find(");", face)) + 1;
    for (std::string_view const kind :
         {"EDGE_CURVE", "VERTEX_POINT", "MANIFOLD_SOLID_BREP", "CLOSED_SHELL"}) {
        auto other = text;
        other.replace(item, other.find(')', item) - item, first(kind));
        sdkDocument document;
        ASSERT_TRUE(read(folder().write("other.stp", other), document));
        written(document);
        EXPECT_TRUE(lost().empty()) << kind;
        auto const promised = promise();
        sdkDocument back;
        ASSERT_TRUE(read(path("written.stp"), back));
        std::vector<sdkFinding> findings;
        sdk_compare_annotations(document, back, promised, findings);
        EXPECT_TRUE(findings.empty()) << kind;
    }
}

TEST_F(StepPmi, RefersOnlyToWhatIsThere)
{
    sdkDocument document;
    read_source(document);
    auto const text = written(document);
    stepDefinitions const definitions(text);
    for (auto const & [number, definition] : definitions.all()) {
        for (auto const & token : step_tokens(definition)) {
            EXPECT_TRUE(token.kind != stepToken::Kind::reference || !definitions.of(token.number).empty())
                << "#" << number << "=" << definition;
        }
    }
}

TEST_F(StepPmi, LeavesTheColoursOfFacesOutOfItsGroups)
{
    sdkDocument document;
    read_source(document);
    auto const text = written(document);
    EXPECT_FALSE(kit_contains(text, "STYLED_ITEM('',()"));
    stepDefinitions const definitions(text);
    int hidden = 0;
    for (auto const & [number, definition] : definitions.all()) {
        if (definition.starts_with("ANNOTATION_CURVE_OCCURRENCE")) {
            hidden += kit_contains(text, "INVISIBILITY((#" + std::to_string(number) + "));") ? 1 : 0;
        }
    }
    EXPECT_EQ(hidden, 1);
}

TEST_F(StepPmi, ComesThroughASecondTimeUnchanged)
{
    sdkDocument first;
    read_source(first);
    written(first);
    sdkDocument second;
    ASSERT_TRUE(read(path("written.stp"), second));
    EXPECT_TRUE(write(second, path("again.stp"), {{"stepWriteSchema", "AP242"}}));
    EXPECT_TRUE(lost().empty());
    EXPECT_TRUE(differences(path("again.stp")).empty());
}

TEST_F(StepPmi, IsLostWithFacesThatWereChanged)
{
    sdkDocument document;
    read_source(document);
    auto const part = document.parts().First();
    auto const shape = XCAFDoc_ShapeTool::GetShape(part);
    auto const side = face_at(shape, gp_Pnt(0, 5, 5));
    Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    change->Replace(side, BRepBuilderAPI_Copy(side).Shape());
    document.shapes()->SetShape(part, change->Apply(shape));
    written(document);
    // The position is in the system of the datum on that face.
    EXPECT_EQ(lost(), (std::vector<std::string>{"B", "position"}));
    EXPECT_TRUE(said().says("8 of 10 "));
    EXPECT_TRUE(differences(path("written.stp")).empty());
}

TEST_F(StepPmi, LosesTheNoteWithTheSizeThatItShows)
{
    sdkDocument document;
    read_source(document);
    auto const part = document.parts().First();
    auto const shape = XCAFDoc_ShapeTool::GetShape(part);
    auto const top = face_at(shape, gp_Pnt(5, 5, 10));
    Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    change->Replace(top, BRepBuilderAPI_Copy(top).Shape());
    document.shapes()->SetShape(part, change->Apply(shape));
    auto const text = written(document);
    EXPECT_EQ(lost(), (std::vector<std::string>{"D", "angle", "flat", "note Ø 10 µm", "thickness"}));
    EXPECT_EQ(step_count_kind(text, "ANNOTATION_CURVE_OCCURRENCE"), 0);
    EXPECT_EQ(step_count_kind(text, "CAMERA_MODEL_D3"), 1);
    EXPECT_TRUE(differences(path("written.stp")).empty());
}

TEST_F(StepPmi, IsLostWithAPartThatWasScaled)
{
    sdkDocument document;
    read_source(document);
    auto const part = document.parts().First();
    document.shapes()->SetShape(part, sdk_scaled(XCAFDoc_ShapeTool::GetShape(part), 2));
    auto const text = written(document);
    EXPECT_EQ(lost().size(), items_of_part);
    EXPECT_EQ(step_count_kind(text, "DIMENSIONAL_SIZE"), 0);
    EXPECT_EQ(step_count_kind(text, "DRAUGHTING_MODEL"), 0);
    EXPECT_TRUE(differences(path("written.stp")).empty());
}

TEST_F(StepPmi, IsLostWithAPartThatWasScaledAlsoWhereNotesDoNotNameIt)
{
    auto text = kit_read_file(source());
    auto const relation = text.find("#90111=");
    text.erase(relation, text.find('\n', relation) - relation);
    auto const shown = text.find("#90112=");
    text.erase(shown, text.find('\n', shown) - shown);
    auto const file = folder().write("alone.stp", text);
    sdkDocument whole;
    ASSERT_TRUE(read(file, whole));
    written(whole);
    EXPECT_TRUE(lost().empty());
    sdkDocument document;
    ASSERT_TRUE(read(file, document));
    auto const part = document.parts().First();
    document.shapes()->SetShape(part, sdk_scaled(XCAFDoc_ShapeTool::GetShape(part), 2));
    written(document);
    EXPECT_EQ(lost().size(), items_of_part);
}

TEST_F(StepPmi, IsNotWrittenIntoOtherProtocols)
{
    for (char const * schema : {"AP203", "AP214"}) {
        sdkDocument document;
        read_source(document);
        auto const text = written(document, {{"stepWriteSchema", schema}});
        EXPECT_FALSE(promise().annotations);
        EXPECT_TRUE(said().says("are kept in AP242 files only"));
        EXPECT_EQ(step_count_kind(text, "DIMENSIONAL_SIZE"), 0);
    }
}

TEST_F(StepPmi, IsNotWrittenWhenItIsNotWanted)
{
    sdkDocument document;
    read_source(document);
    auto const text = written(document, {{"stepWritePMI", "false"}});
    EXPECT_FALSE(promise().annotations);
    EXPECT_EQ(step_count_kind(text, "DIMENSIONAL_SIZE"), 0);
}

TEST_F(StepPmi, IsThereOnceHoweverOftenThePartIsPlaced)
{
    sdkDocument document;
    read_source(document);
    auto const part = document.parts().First();
    auto const assembly = document.shapes()->NewShape();
    gp_Trsf away;
    away.SetTranslation(gp_Vec(30, 0, 0));
    document.shapes()->AddComponent(assembly, part, TopLoc_Location());
    document.shapes()->AddComponent(assembly, part, TopLoc_Location(away));
    document.shapes()->UpdateAssemblies();
    auto const text = written(document);
    EXPECT_TRUE(lost().empty());
    EXPECT_EQ(step_count_kind(text, "DIMENSIONAL_SIZE"), 1);
    EXPECT_TRUE(differences(path("written.stp")).empty());
}

TEST_F(StepPmi, OfSeveralFilesGoesIntoOne)
{
    sdkDocument document;
    read_source(document);
    ASSERT_TRUE(read(source(), document));
    auto const text = written(document);
    EXPECT_TRUE(said().says("20 of 20 "));
    EXPECT_EQ(step_count_kind(text, "DIMENSIONAL_SIZE"), 2);
    auto const promised = promise();
    ASSERT_TRUE(promised.annotations);
    sdkDocument back;
    ASSERT_TRUE(read(path("written.stp"), back));
    std::vector<sdkFinding> findings;
    sdk_compare_annotations(document, back, promised, findings);
    EXPECT_TRUE(findings.empty());
}

TEST_F(StepPmi, BringsTheEditionOfItsSchema)
{
    auto text = kit_read_file(source());
    std::string const second = "AP242_MANAGED_MODEL_BASED_3D_ENGINEERING_MIM_LF { 1 0 10303 442 3 1 4 }";
    auto const begin = text.find('\'', text.find("FILE_SCHEMA")) + 1;
    text.replace(begin, text.find('\'', begin) - begin, second);
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("second.stp", text), document));
    EXPECT_TRUE(kit_contains(written(document), second));
}

TEST_F(StepPmi, HasItsTextsInTheCodePageOfTheFile)
{
    auto text = kit_read_file(source());
    std::string const name = "note Ø 10 µm";
    text.replace(text.find(name), name.size(), "note \xD8 10 \xB5m");
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("page.stp", text), document, {{"stepReadCodePage", "CP1252"}}));
    written(document);
    EXPECT_TRUE(differences(path("written.stp")).empty());
}

TEST_F(StepPmi, OfAFileThatNeverEndsEndsAllTheSame)
{
    // Each refers twice to the next.
    std::string entities = "#95000=FLATNESS_TOLERANCE('endless','',#95001,#95001);\n";
    for (int number = 95001; number < 95060; ++number) {
        auto const next = "#" + std::to_string(number + 1);
        entities += "#" + std::to_string(number) + "=GROUP_OF_TWO('',(" + next + "," + next + "));\n";
    }
    entities += "#95060=GROUP_OF_TWO('',(#95000,$));\n";
    auto text = kit_read_file(source());
    text.insert(text.find("#90001="), entities);
    sdkDocument document;
    ASSERT_TRUE(read(folder().write("endless.stp", text), document));
    EXPECT_EQ(sdk_annotations(document).front().annotations.size(), items_of_part + 1);
}
