#include "sdk/sdkInputFile.h"

#include "kit/kitTempFolder.h"
#include "kitIndicator.h"

#include <gtest/gtest.h>

#include <istream>

namespace {

std::string failure_of(std::string const & path)
{
    sdkInputFile file;
    sdkText failure;
    EXPECT_FALSE(file.open(path, failure));
    EXPECT_TRUE(failure.fits());
    return failure.formatted();
}

std::string const large(3'000'000, 'x');

} // namespace

TEST(InputFile, GivesItsTextAndStreamsIt)
{
    kitTempFolder const folder;
    sdkInputFile file;
    sdkText failure;
    ASSERT_TRUE(file.open(folder.write("large", large), failure));
    EXPECT_EQ(file.text(), large);
    std::istream stream(&file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), large);
}

TEST(InputFile, StreamsAnotherEndInPlaceOfItsOwn)
{
    kitTempFolder const folder;
    for (std::size_t const kept : {std::size_t{0}, std::size_t{5}, std::size_t{1'000'000}, large.size()}) {
        sdkInputFile file;
        sdkText failure;
        ASSERT_TRUE(file.open(folder.write("large", large), failure));
        file.replace_end(kept, "the end");
        std::istream stream(&file);
        EXPECT_TRUE(std::string(std::istreambuf_iterator<char>(stream), {}) ==
                    large.substr(0, kept) + "the end");
        EXPECT_EQ(stream.peek(), std::istream::traits_type::eof());
        EXPECT_EQ(file.text().size(), large.size());
    }
}

TEST(InputFile, StreamsWithoutItsFirstBytes)
{
    kitTempFolder const folder;
    sdkInputFile file;
    sdkText failure;
    ASSERT_TRUE(file.open(folder.write("small", "123456"), failure));
    file.skip(2);
    std::istream stream(&file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), "3456");
    EXPECT_EQ(file.text(), "123456");
}

TEST(InputFile, AdvancesTheProgressToItsEnd)
{
    kitTempFolder const folder;
    Handle(kitIndicator) const indicator = new kitIndicator;
    {
        sdkInputFile file;
        sdkText failure;
        ASSERT_TRUE(file.open(folder.write("large", large), failure));
        file.advance(indicator->Start());
        std::istream stream(&file);
        stream.get();
        EXPECT_GT(indicator->GetPosition(), 0.0);
        EXPECT_LT(indicator->GetPosition(), 0.5);
        stream.ignore(static_cast<std::streamsize>(large.size()));
    }
    EXPECT_NEAR(indicator->GetPosition(), 1.0, 1e-9);
}

TEST(InputFile, EndsEarlyWhenItIsCancelled)
{
    kitTempFolder const folder;
    Handle(kitIndicator) const indicator = new kitIndicator;
    sdkInputFile file;
    sdkText failure;
    ASSERT_TRUE(file.open(folder.write("large", large), failure));
    file.advance(indicator->Start());
    std::istream stream(&file);
    stream.get();
    EXPECT_FALSE(file.cancelled());
    indicator->cancelled = true;
    stream.ignore(static_cast<std::streamsize>(large.size()));
    EXPECT_TRUE(stream.eof());
    EXPECT_TRUE(file.cancelled());
}

TEST(InputFile, NamesWhatItCannotOpenAndWhy)
{
    kitTempFolder const folder;
    EXPECT_NE(failure_of(folder / "absent").find("No such file or directory"), std::string::npos);
    EXPECT_NE(failure_of(folder.write("empty", "")).find("is empty"), std::string::npos);
    EXPECT_NE(failure_of(folder.path().string()).find("is not a file"), std::string::npos);
    EXPECT_NE(failure_of("/dev/null").find("is not a file"), std::string::npos);
    EXPECT_NE(failure_of(folder / "absent").find(folder / "absent"), std::string::npos);
}
