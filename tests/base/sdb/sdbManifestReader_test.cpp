#include "sdb/sdbManifestReader.h"

#include <gtest/gtest.h>

#include "TranslatorFolder.h"

using json = nlohmann::json;

namespace {

json step_manifest()
{
    auto step = format_value("STEP", {"stp", "step"});
    step["signatures"] = {{{"kind", "text"}, {"text", "ISO-10303-21;"}, {"within", 4096}},
                          {{"kind", "column"}, {"column", 73}, {"text", "S"}},
                          {{"kind", "counted"}, {"header", 84}, {"count_offset", 80}, {"record", 50}},
                          {{"kind", "words"}, {"first", "solid"}, {"then", "facet"}}};
    step["default_output"] = "IGES";
    step["resources"] = {{{"name", "stepReadHealing"}, {"type", "boolean"}, {"default", true}},
                         {{"name", "stepWriteSchema"},
                          {"type", "choice"},
                          {"values", {"AP203", "AP214"}},
                          {"default", "AP214"}}};
    return manifest_value({step});
}

std::string problem_of(json const & manifest)
{
    sdbManifestReader reader("/modules/step.json");
    EXPECT_FALSE(reader.read(manifest)) << manifest;
    EXPECT_TRUE(reader.formats().empty());
    return reader.problem();
}

/// A manifest of which the field at a place has another value.
json altered(char const * place, json const & value)
{
    auto manifest = step_manifest();
    manifest[json::json_pointer(place)] = value;
    return manifest;
}

json without(char const * parent, char const * field)
{
    auto manifest = step_manifest();
    manifest[json::json_pointer(parent)].erase(field);
    return manifest;
}

} // namespace

TEST(ManifestReader, ReadsEveryFieldOfAFormat)
{
    sdbManifestReader reader("step.json");
    ASSERT_TRUE(reader.read(step_manifest())) << reader.problem();
    ASSERT_EQ(reader.formats().size(), 1u);
    auto const & step = reader.formats().front();
    EXPECT_EQ(step.name, "STEP");
    EXPECT_EQ(step.filter, "format.filter::STEP Files");
    EXPECT_EQ(step.category, "Boundary representation");
    EXPECT_EQ(step.extensions, (std::vector<std::string>{"stp", "step"}));
    EXPECT_TRUE(step.input);
    EXPECT_TRUE(step.output);
    EXPECT_FALSE(step.viewer);
    EXPECT_EQ(step.default_output, "IGES");
    EXPECT_EQ(step.resource_file, "STEP.rsc");
    ASSERT_EQ(step.signatures.size(), 4u);
    EXPECT_EQ(std::get<sdbTextSignature>(step.signatures[0]).text, "ISO-10303-21;");
    EXPECT_EQ(std::get<sdbColumnSignature>(step.signatures[1]).column, 73u);
    EXPECT_EQ(std::get<sdbCountedSignature>(step.signatures[2]).record, 50u);
    EXPECT_EQ(std::get<sdbWordsSignature>(step.signatures[3]).then, "facet");
    ASSERT_EQ(step.resources.size(), 2u);
    EXPECT_EQ(step.resources[0].name, "stepReadHealing");
    EXPECT_EQ(step.resources[0].default_value, "true");
    EXPECT_EQ(step.resources[1].choices, (std::vector<std::string>{"AP203", "AP214"}));
}

TEST(ManifestReader, TakesAFormatWithoutTheFieldsThatMayBeAbsent)
{
    auto manifest = step_manifest();
    for (auto const * const field : {"signatures", "viewer", "default_output"})
        manifest["formats"][0].erase(field);
    sdbManifestReader reader("step.json");
    ASSERT_TRUE(reader.read(manifest)) << reader.problem();
    auto const & step = reader.formats().front();
    EXPECT_TRUE(step.signatures.empty());
    EXPECT_FALSE(step.viewer);
    EXPECT_TRUE(step.default_output.empty());
}

TEST(ManifestReader, PassesOverFieldsThatItDoesNotKnow)
{
    sdbManifestReader reader("step.json");
    EXPECT_TRUE(reader.read(altered("/formats/0/author", "somebody"))) << reader.problem();
}

TEST(ManifestReader, NamesTheManifestAndTheMissingField)
{
    for (auto const * const field :
         {"name", "filter", "category", "extensions", "sides", "resource_file", "resources"})
        EXPECT_EQ(problem_of(without("/formats/0", field)),
                  std::string("/modules/step.json: formats[0].") + field + " is missing");
    EXPECT_EQ(problem_of(without("", "formats")), "/modules/step.json: formats is missing");
    EXPECT_EQ(problem_of(without("", "interface")), "/modules/step.json: interface is missing");
    EXPECT_EQ(problem_of(without("/formats/0/signatures/0", "within")),
              "/modules/step.json: formats[0].signatures[0].within is missing");
    EXPECT_EQ(problem_of(without("/formats/0/signatures/3", "then")),
              "/modules/step.json: formats[0].signatures[3].then is missing");
}

