#include "vmr/vmrLengthUnit.h"

#include <gtest/gtest.h>

namespace {

vmrLengthUnit read(char const * text)
{
    auto unit = vmrLengthUnitNone;
    make_vmrLengthUnit_from_string(text, unit);
    return unit;
}

} // namespace

TEST(LengthUnit, ReadsBackEveryNameThatItWrites)
{
    for (int i = vmrLengthUnitMicron; i <= vmrLengthUnitMile; ++i) {
        auto const unit = static_cast<vmrLengthUnit>(i);
        auto const name = vmr_length_value_to_string(unit);
        EXPECT_FALSE(name.empty()) << i;
        EXPECT_EQ(read(name.c_str()), unit) << name.c_str();
    }
}

TEST(LengthUnit, ReadsTheUsualSpellings)
{
    for (auto const text : {"mm", "millimetre", "millimetres", "millimeter", "Millimeters", " MM "})
        EXPECT_EQ(read(text), vmrLengthUnitMillimetre) << text;
    for (auto const text : {"in", "inch", "Inches", "\""})
        EXPECT_EQ(read(text), vmrLengthUnitInch) << text;
    for (auto const text : {"m", "M", "metre", "meters"})
        EXPECT_EQ(read(text), vmrLengthUnitMetre) << text;
    for (auto const text : {"ft", "foot", "feet", "'"})
        EXPECT_EQ(read(text), vmrLengthUnitFoot) << text;
    for (auto const text : {"um", "\u00b5m", "\u03bcm", "micron", "microns"})
        EXPECT_EQ(read(text), vmrLengthUnitMicron) << text;
    EXPECT_EQ(read("mil"), vmrLengthUnitMil);
    EXPECT_EQ(read("thou"), vmrLengthUnitMil);
    EXPECT_EQ(read("miles"), vmrLengthUnitMile);
    EXPECT_EQ(read("uin"), vmrLengthUnitMicroinch);
    EXPECT_EQ(read("cm"), vmrLengthUnitCentimetre);
    EXPECT_EQ(read("kilometres"), vmrLengthUnitKilometre);
}

TEST(LengthUnit, LeavesTheUnitAloneForATextThatIsNone)
{
    for (auto const text : {"", "parsec", "mmm", "m m", "0"}) {
        auto unit = vmrLengthUnitInch;
        EXPECT_EQ(make_vmrLengthUnit_from_string(text, unit), 0) << text;
        EXPECT_EQ(unit, vmrLengthUnitInch) << text;
    }
    EXPECT_EQ(vmrLengthUnitNone, 0);
}

TEST(LengthUnit, HasNoNameAndNoLengthForNoUnit)
{
    EXPECT_TRUE(vmr_length_value_to_string(vmrLengthUnitNone).empty());
    EXPECT_EQ(vmr_length_in_millimetres(vmrLengthUnitNone), 0.0);
    EXPECT_EQ(vmr_length_in_millimetres(static_cast<vmrLengthUnit>(99)), 0.0);
}

TEST(LengthUnit, KnowsItsLengthInMillimetres)
{
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitMicron), 1e-3);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitMillimetre), 1);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitCentimetre), 10);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitMetre), 1e3);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitKilometre), 1e6);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitInch), 25.4);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitMil) * 1000, 25.4);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitMicroinch) * 1e6, 25.4);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitFoot), 12 * 25.4);
    EXPECT_DOUBLE_EQ(vmr_length_in_millimetres(vmrLengthUnitMile), 5280 * 12 * 25.4);
}
