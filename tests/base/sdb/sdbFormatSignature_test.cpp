#include "sdb/sdbFormatSignature.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "kit/kitTempFolder.h"

namespace {

sdbFileHead head(std::string const & bytes)
{
    return {bytes, bytes.size()};
}

bool fits(sdbFormatSignature const & signature, std::string const & bytes)
{
    return sdb_signature_fits(signature, head(bytes));
}

sdbFormatSignature const step = sdbTextSignature{"ISO-10303-21;", 4096};
sdbFormatSignature const iges = sdbColumnSignature{73, "S"};
sdbFormatSignature const binary_stl = sdbCountedSignature{84, 80, 50};
sdbFormatSignature const text_stl = sdbWordsSignature{"solid", "facet"};

std::string stl_of(unsigned triangles, unsigned announced)
{
    std::string bytes(84 + 50 * triangles, '\0');
    for (int i = 0; i < 4; ++i)
        bytes[80 + static_cast<std::size_t>(i)] = static_cast<char>(announced >> 8 * i & 0xff);
    return bytes;
}

} // namespace

TEST(TextSignature, FitsAtTheStart)
{
    EXPECT_TRUE(fits(step, "ISO-10303-21;\nHEADER;"));
}

TEST(TextSignature, FitsBehindBlanksAndComments)
{
    EXPECT_TRUE(fits(step, " \r\n\t/* made by hand */\n/**//* * / */ISO-10303-21;"));
}

TEST(TextSignature, DoesNotFitBehindOtherText)
{
    EXPECT_FALSE(fits(step, "x ISO-10303-21;"));
    EXPECT_FALSE(fits(step, "// c\nISO-10303-21;"));
    EXPECT_FALSE(fits(step, "iso-10303-21;"));
    EXPECT_FALSE(fits(step, ""));
}

TEST(TextSignature, DoesNotFitInsideAComment)
{
    EXPECT_FALSE(fits(step, "/* ISO-10303-21;"));
    EXPECT_FALSE(fits(step, "/*/ISO-10303-21;"));
    EXPECT_FALSE(fits(step, "/* ISO-10303-21; */ DATA;"));
}

TEST(TextSignature, LooksAsFarAsItSays)
{
    sdbFormatSignature const near_start = sdbTextSignature{"AB", 4};
    EXPECT_TRUE(fits(near_start, "   AB"));
    EXPECT_FALSE(fits(near_start, "    AB"));
}

TEST(ColumnSignature, FitsAtItsColumnOfTheFirstLineOnly)
{
    std::string const blanks(72, ' ');
    EXPECT_TRUE(fits(iges, blanks + "S      1\n"));
    EXPECT_TRUE(fits(iges, blanks + "S"));
    EXPECT_FALSE(fits(iges, blanks + "G      1\n"));
    EXPECT_FALSE(fits(iges, blanks + " S     1\n"));
    EXPECT_FALSE(fits(iges, "\n" + blanks + "S      1\n"));
    EXPECT_FALSE(fits(iges, "short\r\n" + blanks + "S"));
    EXPECT_FALSE(fits(iges, ""));
}

TEST(CountedSignature, FitsWhenTheSizeIsWhatTheCountSays)
{
    EXPECT_TRUE(fits(binary_stl, stl_of(0, 0)));
    EXPECT_TRUE(fits(binary_stl, stl_of(12, 12)));
    EXPECT_FALSE(fits(binary_stl, stl_of(12, 13)));
    EXPECT_FALSE(fits(binary_stl, stl_of(12, 12) + "x"));
    EXPECT_FALSE(fits(binary_stl, stl_of(1, 0xffffffffu)));
}

TEST(CountedSignature, DoesNotFitAFileShorterThanItsHeader)
{
    EXPECT_FALSE(fits(binary_stl, std::string(83, '\0')));
    EXPECT_FALSE(fits(binary_stl, ""));
}

TEST(CountedSignature, CountsFilesBeyondFourGigabytes)
{
    auto large = head(stl_of(0, 100'000'000));
    large.size = 84 + 100'000'000ull * 50;
    EXPECT_TRUE(sdb_signature_fits(binary_stl, large));
}

TEST(WordsSignature, FitsTwoWordsInAnyCase)
{
    EXPECT_TRUE(fits(text_stl, "solid part\n facet normal 0 0 1"));
    EXPECT_TRUE(fits(text_stl, "\n SOLID\nFacet"));
    EXPECT_FALSE(fits(text_stl, "solid part\nendsolid"));
    EXPECT_FALSE(fits(text_stl, "solidus facet"));
    EXPECT_FALSE(fits(text_stl, "a solid facet"));
    EXPECT_FALSE(fits(text_stl, "solid facets"));
    EXPECT_FALSE(fits(text_stl, "solid"));
}

TEST(WordsSignature, LooksNoFurtherThanItsReach)
{
    EXPECT_TRUE(fits(text_stl, "solid" + std::string(4000, ' ') + "facet"));
    EXPECT_FALSE(fits(text_stl, "solid" + std::string(4096, ' ') + "facet"));
}

TEST(FileHead, HoldsTheStartAndTheSizeOfAFile)
{
    kitTempFolder const temp;
    auto const large = sdbFileHead::read(temp.write("large", std::string(100'000, 'x')));
    ASSERT_TRUE(large);
    EXPECT_EQ(large->size, 100'000u);
    EXPECT_GE(large->bytes.size(), sdb_signature_reach);
    EXPECT_LT(large->bytes.size(), 100'000u);
    auto const small = sdbFileHead::read(temp.write("small", "ab"));
    ASSERT_TRUE(small);
    EXPECT_EQ(small->bytes, "ab");
}

TEST(FileHead, IsNotReadFromWhatIsNoFile)
{
    kitTempFolder const temp;
    EXPECT_FALSE(sdbFileHead::read(temp.path().string()));
    EXPECT_FALSE(sdbFileHead::read(temp / "absent"));
    EXPECT_FALSE(sdbFileHead::read(""));
    ASSERT_EQ(::mkfifo((temp / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(sdbFileHead::read(temp / "pipe"));
}
