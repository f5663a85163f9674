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

TEST_F(StepExternFiles, ThatAreThereAndCannotBeReadAreEachALoss)
{
    auto const file = assembly_in_files();
    for (bool const folder_instead : {false, true}) {
        folder().write("part_Blue.stp", "nothing of the kind");
        if (folder_instead) {
            std::filesystem::remove(path("part_Blue.stp"));
            std::filesystem::create_directory(path("part_Blue.stp"));
        }
        sdkDocument document;
        ASSERT_TRUE(read(file, document));
        EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
        ASSERT_EQ(account().findings().size(), 1U);
        EXPECT_EQ(account().findings().back().kind, "missing-file");
        EXPECT_EQ(account().findings().back().part, "Blue");
    }
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

TEST_F(StepExternFiles, CountWhatIsLostInThem)
{
    auto const file = assembly_in_files();
    auto part = kit_read_file(path("part_Blue.stp"));
    auto const solid = part.find("MANIFOLD_SOLID_BREP");
    ASSERT_NE(solid, std::string::npos);
    auto const item =
        part.substr(part.rfind('#', solid), part.find(' ', part.rfind('#', solid)) - part.rfind('#', solid));
    part.insert(part.rfind("ENDSEC;"),
                "#9001=HALF_SPACE_SOLID('',#9002,.T.);\n#9002=PLANE('',#9003);\n"
                "#9003=AXIS2_PLACEMENT_3D('',#9004,$,$);\n#9004=CARTESIAN_POINT('',(0.,0.,0.));\n");
    auto const items = part.find("," + item + ")");
    ASSERT_NE(items, std::string::npos);
    part.insert(items, ",#9001");
    folder().write("part_Blue.stp", part);
    sdkDocument document;
    ASSERT_TRUE(read(file, document));
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6);
    ASSERT_EQ(account().findings().size(), 1U);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.place, "#9001");
    EXPECT_NE(finding.text.formatted().find("part_Blue.stp"), std::string::npos);
}
