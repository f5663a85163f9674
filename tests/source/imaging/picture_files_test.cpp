// Pictures come from outside, whole and damaged ones.

#include "kitDib.h"

#include "iio/iioPictureHead.h"
#include "kit/kitAppTest.h"
#include "kit/kitScarceMemory.h"
#include "kitPicture.h"

#include <fstream>
#include <wx/log.h>

namespace {

/// The largest resident set of this process so far, in MB.
long peak_memory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return std::stol(line.substr(6)) / 1024;
    ADD_FAILURE() << "no VmHWM";
    return 0;
}

/// What the toolkit would have shown.
class Messages : public wxLog {
public:
    Messages() : m_before(wxLog::SetActiveTarget(this)) {}
    ~Messages() override { wxLog::SetActiveTarget(m_before); }

    int count() const { return m_count; }

private:
    void DoLogRecord(wxLogLevel, wxString const &, wxLogRecordInfo const &) override { ++m_count; }

    wxLog * m_before;
    int m_count = 0;
};

class PictureFiles : public kitAppTest {
protected:
    /// Loads a file that is no picture: the buffer stays, and nothing is said.
    void expect_refused(std::string const & path)
    {
        kitDib dib(2, 1);
        dib.fill(sglCOLORREF(0x12345678));
        Messages const messages;
        EXPECT_EQ(dib.load_bitmap_from_file(utString(path)), 0) << path;
        EXPECT_EQ(dib.load_bitmap_transparent_from_file(utString(path), sglCOLORREF(0x00FF00FF)), 0) << path;
        EXPECT_EQ(dib.read_png(path.c_str()), 0) << path;
        EXPECT_EQ(kit_pixels(dib), kitPixels(2, sglCOLORREF(0x12345678))) << path;
        EXPECT_EQ(messages.count(), 0) << path;
    }
    std::string png(int width, int height, kitPixels const & from_the_top, bool alpha = true)
    {
        return kit_png(width, height, from_the_top, alpha);
    }
};

constexpr sglCOLORREF a(0x80102030);
constexpr sglCOLORREF b(0x00405060);
constexpr sglCOLORREF c(0xFF708090);
constexpr sglCOLORREF d(0x01A0B0C0);

} // namespace

TEST_F(PictureFiles, AreReadWithTheirAlphaAndTheTopRowLast)
{
    auto const file = folder().write("picture.png", png(2, 2, {a, b, c, d}));
    kitDib dib;
    ASSERT_EQ(dib.load_bitmap_from_file(utString(file)), 1);
    EXPECT_EQ(dib.width(), 2);
    EXPECT_EQ(dib.height(), 2);
    EXPECT_EQ(kit_pixels(dib), (kitPixels{c, d, a, b}));
}

TEST_F(PictureFiles, WithoutAlphaAreOpaque)
{
    auto const file = folder().write("picture.png", png(2, 1, {a, b}, false));
    kitDib dib;
    ASSERT_EQ(dib.load_bitmap_from_file(utString(file)), 1);
    EXPECT_EQ(kit_pixels(dib), (kitPixels{sglCOLORREF(0xFF102030), sglCOLORREF(0xFF405060)}));
}

TEST_F(PictureFiles, AreTakenByTheirContentWhateverTheirName)
{
    kitDib dib;
    for (auto const * const name : {"picture.txt", "picture", "b\xC3\xA4r.png", "b\xE4r.png"})
        EXPECT_EQ(dib.load_bitmap_from_file(utString(folder().write(name, png(1, 1, {a})))), 1) << name;
    EXPECT_EQ(dib.load_bitmap_from_file(utString(folder().write("picture.png", kit_bmp(1, 1, {a})))), 1);
    EXPECT_EQ(dib.at(0, 0), sglCOLORREF(0xFF102030));
}

TEST_F(PictureFiles, ReplaceWhatTheBufferHeld)
{
    kitDib dib(5, 7);
    ASSERT_EQ(dib.load_bitmap_from_file(utString(folder().write("picture.png", png(3, 1, {a, b, c})))), 1);
    EXPECT_EQ(dib.width(), 3);
    EXPECT_EQ(dib.height(), 1);
}

TEST_F(PictureFiles, OfThePngKindAreReadWithoutResizing)
{
    auto const file = folder().write("picture.png", png(2, 1, {a, b}));
    kitDib dib(2, 1);
    EXPECT_EQ(dib.read_png(file.c_str()), 1);
    EXPECT_EQ(kit_pixels(dib), (kitPixels{a, b}));
    kitDib other(1, 2);
    EXPECT_EQ(other.read_png(file.c_str()), 0);
    EXPECT_EQ(kit_pixels(other), kitPixels(2, sglCOLORREF(0)));
    EXPECT_EQ(dib.read_png(folder().write("picture.bmp", kit_bmp(2, 1, {a, b})).c_str()), 0);
    EXPECT_EQ(dib.read_png(nullptr), 0);
}

TEST_F(PictureFiles, ThatAreNoneAreRefused)
{
    expect_refused(folder() / "missing.png");
    expect_refused(folder().path().string());
    expect_refused(folder().write("empty.png", ""));
    expect_refused(folder().write("text.png", "This is a text and not a picture.\n"));
    expect_refused(folder().write("start.png", "\x89PNG\r\n\x1a\n"));
    expect_refused(folder().write("bm.bmp", "BM"));
    expect_refused("");
    expect_refused("/dev/zero");
}

