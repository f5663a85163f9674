#include "vmr/vmrGeneralResources.h"

#include "vmr/vmrLengthUnit.h"
#include "vmr/vmrResourceRegistry.h"

#include <gtest/gtest.h>

TEST(GeneralResources, AreRegisteredWithoutAnyTranslator)
{
    for (auto const & declaration : vmr_general_resources()) {
        auto const found = vmr_look_up_resource(declaration.name);
        ASSERT_NE(found, nullptr) << declaration.name;
        EXPECT_EQ(*found, declaration);
    }
}

TEST(GeneralResources, HaveLegalDefaults)
{
    for (auto const & declaration : vmr_general_resources())
        EXPECT_EQ(declaration.canonical(declaration.default_value), declaration.default_value)
            << declaration.name;
}

TEST(GeneralResources, OfferUnitsThatCanAllBeRead)
{
    auto const units = vmr_look_up_resource("vmrOptOutputUnits");
    EXPECT_EQ(units->choices.size(), 10u);
    for (auto const & name : units->choices) {
        auto unit = vmrLengthUnitNone;
        EXPECT_TRUE(make_vmrLengthUnit_from_string(name, unit)) << name;
        EXPECT_EQ(vmr_length_value_to_string(unit), utString(name));
    }
}

TEST(GeneralResources, VerifyEveryOutputInFullUnlessAskedOtherwise)
{
    auto const verify = vmr_look_up_resource("vmrOptVerify");
    ASSERT_NE(verify, nullptr);
    EXPECT_EQ(verify->default_value, "full");
    for (auto const name : {"none", "counts", "full"})
        EXPECT_EQ(verify->canonical(name), name);
    EXPECT_FALSE(verify->canonical("some"));
}

TEST(GeneralResources, TakeNoToleranceOfNothing)
{
    for (auto const name : {"vmrTolTriangulate3d", "vmrTolPolygonizeCurve2d", "vmrTolPolygonizeCurve3d",
                            "vmrTolCurveOnSurface3d"}) {
        auto const tolerance = vmr_look_up_resource(name);
        ASSERT_NE(tolerance, nullptr) << name;
        EXPECT_FALSE(tolerance->canonical("0"));
        EXPECT_FALSE(tolerance->canonical("-1"));
        EXPECT_EQ(tolerance->canonical("0.001"), "0.001");
    }
    EXPECT_EQ(vmr_look_up_resource("vmrTolTriangulate3d")->default_value, "0.1");
    EXPECT_EQ(vmr_look_up_resource("vmrTolCurveOnSurface3d")->default_value, "0.01");
}
