#include "nls/vmrnlsKey.h"

#include <gtest/gtest.h>

namespace {

void expect_key(char const * key, char const * context, char const * text)
{
    vmrnlsKey const parts(key);
    EXPECT_EQ(parts.context, context) << key;
    EXPECT_EQ(parts.text, text) << key;
}

} // namespace

TEST(Key, IsCutAtTheFirstDoubleColon)
{
    expect_key("cl::Usage : \n\n", "cl", "Usage : \n\n");
    expect_key("d.report.tree::File : %s", "d.report.tree", "File : %s");
    expect_key("d.e2f_output.messagebox::a::b", "d.e2f_output.messagebox", "a::b");
}

TEST(Key, MayHaveNoContext)
{
    expect_key("Full Release", "", "Full Release");
    expect_key("Reading :", "", "Reading :");
    expect_key("", "", "");
    expect_key("::text", "", "text");
}

TEST(Key, KeepsASingleColon)
{
    expect_key("cl:Decrypting is no longer supported", "", "cl:Decrypting is no longer supported");
}

TEST(Key, KeepsADoubleColonBehindMoreThanAWord)
{
    expect_key("Failed in std::vector", "", "Failed in std::vector");
    expect_key("%s::%s", "", "%s::%s");
}
