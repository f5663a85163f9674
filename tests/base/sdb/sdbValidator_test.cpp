#include "sdb/sdbValidator.h"

#include <gtest/gtest.h>

namespace {

class Lenient : public sdbValidator {
public:
    bool validate_int(utString const &, utString const &) override { return true; }
    bool validate_double(utString const &, utString const &) override { return true; }

    double real(char const * text)
    {
        double number = -1.0;
        return read_double(text, number) ? number : -1.0;
    }
};

} // namespace

TEST(Validator, ReadsARealWithTheDecimalSignOfAnyLocale)
{
    Lenient validator;
    EXPECT_EQ(validator.real("0.25"), 0.25);
    EXPECT_EQ(validator.real("0,25"), 0.25);
    EXPECT_EQ(validator.real("0\u066b25"), 0.25);
    EXPECT_EQ(validator.real(" 1,5e-3 "), 1.5e-3);
    EXPECT_EQ(validator.real("12"), 12);
}

TEST(Validator, ReadsNoRealFromATextWithTwoSigns)
{
    Lenient validator;
    for (auto const text : {"1,2,3", "1.000,5", "1,000.5", ",", "", "1,5mm"})
        EXPECT_EQ(validator.real(text), -1.0) << text;
}

TEST(Validator, ReadsIntegersInDigitsOnly)
{
    Lenient validator;
    long long number = 5;
    EXPECT_TRUE(validator.read_int(" 42 ", number));
    EXPECT_EQ(number, 42);
    EXPECT_FALSE(validator.read_int("4,2", number));
    EXPECT_FALSE(validator.read_int("42x", number));
    EXPECT_EQ(number, 42);
}
