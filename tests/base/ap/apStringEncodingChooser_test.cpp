#include "ap/apStringEncodingChooser.h"

#include <gtest/gtest.h>

#include "ap/apStringCPEncoding.h"
#include "ap/apStringCRTEncoding.h"
#include "ap/apStringUTF8Encoding.h"

namespace {

template <class Encoding>
bool is(std::unique_ptr<apIStringEncoding> const & encoding)
{
    return dynamic_cast<Encoding const *>(encoding.get()) != nullptr;
}

} // namespace

TEST(EncodingChooser, TakesTheCodePageBehindTheDot)
{
    auto const encoding = apStringEncodingChooser::multi_byte_encoding("English_United Kingdom.1252");
    ASSERT_TRUE(is<apStringCPEncoding>(encoding));
    EXPECT_EQ(encoding->to_ap(utString("\xE9")), apString(L"\u00E9"));
}

TEST(EncodingChooser, TakesTheCLibraryForANameWithoutDot)
{
    EXPECT_TRUE(is<apStringCRTEncoding>(apStringEncodingChooser::multi_byte_encoding("C")));
    EXPECT_TRUE(is<apStringCRTEncoding>(apStringEncodingChooser::multi_byte_encoding("1252")));
    EXPECT_TRUE(is<apStringCRTEncoding>(apStringEncodingChooser::multi_byte_encoding(nullptr)));
}

TEST(EncodingChooser, TakesTheCLibraryForAWordBehindTheDot)
{
    EXPECT_TRUE(is<apStringCRTEncoding>(apStringEncodingChooser::multi_byte_encoding("en_GB.UTF-8")));
    EXPECT_TRUE(is<apStringCRTEncoding>(apStringEncodingChooser::multi_byte_encoding("en_GB.")));
}

TEST(EncodingChooser, TakesTheCLibraryForAnUnknownCodePage)
{
    EXPECT_TRUE(is<apStringCRTEncoding>(apStringEncodingChooser::multi_byte_encoding("x.31999")));
}

TEST(EncodingChooser, OffersBothEncodingsToEverybody)
{
    EXPECT_NE(dynamic_cast<apStringUTF8Encoding const *>(apStringEncodingChooser::ut_encoding()), nullptr);
    EXPECT_EQ(apStringEncodingChooser::mb_encoding(), apStringEncodingChooser::mb_encoding());
    EXPECT_EQ(apStringEncodingChooser::mb_encoding()->to_ut(apString(L"abc")), utString("abc"));
}
