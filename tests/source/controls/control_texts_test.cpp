#include "controls/sglFileFilter.h"
#include "controls/sglShownText.h"

#include <gtest/gtest.h>

TEST(FileFilter, LosesTheBarsAtItsEndAndTheBlanksAroundTheOthersAndTakesBothCases)
{
    EXPECT_EQ(sgl_toolkit_filter("Resource Files (*.rsc)|*.rsc||"), "Resource Files (*.rsc)|*.[rR][sS][cC]");
    EXPECT_EQ(sgl_toolkit_filter("Resource Files (*.rsc) | *.rsc||"),
              "Resource Files (*.rsc)|*.[rR][sS][cC]");
    EXPECT_EQ(sgl_toolkit_filter("A (*.a)|*.a|B (*.b)|*.b"), "A (*.a)|*.[aA]|B (*.b)|*.[bB]");
    EXPECT_EQ(sgl_toolkit_filter(""), "");
}

TEST(ShownText, HasReplacementCharactersForWhatIsNoText)
{
    EXPECT_EQ(sgl_shown_text(wxString(wxUniChar(0xDCE9)) + "x"), wxString(L"\xFFFDx"));
    EXPECT_EQ(sgl_shown_text(wxString(L"gr\x00FC\x00DF \x1F600")), wxString(L"gr\x00FC\x00DF \x1F600"));
}
