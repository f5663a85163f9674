#include "stepTextTest.h"

#include <STEPCAFControl_Writer.hxx>

#include <algorithm>
#include <filesystem>

// The assembly of the tests with its two parts in files of their own, as the toolkit writes it.
class StepExternFiles : public stepTextTest {
protected:
    std::string assembly_in_files()
    {
        sdkDocument document;
        kit_add_assembly(document);
        for (auto const & part : document.parts()) {
            sdkDocument::set_name(part, sdkDocument::name(part) == kit_blue_name ? "Blue" : "Red");
        }
        auto const old = std::filesystem::current_path();
        std::filesystem::current_path(folder().path());
        STEPCAFControl_Writer writer;
        writer.Transfer(document.handle(), STEPControl_AsIs, "part_");
        writer.Write("assembly.stp");
        std::filesystem::current_path(old);
        return path("assembly.stp");
    }
};

TEST_F(StepExternFiles, AreReadBesideTheAssembly)
{
    sdkDocument document;
    ASSERT_TRUE(read(assembly_in_files(), document));
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6);
    EXPECT_TRUE(account().findings().empty());
    EXPECT_EQ(said().failed(), 0);
}

TEST_F(StepExternFiles, ThatAreAbsentAreEachALossWithThePart)
{
    auto const file = assembly_in_files();
    ASSERT_TRUE(std::filesystem::remove(path("part_Blue.stp")));
    sdkDocument document;
    ASSERT_TRUE(read(file, document));
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    ASSERT_EQ(account().findings().size(), 1U);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.weight, sdkWeight::loss);
    EXPECT_EQ(finding.kind, "missing-file");
    EXPECT_EQ(finding.part, "Blue");
    EXPECT_NE(finding.text.formatted().find("part_Blue.stp"), std::string::npos);
    EXPECT_EQ(said().failed(), 1);
    EXPECT_FALSE(said().says("an not read external file"));
}

TEST_F(StepExternFiles, ThatAreAllAbsentLeaveNothingToReadAndAreNamed)
{
    auto const file = assembly_in_files();
    std::filesystem::remove(path("part_Blue.stp"));
    std::filesystem::remove(path("part_Red.stp"));
    sdkDocument document;
    EXPECT_FALSE(read(file, document));
    EXPECT_EQ(account().findings().size(), 2U);
}
