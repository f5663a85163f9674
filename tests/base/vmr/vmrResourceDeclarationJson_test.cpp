#include "vmr/vmrResourceDeclaration.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using json = nlohmann::json;

vmrResourceDeclaration read(char const * text)
{
    vmrResourceDeclaration declaration;
    std::string problem;
    EXPECT_TRUE(vmr_read_resource_declaration(json::parse(text), declaration, problem)) << problem;
    return declaration;
}

} // namespace

TEST(ResourceDeclarationJson, ReadsEachType)
{
    auto const choice =
        read(R"({"name": "a", "type": "choice", "values": ["AP203", "AP214"], "default": "AP214"})");
    EXPECT_EQ(choice.name, "a");
    EXPECT_EQ(choice.kind, vmrResourceKind::choice);
    EXPECT_EQ(choice.choices, (std::vector<std::string>{"AP203", "AP214"}));
    EXPECT_EQ(choice.default_value, "AP214");

    auto const real = read(R"({"name": "b", "type": "real", "minimum": 0, "maximum": 1, "default": 0.0001})");
    EXPECT_EQ(real.kind, vmrResourceKind::real);
    EXPECT_EQ(real.minimum, 0.0);
    EXPECT_EQ(real.maximum, 1.0);
    EXPECT_EQ(real.default_value, "0.0001");

    EXPECT_EQ(read(R"({"name": "c", "type": "boolean", "default": true})").default_value, "true");
    EXPECT_EQ(read(R"({"name": "d", "type": "boolean", "default": false})").default_value, "false");
    EXPECT_EQ(read(R"({"name": "e", "type": "integer", "default": -5})").default_value, "-5");
    EXPECT_EQ(read(R"({"name": "f", "type": "text", "default": "a b"})").default_value, "a b");
    EXPECT_EQ(read(R"({"name": "g", "type": "real", "default": 2})").default_value, "2");
}

TEST(ResourceDeclarationJson, ComesBackTheSameFromWhatItWrites)
{
    for (auto const text :
         {R"({"name": "a", "type": "choice", "values": ["x", "y"], "default": "y"})",
          R"({"name": "b", "type": "real", "minimum": 1e-7, "maximum": 1, "default": 0.25})",
          R"({"name": "c", "type": "integer", "minimum": -4, "default": 9007199254740993})",
          R"({"name": "d", "type": "text", "default": ""})",
          R"({"name": "e", "type": "boolean", "default": false})"}) {
        auto const declaration = read(text);
        auto const written = vmr_write_resource_declaration(declaration);
        EXPECT_EQ(written, json::parse(text));
        EXPECT_EQ(read(written.dump().c_str()), declaration);
    }
}

TEST(ResourceDeclarationJson, WritesAWholeBoundAsAnInteger)
{
    auto const written =
        vmr_write_resource_declaration(read(R"({"name": "a", "type": "real", "minimum": 0, "default": 1})"));
    EXPECT_EQ(written["minimum"].dump(), "0");
    EXPECT_EQ(written["default"].dump(), "1");
}

struct BadDeclaration {
    char const * text;
    char const * problem;
};

class BadResourceDeclarations : public testing::TestWithParam<BadDeclaration> {};

TEST_P(BadResourceDeclarations, AreRefusedWithTheReasonAndTheName)
{
    vmrResourceDeclaration declaration;
    declaration.name = "untouched";
    std::string problem;
    EXPECT_FALSE(vmr_read_resource_declaration(json::parse(GetParam().text), declaration, problem));
    EXPECT_EQ(problem, GetParam().problem);
    EXPECT_EQ(declaration.name, "untouched");
}

INSTANTIATE_TEST_SUITE_P(
    Manifest, BadResourceDeclarations,
    testing::Values(
        BadDeclaration{R"([1])", "a resource must be an object"},
        BadDeclaration{R"({"type": "text", "default": ""})", "a resource has no name"},
        BadDeclaration{R"({"name": "", "type": "text", "default": ""})", "a resource has no name"},
        BadDeclaration{R"({"name": 3, "type": "text", "default": ""})", "a resource has no name"},
        BadDeclaration{R"({"name": "a", "default": ""})",
                       "the resource \"a\" needs a type: boolean, integer, real, text or choice"},
        BadDeclaration{R"({"name": "a", "type": "colour", "default": ""})",
                       "the resource \"a\" needs a type: boolean, integer, real, text or choice"},
        BadDeclaration{R"({"name": "a", "type": 1, "default": ""})",
                       "the resource \"a\" needs a type: boolean, integer, real, text or choice"},
        BadDeclaration{R"({"name": "a", "type": "choice", "default": "x"})",
                       "the resource \"a\" needs its values, an array"},
        BadDeclaration{R"({"name": "a", "type": "choice", "values": [], "default": "x"})",
                       "the resource \"a\" needs its values, an array"},
        BadDeclaration{R"({"name": "a", "type": "choice", "values": ["x", 1], "default": "x"})",
                       "the resource \"a\" has a value that is no text"},
        BadDeclaration{R"({"name": "a", "type": "choice", "values": ["x", "x"], "default": "x"})",
                       "the resource \"a\" has the value \"x\" twice"},
        BadDeclaration{R"({"name": "a", "type": "choice", "values": ["x"], "default": "X"})",
                       "the resource \"a\" has a default that is not among its legal values"},
        BadDeclaration{R"({"name": "a", "type": "text", "values": ["x"], "default": "x"})",
                       "the resource \"a\" has values, which only a choice may have"},
        BadDeclaration{R"({"name": "a", "type": "text", "minimum": 1, "default": "x"})",
                       "the resource \"a\" has a minimum, which only numbers may have"},
        BadDeclaration{R"({"name": "a", "type": "real", "maximum": "1", "default": 1})",
                       "the resource \"a\" has a maximum that is no number"},
        BadDeclaration{R"({"name": "a", "type": "real", "minimum": 2, "maximum": 1, "default": 1})",
                       "the resource \"a\" has a minimum above its maximum"},
        BadDeclaration{R"({"name": "a", "type": "real", "minimum": 2, "default": 1})",
                       "the resource \"a\" has a default that is not among its legal values"},
        BadDeclaration{R"({"name": "a", "type": "real"})", "the resource \"a\" needs a default"},
        BadDeclaration{R"({"name": "a", "type": "real", "default": "1"})",
                       "the resource \"a\" has a default of another type"},
        BadDeclaration{R"({"name": "a", "type": "integer", "default": 1.5})",
                       "the resource \"a\" has a default of another type"},
        BadDeclaration{R"({"name": "a", "type": "integer", "default": 18446744073709551615})",
                       "the resource \"a\" has a default of another type"},
        BadDeclaration{R"({"name": "a", "type": "boolean", "default": "true"})",
                       "the resource \"a\" has a default of another type"},
        BadDeclaration{R"({"name": "a", "type": "text", "default": 1})",
                       "the resource \"a\" has a default of another type"},
        BadDeclaration{R"({"name": "a", "type": "choice", "values": ["x"], "default": 1})",
                       "the resource \"a\" has a default of another type"}));
