#include "sglDialog.h"

#include "kit/kitAppTest.h"

namespace {

using Dialog = kitAppTest;

} // namespace

TEST_F(Dialog, IsMadeAndGoneWithoutADisplayAndWithoutAWord)
{
    start();
    testing::internal::CaptureStderr();
    {
        sglDialog const dialog("DLG_DUMMY", "vmrgrlib", nullptr);
        EXPECT_EQ(dialog.GetHandle(), nullptr);
        sglDialog const copy(dialog);
        EXPECT_EQ(copy.GetHandle(), nullptr);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Dialog, TranslatesNoWindowThatIsNotThere)
{
    EXPECT_EQ(sglTranslateWndText("vmrgrlib", nullptr, 1), 0);
}
