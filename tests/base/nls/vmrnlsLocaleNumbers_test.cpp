#include "nls/vmrnlsLocaleNumbers.h"

#include <gtest/gtest.h>

#include "Surroundings.h"

/// The C library does not give back the list of folders that it makes of LOCPATH, which only these tests set.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is that of the sanitizer
extern "C" char const * __lsan_default_suppressions()
{
    return "leak:__argz_add_sep";
}

namespace {

class LocaleNumbers : public testing::Test {
protected:
    ~LocaleNumbers() override
    {
        std::setlocale(LC_NUMERIC, "C");
        unsetenv("LC_NUMERIC");
        vmrnlsLocaleNumbers::save();
    }

    Surroundings surroundings;
};

} // namespace

TEST_F(LocaleNumbers, ArePlainInABareEnvironment)
{
    vmrnlsLocaleNumbers::save();
    EXPECT_EQ(vmrnlsLocaleNumbers::decimal_point(), '.');
}

TEST_F(LocaleNumbers, AreThoseOfTheLocaleInForce)
{
    surroundings.set("LOCPATH", TEST_LOCPATH);
    ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr);
    vmrnlsLocaleNumbers::save();
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(vmrnlsLocaleNumbers::decimal_point(), ',');
}

TEST_F(LocaleNumbers, AreThoseOfTheEnvironmentWhereTheLocaleInForceIsPlain)
{
    surroundings.use_decimal_comma();
    vmrnlsLocaleNumbers::save();
    EXPECT_EQ(vmrnlsLocaleNumbers::decimal_point(), ',');
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}