TEST_F(PictureFiles, CutShortAreRefused)
{
    kitNoise noise;
    kitPixels pixels;
    for (int i = 0; i < 64 * 64; ++i)
        pixels.push_back(noise.colour(noise.byte()));
    auto const whole = png(64, 64, pixels);
    for (std::size_t length = 8; length < whole.size() - 4096; length += 1021)
        expect_refused(folder().write("cut.png", whole.substr(0, length)));
    auto damaged = whole;
    for (std::size_t i = 100; i < 200; ++i)
        damaged[i] = static_cast<char>(~damaged[i]);
    expect_refused(folder().write("damaged.png", damaged));
    auto const bmp = kit_bmp(5, 3, pixels);
    for (std::size_t length = 0; length < bmp.size() - 1; ++length)
        expect_refused(folder().write("cut.bmp", bmp.substr(0, length)));
    auto const palette = kit_bmp_header(3, 2, 8) + std::string(8, 'x');
    for (std::size_t length = 0; length < palette.size() - 1; ++length)
        expect_refused(folder().write("palette.bmp", palette.substr(0, length)));
}

TEST_F(PictureFiles, ThatClaimToBeEnormousTakeNoMemory)
{
    auto const before = peak_memory();
    expect_refused(folder().write("huge.png", kit_png_header(100000, 100000)));
    expect_refused(folder().write("wide.png", kit_png_header(0x7FFFFFFF, 0x7FFFFFFF)));
    expect_refused(folder().write("all.png", kit_png_header(0xFFFFFFFF, 0xFFFFFFFF)));
    expect_refused(folder().write("high.png", kit_png_header(1, 0x7FFFFFFF)));
    for (auto const & [width, height] :
         {std::pair(100000, 100000), {60000, 60000}, {60000, -60000}, {1, 0x7FFFFFFF}, {1, -0x7FFFFFFF - 1}})
        expect_refused(folder().write("huge.bmp", kit_bmp_header(width, height)));
    EXPECT_LT(peak_memory() - before, 100);
}

TEST_F(PictureFiles, JustOverTheLimitAreRefused)
{
    constexpr int width = 8192, height = 4097;
    static_assert(std::uint64_t(width) * (height - 1) == iio_most_pixels);
    // Of one bit a pixel, so that it is not the length of the file.
    std::string const row(width / 8, '\xff');
    kitDib dib;
    ASSERT_EQ(
        dib.load_bitmap_from_file(utString(folder().write("small.bmp", kit_bmp_header(width, 1, 1) + row))),
        1);
    EXPECT_EQ(kit_pixels(dib), kitPixels(width, sglCOLORREF(0xFFFFFFFF)));
    std::string bmp = kit_bmp_header(width, height, 1);
    for (int y = 0; y < height; ++y)
        bmp += row;
    expect_refused(folder().write("over.bmp", bmp));

    ASSERT_EQ(dib.load_bitmap_from_file(utString(folder().write("small.png", kit_grey_png(width, 1)))), 1);
    EXPECT_EQ(kit_pixels(dib), kitPixels(width, sglCOLORREF(0xFF000000)));
    expect_refused(folder().write("over.png", kit_grey_png(width, height)));
}

TEST_F(PictureFiles, AreRefusedWhenThereIsNoMemoryForThem)
{
    kitPixels const pixels(64 * 64, a);
    for (auto const & file :
         {folder().write("a.png", png(64, 64, pixels)), folder().write("a.bmp", kit_bmp(64, 64, pixels))}) {
        kitDib dib;
        {
            kitScarceMemory const scarce(100);
            EXPECT_EQ(dib.load_bitmap_from_file(utString(file)), 0) << file;
        }
        EXPECT_EQ(dib.pixels(), nullptr);
        EXPECT_EQ(dib.load_bitmap_from_file(utString(file)), 1) << file;
    }
}

TEST_F(PictureFiles, OfTheBmpKindAreReadWithAPalette)
{
    kitDib dib;
    // Two rows of three pixels, the lower one first, each filled up to four bytes.
    for (auto const & [bits, rows] : {std::pair(1U, std::string("\xa0\0\0\0\x40\0\0\0", 8)),
                                      {4U, std::string("\xf0\xf0\0\0\x0f\0\0\0", 8)},
                                      {8U, std::string("\xff\0\xff\0\0\xff\0\0", 8)}}) {
        auto const file = folder().write("palette.bmp", kit_bmp_header(3, 2, bits) + rows);
        ASSERT_EQ(dib.load_bitmap_from_file(utString(file)), 1) << bits;
        sglCOLORREF const white(0xFFFFFFFF), black(0xFF000000);
        EXPECT_EQ(kit_pixels(dib), (kitPixels{white, black, white, black, white, black})) << bits;
    }
}

TEST_F(PictureFiles, OfTheBmpKindAreReadFromRunsOfEqualPixels)
{
    // Three white ones, end of row, one black and two as they stand, end of picture.
    std::string const runs("\3\xff\0\0\1\0\2\x80\0\1", 10);
    kitDib dib;
    auto const whole = kit_bmp_header(3, 2, 8, 1) + runs;
    ASSERT_EQ(dib.load_bitmap_from_file(utString(folder().write("runs.bmp", whole))), 1);
    sglCOLORREF const white(0xFFFFFFFF), black(0xFF000000), grey(0xFF808080);
    EXPECT_EQ(kit_pixels(dib), (kitPixels{white, white, white, black, grey, grey}));
    // Runs that go over the end of the picture do not go over that of its memory.
    auto const over = kit_bmp_header(3, 2, 8, 1) + std::string("\xff\xff\xff\xff\xff\xff\0\1", 8);
    Messages const messages;
    kitDib other;
    other.load_bitmap_from_file(utString(folder().write("over.bmp", over)));
    EXPECT_EQ(messages.count(), 0);
}
