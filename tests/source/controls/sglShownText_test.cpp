#include "controls/sglShownText.h"

#include <gtest/gtest.h>

TEST(ShownText, HasReplacementCharactersForWhatIsNoText)
{
    EXPECT_EQ(sgl_shown_text(wxString(wxUniChar(0xDCE9)) + "x"), wxString(L"\xFFFDx"));
    EXPECT_EQ(sgl_shown_text(wxString(L"gr\x00FC\x00DF \x1F600")), wxString(L"gr\x00FC\x00DF \x1F600"));
}
