#include "sglClipboard.h"

#include "windows/kit/kitWindowTest.h"
#include "windows/services/kitOtherProgram.h"

#include <wx/clipbrd.h>

namespace {

using Clipboard = kitWindowTest;

std::string clipboard_text()
{
    wxTextDataObject text;
    wxClipboardLocker const lock;
    EXPECT_TRUE(wxTheClipboard->GetData(text));
    return text.GetText().utf8_string();
}

} // namespace

TEST_F(Clipboard, TakesAText)
{
    EXPECT_EQ(sglClipboardText("gr\xC3\xBC\xC3\x9F").copy_to_clipboard(), sglClipboardStatus::copied);
    EXPECT_EQ(clipboard_text(), "gr\xC3\xBC\xC3\x9F");
    EXPECT_FALSE(wxTheClipboard->IsOpened());
}

TEST_F(Clipboard, IsEmptyAfterAnEmptyText)
{
    sglClipboardText("full").copy_to_clipboard();
    EXPECT_EQ(sglClipboardText("").copy_to_clipboard(), sglClipboardStatus::copied);
    EXPECT_EQ(clipboard_text(), "");
}

TEST_F(Clipboard, IsLeftAloneWhileItIsOpenElsewhere)
{
    sglClipboardText("before").copy_to_clipboard();
    ASSERT_TRUE(wxTheClipboard->Open());
    EXPECT_EQ(sglClipboardText("after").copy_to_clipboard(), sglClipboardStatus::already_open);
    EXPECT_TRUE(wxTheClipboard->IsOpened());
    wxTheClipboard->Close();
    EXPECT_EQ(clipboard_text(), "before");
}

TEST_F(Clipboard, IsTakenOverFromAnotherProgram)
{
    kitOtherProgram other;
    other.take_clipboard();
    ASSERT_TRUE(other.has_clipboard());
    EXPECT_EQ(sglClipboardText("ours").copy_to_clipboard(), sglClipboardStatus::copied);
    EXPECT_FALSE(other.has_clipboard());
    EXPECT_EQ(clipboard_text(), "ours");
}

TEST_F(Clipboard, HasTheNumbersThatCallersKnow)
{
    EXPECT_EQ(static_cast<int>(sglClipboardStatus::copied), 0);
    EXPECT_EQ(static_cast<int>(sglClipboardStatus::already_open), 1);
    EXPECT_EQ(static_cast<int>(sglClipboardStatus::failed), 2);
}