TEST(ManifestReader, RefusesAnotherVersionOfTheInterfaceBeforeAnythingElse)
{
    EXPECT_EQ(problem_of(json{{"interface", 2}}), "/modules/step.json: the module has version 2 of the "
                                                  "module interface, and this program needs version 1");
}

TEST(ManifestReader, RefusesWrongTypes)
{
    struct Case {
        char const * place;
        json value;
        std::string problem;
    };
    for (auto const & [place, value, problem] : std::vector<Case>{
             {"/interface", "1", "interface must be a whole number and not negative"},
             {"/formats", json::object(), "formats must be an array"},
             {"/formats/0", 7, "formats[0] must be an object"},
             {"/formats/0/name", 7, "formats[0].name must be a text"},
             {"/formats/0/filter", nullptr, "formats[0].filter must be a text"},
             {"/formats/0/category", 1, "formats[0].category must be a text"},
             {"/formats/0/extensions", "stp", "formats[0].extensions must be an array"},
             {"/formats/0/extensions/1", 5, "formats[0].extensions[1] must be a text"},
             {"/formats/0/viewer", "false", "formats[0].viewer must be true or false"},
             {"/formats/0/sides", "input", "formats[0].sides must be an array"},
             {"/formats/0/default_output", false, "formats[0].default_output must be a text"},
             {"/formats/0/signatures", json::object(), "formats[0].signatures must be an array"},
             {"/formats/0/signatures/0", "ISO", "formats[0].signatures[0] must be an object"},
             {"/formats/0/signatures/0/within", -1,
              "formats[0].signatures[0].within must be a whole number and not negative"},
             {"/formats/0/signatures/1/column", 73.5,
              "formats[0].signatures[1].column must be a whole number and not negative"},
             {"/formats/0/resources", json::object(), "formats[0].resources must be an array"},
         })
        EXPECT_EQ(problem_of(altered(place, value)), "/modules/step.json: " + problem);
}

TEST(ManifestReader, RefusesValuesThatMeanNothing)
{
    struct Case {
        char const * place;
        json value;
        std::string problem;
    };
    for (auto const & [place, value, problem] : std::vector<Case>{
             {"/formats", json::array(), "formats must hold a format"},
             {"/formats/0/name", "", "formats[0].name must not be empty"},
             {"/formats/0/filter", "STEP|*.stp", "formats[0].filter must not hold a bar"},
             {"/formats/0/extensions/0", ".stp", "formats[0].extensions[0] must be an extension without dot"},
             {"/formats/0/extensions/0", "", "formats[0].extensions[0] must not be empty"},
             {"/formats/0/sides", json::array(), "formats[0].sides must name a side"},
             {"/formats/0/sides/1", "both", "formats[0].sides[1] must be \"input\" or \"output\""},
             {"/formats/0/resource_file", "../x.rsc",
              "formats[0].resource_file must be a file name without directory"},
             {"/formats/0/signatures/0/kind", "magic",
              "formats[0].signatures[0].kind \"magic\" is none of text, column, counted and words"},
             {"/formats/0/signatures/0/within", 4097,
              "formats[0].signatures[0].within must lie between 1 and 4096"},
             {"/formats/0/signatures/1/column", 0,
              "formats[0].signatures[1].column must lie between 1 and 4096"},
             {"/formats/0/signatures/2/count_offset", 81,
              "formats[0].signatures[2].count_offset must lie between 0 and 80"},
             {"/formats/0/signatures/2/header", 3,
              "formats[0].signatures[2].header must lie between 4 and 4096"},
         })
        EXPECT_EQ(problem_of(altered(place, value)), "/modules/step.json: " + problem);
}

TEST(ManifestReader, RefusesAResourceThatCannotBeUsedAndNamesIt)
{
    auto const problem = problem_of(altered("/formats/0/resources/1/default", "AP999"));
    EXPECT_TRUE(problem.starts_with("/modules/step.json: formats[0].resources[1] cannot be used: "))
        << problem;
    EXPECT_NE(problem.find("stepWriteSchema"), std::string::npos) << problem;
}

TEST(ManifestReader, RefusesTwoFormatsOfOneName)
{
    auto const step = format_value("STEP", {"stp"});
    EXPECT_EQ(problem_of(manifest_value({step, format_value("IGES", {}), step})),
              "/modules/step.json: formats[2].name \"STEP\" is declared twice");
}

TEST(ManifestReader, RefusesWhatIsNoObject)
{
    EXPECT_EQ(problem_of(json::array()), "/modules/step.json: the manifest must be an object");
    EXPECT_EQ(problem_of(nullptr), "/modules/step.json: the manifest must be an object");
}
