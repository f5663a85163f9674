#include "stlFormatTest.h"

#include "stl/stlBinaryParser.h"

TEST(StlForm, TakesABinaryFileWhoseHeaderSaysSolidForBinary)
{
    EXPECT_EQ(stl_form(stl_binary("solid cube", {stl_triangle})), stlForm::binary);
    EXPECT_EQ(stl_form(stl_binary("solid cube", {})), stlForm::binary);
    auto cut = stl_binary("solid cube", {stl_triangle, stl_triangle});
    cut.resize(150);
    EXPECT_EQ(stl_form(cut), stlForm::binary);
}

TEST(StlForm, TakesTextThatBeginsWithTheWordSolidInAnyCaseForText)
{
    for (auto const * content :
         {"solid\n", "  \r\n SOLID x\n", "\xEF\xBB\xBFsolid x\nendsolid", "Solid\tpart"}) {
        EXPECT_EQ(stl_form(content), stlForm::text) << content;
    }
}

TEST(StlForm, TakesOtherTextForNeither)
{
    EXPECT_EQ(stl_form("solids are heavy"), stlForm::neither);
    EXPECT_EQ(stl_form("ISO-10303-21;\n" + std::string(500, 'x')), stlForm::neither);
    EXPECT_EQ(stl_form(std::string(20, '\0')), stlForm::neither);
    EXPECT_EQ(stl_form(""), stlForm::neither);
}

TEST(StlForm, ComputesTheSizeOfTheLargestFileWithoutOverflow)
{
    EXPECT_EQ(stl_binary_size(0), 84U);
    EXPECT_EQ(stl_binary_size(0xFFFFFFFFU), 84U + 50U * 0xFFFFFFFFULL);
}

TEST(StlIsWhole, SeesTheEndOfEachForm)
{
    EXPECT_TRUE(stl_is_whole("solid a\nendsolid a\n"));
    EXPECT_TRUE(stl_is_whole("solid a\nendsolid a\nsolid b\nendsolid\n"));
    EXPECT_FALSE(stl_is_whole("solid a\nendsolid a"));
    EXPECT_FALSE(stl_is_whole("solid a\nendsolid a\nsolid b\n"));
    EXPECT_FALSE(stl_is_whole(""));
    std::string binary(84, '\0');
    binary[80] = 1;
    EXPECT_FALSE(stl_is_whole(binary));
    EXPECT_TRUE(stl_is_whole(binary + std::string(50, '\0')));
    EXPECT_FALSE(stl_is_whole(binary + std::string(51, '\0')));
}
