#include "sdk/sdkInputFile.h"

#include "kit/kitTempFolder.h"
#include "translators/kit/kitIndicator.h"

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

struct InputFile : testing::Test {
    void SetUp() override
    {
        sdkText failure;
        ASSERT_TRUE(file.open(folder.write("large", large), failure));
    }
    void take_rest(std::istream & stream) { stream.ignore(static_cast<std::streamsize>(large.size())); }

    kitTempFolder const folder;
    Handle(kitIndicator) const indicator = new kitIndicator;
    sdkInputFile file;
};

} // namespace

TEST_F(InputFile, GivesItsTextAndStreamsIt)
{
    EXPECT_EQ(file.text(), large);
    std::istream stream(&file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), large);
}

TEST_F(InputFile, StreamsAnotherEndInPlaceOfItsOwn)
{
    for (std::size_t const kept : {std::size_t{0}, std::size_t{5}, std::size_t{1'000'000}, large.size()}) {
        sdkInputFile cut;
        sdkText failure;
        ASSERT_TRUE(cut.open(folder / "large", failure));
        cut.replace_end(kept, "the end");
        std::istream stream(&cut);
        EXPECT_TRUE(std::string(std::istreambuf_iterator<char>(stream), {}) ==
                    large.substr(0, kept) + "the end");
        EXPECT_EQ(stream.peek(), std::istream::traits_type::eof());
        EXPECT_EQ(cut.text().size(), large.size());
    }
}

TEST_F(InputFile, StreamsWithoutItsFirstBytes)
{
    sdkInputFile small;
    sdkText failure;
    ASSERT_TRUE(small.open(folder.write("small", "123456"), failure));
    small.skip(2);
    std::istream stream(&small);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), "3456");
    EXPECT_EQ(small.text(), "123456");
}

TEST_F(InputFile, AdvancesTheProgressToItsEnd)
{
    {
        sdkInputFile gone;
        sdkText failure;
        ASSERT_TRUE(gone.open(folder / "large", failure));
        gone.advance(indicator->Start());
        std::istream stream(&gone);
        stream.get();
        EXPECT_GT(indicator->GetPosition(), 0.0);
        EXPECT_LT(indicator->GetPosition(), 0.5);
        take_rest(stream);
    }
    EXPECT_NEAR(indicator->GetPosition(), 1.0, 1e-9);
}

TEST_F(InputFile, EndsEarlyWhenItIsCancelled)
{
    file.advance(indicator->Start());
    std::istream stream(&file);
    stream.get();
    EXPECT_FALSE(file.cancelled());
    indicator->cancelled = true;
    take_rest(stream);
    EXPECT_TRUE(stream.eof());
    EXPECT_TRUE(file.cancelled());
}

TEST_F(InputFile, NamesWhatItCannotOpenAndWhy)
{
    EXPECT_NE(failure_of(folder / "absent").find("No such file or directory"), std::string::npos);
    EXPECT_NE(failure_of(folder.write("empty", "")).find("is empty"), std::string::npos);
    EXPECT_NE(failure_of(folder.path().string()).find("is not a file"), std::string::npos);
    EXPECT_NE(failure_of("/dev/null").find("is not a file"), std::string::npos);
    EXPECT_NE(failure_of(folder / "absent").find(folder / "absent"), std::string::npos);
}
