#include <cstdlib>
#include <sys/wait.h>

#include "kit/kitTempFolder.h"
#include "vmr/vmrTableInstance.h"

#include <gtest/gtest.h>

namespace {

constexpr char const * manifest = R"({"interface": 1, "formats": [
  {"name": "TST", "resource_file": "tst.rsc", "resources": [
    {"name": "mkLevel", "type": "integer", "default": 3, "minimum": 1, "maximum": 9},
    {"name": "mkHeal", "type": "boolean", "default": true}]},
  {"name": "Odd One", "resource_file": "odd.rsc", "resources": [{"name": "mkOdd", "type": "colour"}]},
  {"name": "Bare", "resource_file": "bare.rsc"}]})";

class MakeRsc : public testing::Test {
protected:
    int run(std::string const & format)
    {
        m_manifest = m_directory.write("manifest.json", m_text);
        auto const command = std::string(VMR_MAKE_RSC) + " '" + m_manifest + "' '" + format + "' '" +
                             (m_directory / "out/sub") + "' 2>'" + (m_directory / "errors") + "'";
        auto const status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    kitTempFolder m_directory;
    std::string m_text = manifest;
    std::string m_manifest;
};

} // namespace

TEST_F(MakeRsc, WritesTheDefaultsOfAFormat)
{
    EXPECT_EQ(run("TST"), 0);
    EXPECT_EQ(m_directory.read("errors"), "");
    vmrTableInstance const table((m_directory / "out/sub/tst.rsc").c_str());
    EXPECT_TRUE(table.problems().empty());
    EXPECT_EQ(table.default_table()->count(), 2);
    EXPECT_EQ(table.default_table()->value("mkLevel"), utString("3"));
    EXPECT_EQ(table.default_table()->value("mkHeal"), utString("true"));
}

TEST_F(MakeRsc, WritesAFileForAFormatWithoutResources)
{
    EXPECT_EQ(run("Bare"), 0);
    EXPECT_TRUE(m_directory.exists("out/sub/bare.rsc"));
}

TEST_F(MakeRsc, StopsTheBuildAtABadDeclaration)
{
    EXPECT_EQ(run("Odd One"), 1);
    EXPECT_EQ(m_directory.read("errors"),
              "vmr-make-rsc: " + m_manifest +
                  ": the resource \"mkOdd\" needs a type: boolean, integer, real, text or choice\n");
    EXPECT_FALSE(m_directory.exists("out/sub/odd.rsc"));
}

TEST_F(MakeRsc, StopsTheBuildWhenTheFormatIsMissing)
{
    EXPECT_EQ(run("XYZ"), 1);
    EXPECT_EQ(m_directory.read("errors"), "vmr-make-rsc: " + m_manifest + ": there is no format \"XYZ\"\n");
}

TEST_F(MakeRsc, StopsTheBuildWhenTheManifestIsBroken)
{
    m_text = "{";
    EXPECT_EQ(run("TST"), 1);
    EXPECT_NE(m_directory.read("errors").find("parse error"), std::string::npos);
}
