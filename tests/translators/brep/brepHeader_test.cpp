#include "brep/brepHeader.h"

#include <gtest/gtest.h>

#include <string>

TEST(BrepHeader, TellsFormAndVersion)
{
    auto const text = brep_header("\nCASCADE Topology V2, (c) Matra-Datavision\nLocations 0");
    EXPECT_EQ(text.form, brepForm::text);
    EXPECT_EQ(text.version, 2);
    auto const binary = brep_header("\nOpen CASCADE Topology V4, (c)\n");
    EXPECT_EQ(binary.form, brepForm::binary);
    EXPECT_EQ(binary.version, 4);
}

TEST(BrepHeader, PassesOverTheLineOfTheInteractiveProgram)
{
    auto const header = brep_header("DBRep_DrawableShape\n\nCASCADE Topology V1, (c) Matra-Datavision\n");
    EXPECT_EQ(header.form, brepForm::text);
    EXPECT_EQ(header.version, 1);
}

TEST(BrepHeader, KnowsVersionsThatAreTooNew)
{
    EXPECT_FALSE(brep_header("CASCADE Topology V3").too_new());
    EXPECT_TRUE(brep_header("CASCADE Topology V4").too_new());
    EXPECT_FALSE(brep_header("Open CASCADE Topology V4").too_new());
    EXPECT_TRUE(brep_header("Open CASCADE Topology V5").too_new());
}

TEST(BrepHeader, TakesNothingElse)
{
    for (auto const * content : {"", "\n", "CASCADE", "CASCADE Topology Vx", "CASCADE Topology V0",
                                 "DBRep_DrawableShape", "solid x", "Shape CASCADE Topology V1"}) {
        EXPECT_EQ(brep_header(content).form, brepForm::neither) << content;
    }
    EXPECT_EQ(brep_header(std::string(5000, ' ').append("CASCADE Topology V1")).form, brepForm::neither);
}

TEST(BrepIsWhole, SeesTheLineOfTheChiefShape)
{
    EXPECT_TRUE(brep_is_whole("\nCASCADE Topology V2, (c)\nTShapes 1\nCo\n1100000\n+2 0 *\n\n+1 0 \n"));
    EXPECT_TRUE(brep_is_whole("\nCASCADE Topology V3, (c)\n+2 0 +2 1 *\n\n-12 3"));
    EXPECT_FALSE(brep_is_whole("\nCASCADE Topology V3, (c)\n+2 0 +2 1 *\n"));
    EXPECT_FALSE(brep_is_whole("\nCASCADE Topology V3, (c)\n+2 0 +2 1 *\n\n+"));
    EXPECT_FALSE(brep_is_whole("\nCASCADE Topology V3, (c)\n+2 0 +2 1 *\n\n+1"));
    EXPECT_FALSE(brep_is_whole("\nCASCADE Topology V9, (c)\n+2 0 *\n\n+1 0"));
    EXPECT_FALSE(brep_is_whole("something else *\n\n+1 0"));
    EXPECT_FALSE(brep_is_whole(""));
}
