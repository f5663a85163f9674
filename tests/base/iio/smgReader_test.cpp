#include "iio/smgReader.h"

#include <cstring>

#include <gtest/gtest.h>
#include <png.h>

#include "iio/iioPictureHead.h"
#include "kit/kitPictureHead.h"
#include "kit/kitScarceMemory.h"
#include "kit/kitTempFolder.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

/// A file written by another library than the one that reads it.
void write_png(std::string const & name, int width, int height, png_uint_32 format, Bytes const & pixels)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = format;
    ASSERT_NE(png_image_write_to_file(&image, name.c_str(), 0, pixels.data(), 0, nullptr), 0)
        << image.message;
}

class ImageReader : public testing::Test {
protected:
    int read(std::string const & name)
    {
        error.make_empty();
        return reader.read(apPathName::from_utf8(name), image, error);
    }

    kitTempFolder folder;
    smgReader reader;
    iioImage image;
    utString error;
};

} // namespace

TEST_F(ImageReader, ReadsAPngFileWithAlpha)
{
    Bytes const pixels = {255, 0, 0, 255, 0, 255, 0, 128, 0, 0, 255, 0, 1, 2, 3, 4};
    write_png(folder / "a.png", 2, 2, PNG_FORMAT_RGBA, pixels);
    ASSERT_EQ(read(folder / "a.png"), 1) << error.view();
    EXPECT_EQ(image.width, 2);
    EXPECT_EQ(image.height, 2);
    EXPECT_EQ(image.rgba, pixels);
}

TEST_F(ImageReader, TakesAPngFileWithoutAlphaForOpaque)
{
    write_png(folder / "a.png", 2, 1, PNG_FORMAT_RGB, {10, 20, 30, 40, 50, 60});
    ASSERT_EQ(read(folder / "a.png"), 1);
    EXPECT_EQ(image.rgba, (Bytes{10, 20, 30, 255, 40, 50, 60, 255}));
}

TEST_F(ImageReader, TurnsGreyIntoColours)
{
    write_png(folder / "a.png", 1, 1, PNG_FORMAT_GRAY, {77});
    ASSERT_EQ(read(folder / "a.png"), 1);
    EXPECT_EQ(image.rgba, (Bytes{77, 77, 77, 255}));
}

TEST_F(ImageReader, ReadsABmpFileFromItsTopRow)
{
    // blue, green, red; the lower row first
    std::string const rows("\x03\x02\x01\0\x06\x05\x04\0", 8);
    ASSERT_EQ(read(folder.write("a.bmp", kit_bmp_header(1, 2) + rows)), 1) << error.view();
    EXPECT_EQ(image.width, 1);
    EXPECT_EQ(image.height, 2);
    EXPECT_EQ(image.rgba, (Bytes{4, 5, 6, 255, 1, 2, 3, 255}));
}

TEST_F(ImageReader, GoesByTheContentAndNotByTheName)
{
    write_png(folder / "picture.bmp", 1, 1, PNG_FORMAT_RGB, {1, 2, 3});
    EXPECT_EQ(read(folder / "picture.bmp"), 1);
}

TEST_F(ImageReader, NamesAFileThatItCannotRead)
{
    image.width = 5;
    auto const missing = folder / "missing.png";
    EXPECT_EQ(read(missing), 0);
    EXPECT_NE(error.locate_substring(utString(missing)), -1);
    EXPECT_EQ(read(folder.path().string()), 0);
    EXPECT_EQ(read(folder.write("text.png", "no picture")), 0);
    EXPECT_EQ(read(folder.write("empty.png", "")), 0);
    EXPECT_EQ(image.width, 5);
    EXPECT_FALSE(error.empty());
}

TEST_F(ImageReader, RefusesDamagedFilesAtAnyLength)
{
    Bytes pixels(4 * 16 * 16);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<std::uint8_t>(i * 7);
    write_png(folder / "whole.png", 16, 16, PNG_FORMAT_RGBA, pixels);
    auto const whole = kit_read_file(folder / "whole.png");
    for (std::size_t length = 0; length < whole.size() - 12; length += 5)
        EXPECT_EQ(read(folder.write("cut.png", whole.substr(0, length))), 0) << length;
}

TEST_F(ImageReader, RefusesABmpFileThatIsCutOff)
{
    auto const whole = kit_bmp_header(2, 3) + std::string(24, '\7');
    // Two bytes that fill the last row are missing in the files of some programs.
    EXPECT_EQ(read(folder.write("whole.bmp", whole.substr(0, whole.size() - 2))), 1) << error.view();
    for (std::size_t length = 0; length < whole.size() - 2; ++length)
        EXPECT_EQ(read(folder.write("cut.bmp", whole.substr(0, length))), 0) << length;
}

TEST_F(ImageReader, RefusesAPictureThatWouldFillTheMemory)
{
    for (auto const & file : {kit_bmp_header(60000, 60000), kit_bmp_header(8192, 4097),
                              kit_png_header(60000, 60000), kit_png_header(8192, 4097)}) {
        EXPECT_EQ(read(folder.write("huge", file)), 0);
        EXPECT_NE(error.locate_substring("too large"), -1) << error.view();
    }
}

TEST_F(ImageReader, HasNoPictureWhenThereIsNoMemoryForIt)
{
    Bytes const pixels(3 * 64 * 64, 77);
    write_png(folder / "a.png", 64, 64, PNG_FORMAT_RGB, pixels);
    folder.write("a.bmp", kit_bmp_header(64, 64) + std::string(pixels.begin(), pixels.end()));
    image.width = 5;
    for (std::string const name : {"a.png", "a.bmp"}) {
        {
            kitScarceMemory const scarce(4 * 64 * 64 - 1);
            EXPECT_EQ(read(folder / name), 0);
        }
        EXPECT_NE(error.locate_substring("not enough memory"), -1) << error.view();
        EXPECT_NE(error.locate_substring(utString(folder / name)), -1);
        EXPECT_EQ(image.width, 5);
        EXPECT_TRUE(image.rgba.empty());
    }
    EXPECT_EQ(read(folder / "a.bmp"), 1) << error.view();
}
