#include "ap/apStringCompareInsensitive.h"

#include <gtest/gtest.h>

#include "ap/apStringCPEncoding.h"
#include "ap/apStringUTF8Encoding.h"

class CompareInsensitive : public testing::Test {
protected:
    apStringUTF8Encoding m_encoding;
    apStringCompareInsensitive m_compare{&m_encoding};
};

TEST_F(CompareInsensitive, TakesLettersOfEitherCaseForEqual)
{
    EXPECT_EQ(m_compare.compare(apString(L"STP"), apString(L"stp")), 0);
    EXPECT_EQ(
        m_compare.compare(apString(L"\u00C4\u00D6 \u0416 \u03A9"), apString(L"\u00E4\u00F6 \u0436 \u03C9")),
        0);
    EXPECT_EQ(m_compare.compare(apString(L"\u03C3"), apString(L"\u03C2")), 0);
}

TEST_F(CompareInsensitive, OrdersByTheLetters)
{
    EXPECT_LT(m_compare.compare(apString(L"a"), apString(L"B")), 0);
    EXPECT_GT(m_compare.compare(apString(L"b"), apString(L"A")), 0);
    EXPECT_LT(m_compare.compare(apString(L"A"), apString(L"ab")), 0);
    EXPECT_GT(m_compare.compare(apString(L"a"), apString()), 0);
    EXPECT_NE(m_compare.compare(apString(L"\u00E4"), apString(L"a")), 0);
}

TEST_F(CompareInsensitive, OrdersBytesThatAreNotTextToo)
{
    auto const a = apString::from_utf8("\xE4");
    auto const b = apString::from_utf8("\xC4");
    EXPECT_NE(m_compare.compare(a, b), 0);
    EXPECT_EQ(m_compare.compare(a, a), 0);
    EXPECT_EQ(m_compare.compare(a, b), -m_compare.compare(b, a));
}

TEST_F(CompareInsensitive, ReadsEightBitTextInItsEncoding)
{
    apStringCPEncoding const latin(1252);
    EXPECT_EQ(apStringCompareInsensitive(&latin).compare_ut("\xE4", "\xC4"), 0);
    EXPECT_EQ(m_compare.compare_ut("\xC3\xA4", "\xC3\x84"), 0);
    EXPECT_LT(m_compare.compare_ut("a", "b"), 0);
}
