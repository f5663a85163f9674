#include "ap/apStringUTF8Encoding.h"

#include <gtest/gtest.h>

TEST(Utf8Encoding, ConvertsBothWays)
{
    apStringUTF8Encoding const encoding;
    bool error = true;
    EXPECT_EQ(encoding.to_ap(utString("\xC3\xA4"), error), apString(L"\u00E4"));
    EXPECT_FALSE(error);
    error = true;
    EXPECT_EQ(encoding.to_ut(apString(L"\u00E4"), error), utString("\xC3\xA4"));
    EXPECT_FALSE(error);
}

TEST(Utf8Encoding, FlagsMalformedTextAndLosesNoByte)
{
    apStringUTF8Encoding const encoding;
    for (char const * name : {"caf\xE9.step", "\xFF\xFE", "\xC3", "\xED\xA0\x80", "\xC0\xAF"}) {
        bool error = false;
        auto const text = encoding.to_ap(utString(name), error);
        EXPECT_TRUE(error) << name;
        error = false;
        EXPECT_EQ(encoding.to_ut(text, error), utString(name));
        EXPECT_TRUE(error) << name;
    }
}

TEST(Utf8Encoding, TakesAnInvalidStringForAnEmptyOneWithAnError)
{
    bool error = false;
    EXPECT_TRUE(apStringUTF8Encoding().to_ap(utString::make_invalid(), error).empty());
    EXPECT_TRUE(error);
    EXPECT_TRUE(apStringUTF8Encoding().to_ap(utString::make_invalid()).empty());
}
