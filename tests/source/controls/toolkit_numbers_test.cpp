// The numbers of the toolkit that files, other programs and the descriptions of this system go by.

#include <gtest/gtest.h>
#include <wx/brush.h>
#include <wx/cursor.h>
#include <wx/filedlg.h>
#include <wx/font.h>
#include <wx/image.h>
#include <wx/listctrl.h>
#include <wx/msgdlg.h>
#include <wx/settings.h>
#include <wx/splash.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

TEST(ToolkitNumbers, OfTheControlsAreTheOnesThatAreDescribed)
{
    EXPECT_EQ(wxID_OK, 5100);
    EXPECT_EQ(wxID_CANCEL, 5101);
    EXPECT_EQ(wxID_YES, 5103);
    EXPECT_EQ(wxID_NO, 5104);
    EXPECT_EQ(wxSYS_COLOUR_BTNFACE, 15);
    EXPECT_EQ(wxSYS_COLOUR_BTNSHADOW, 16);
    EXPECT_EQ(wxSYS_COLOUR_BTNHIGHLIGHT, 20);
    EXPECT_EQ(wxBRUSHSTYLE_TRANSPARENT, 106);
    EXPECT_EQ(wxCURSOR_HAND, 6);
    EXPECT_EQ(wxLIST_AUTOSIZE_USEHEADER, -2);
    EXPECT_EQ(wxFD_OPEN | wxFD_FILE_MUST_EXIST, 17);
    EXPECT_EQ(wxFD_SAVE | wxFD_OVERWRITE_PROMPT, 6);
    EXPECT_EQ(wxICON_EXCLAMATION, 256);
    EXPECT_EQ(wxTE_PROCESS_ENTER, 1024);
    EXPECT_EQ(wxTE_PROCESS_TAB, 64);
    EXPECT_EQ(wxTE_MULTILINE, 32);
    EXPECT_EQ(wxTE_READONLY, 16);
    EXPECT_EQ(wxTE_AUTO_URL, 4096);
    EXPECT_EQ(wxStockGDI::COLOUR_BLUE, 12);
    EXPECT_EQ(wxST_NO_AUTORESIZE, 1);
}

TEST(ToolkitNumbers, OfImagesAreTheOnesThatAreDescribed)
{
    EXPECT_EQ(wxSYS_COLOUR_WINDOWFRAME, 6);
    EXPECT_EQ(wxSYS_COLOUR_BTNFACE, 15);
    EXPECT_EQ(wxSYS_COLOUR_BTNSHADOW, 16);
    EXPECT_EQ(wxSYS_COLOUR_BTNHIGHLIGHT, 20);
    EXPECT_EQ(wxSYS_COLOUR_3DDKSHADOW, 21);
    EXPECT_EQ(wxSIMPLE_BORDER | wxSTAY_ON_TOP | wxFRAME_NO_TASKBAR, 0x2008002);
    EXPECT_EQ(wxFONTWEIGHT_BOLD, 700);
    // By its name: the number 1 is here that of the middle of the parent.
    EXPECT_EQ(wxSPLASH_CENTRE_ON_SCREEN, 2);
    EXPECT_EQ(wxSPLASH_CENTRE_ON_PARENT, 1);
}
