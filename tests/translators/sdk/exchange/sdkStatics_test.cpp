#include "sdk/exchange/sdkStatics.h"

#include <Interface_Static.hxx>
#include <STEPControl_Controller.hxx>
#include <gtest/gtest.h>

#include <stdexcept>

TEST(Statics, PutBackWhatTheyChanged)
{
    STEPControl_Controller::Init();
    std::string const schema = Interface_Static::CVal("write.step.schema");
    double const precision = Interface_Static::RVal("write.precision.val");
    {
        sdkStatics statics;
        statics.set("write.step.schema", "AP203");
        statics.set("write.step.schema", "AP242DIS");
        statics.set("write.precision.val", 0.25);
        statics.set("write.step.product.name", "Part");
        EXPECT_STREQ(Interface_Static::CVal("write.step.schema"), "AP242DIS");
        EXPECT_EQ(Interface_Static::RVal("write.precision.val"), 0.25);
    }
    EXPECT_EQ(Interface_Static::CVal("write.step.schema"), schema);
    EXPECT_EQ(Interface_Static::RVal("write.precision.val"), precision);
}

TEST(Statics, RefuseSettingsAndValuesThatDoNotExist)
{
    STEPControl_Controller::Init();
    sdkStatics statics;
    EXPECT_THROW(statics.set("no.such.setting", "x"), std::logic_error);
    EXPECT_THROW(statics.set("write.step.schema", "AP999"), std::logic_error);
}
