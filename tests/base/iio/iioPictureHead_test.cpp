#include "iio/iioPictureHead.h"

#include <gtest/gtest.h>

#include "kit/kitPictureHead.h"

namespace {

std::string objection(std::string const & file)
{
    char const * const text = iio_objection(file);
    return text ? text : "";
}

std::string const too_large = "the picture is too large";
std::string const cut_off = "the picture is damaged (cut off)";

} // namespace

TEST(PictureHead, MayClaimTheMostPixelsAndNotOneRowMore)
{
    EXPECT_EQ(iio_most_pixels, 33'554'432u);
    EXPECT_EQ(objection(kit_png_header(8192, 4096)), "");
    EXPECT_EQ(objection(kit_png_header(8192, 4097)), too_large);
    EXPECT_EQ(objection(kit_png_header(1, 33'554'433)), too_large);
    EXPECT_EQ(objection(kit_png_header(0xFFFFFFFF, 0xFFFFFFFF)), too_large);
    // The head is all there is of these.
    EXPECT_EQ(objection(kit_bmp_header(8192, 4096)), cut_off);
    EXPECT_EQ(objection(kit_bmp_header(8192, -4096)), cut_off);
    EXPECT_EQ(objection(kit_bmp_header(8192, 4097)), too_large);
    EXPECT_EQ(objection(kit_bmp_header(8192, -4097)), too_large);
    EXPECT_EQ(objection(kit_bmp_header(1, -0x7FFFFFFF - 1)), too_large);
}

TEST(PictureHead, OfABmpFileSaysHowLongItIs)
{
    // Three pixels of three bytes, filled up to twelve.
    auto const rows = [](std::size_t length) { return kit_bmp_header(3, 2) + std::string(length, 'x'); };
    EXPECT_EQ(objection(rows(24)), "");
    EXPECT_EQ(objection(rows(21)), "") << "the last row is not filled up";
    EXPECT_EQ(objection(rows(20)), cut_off);
    auto compressed = rows(1);
    compressed[30] = 1;
    EXPECT_EQ(objection(compressed), "") << "its rows have any length";
    auto with_short_header = rows(0).substr(0, 14) + std::string("\x0c\0\0\0\x02\0\x01\0\x01\0\x18\0", 12);
    with_short_header[10] = 26;
    EXPECT_EQ(objection(with_short_header + "123456"), "");
    EXPECT_EQ(objection(with_short_header + "12345"), cut_off);
}

TEST(PictureHead, SaysNothingOfOtherFiles)
{
    for (std::string const file : {"", "BM", "\x89PNG\r\n\x1a\n", "GIF89a and more than twenty-six bytes"})
        EXPECT_EQ(objection(file), "");
    EXPECT_EQ(objection(std::string(26, '\xff')), "");
}
