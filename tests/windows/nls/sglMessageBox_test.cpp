#include "sglMessageBox.h"

#include "nls/sglLongMessageDialog.h"
#include "nls/sglShownMessage.h"
#include "windows/kit/kitWindowTest.h"

#include <wx/display.h>
#include <wx/evtloop.h>
#include <wx/timer.h>

namespace {

class MessageBox : public kitWindowTest {
protected:
    /// Shows a text that is far too long for the screen and gives the answer, after `script`.
    int show_long(long style, std::function<void(sglLongMessageDialog &)> const & script)
    {
        auto * const frame = show_frame();
        wxTheApp->CallAfter([&] {
            sglLongMessageDialog * dialog = nullptr;
            run_until(
                [&] {
                    for (wxWindow * const window : wxTopLevelWindows)
                        if (auto * const found = dynamic_cast<sglLongMessageDialog *>(window))
                            dialog = found;
                    return dialog && dialog->IsShownOnScreen() && dialog->IsActive();
                },
                20, "the window of the text");
            settle();
            script(*dialog);
        });
        return sgl_show_message(frame, utString(long_text()), style);
    }
    static std::string long_text()
    {
        std::string text = "These files were translated :\n\n";
        for (int i = 0; i < 1000; ++i)
            text += "  /parts/" + std::to_string(i) + ".step\n";
        return text;
    }
};

} // namespace

TEST_F(MessageBox, TakesAQuestionThatIsClosedForNo)
{
    show_frame();
    // The box of the platform has no window of the toolkit to wait for: the key comes again until it is gone.
    wxTimer again;
    again.Bind(wxEVT_TIMER, [](wxTimerEvent &) { wxUIActionSimulator().Char(WXK_ESCAPE); });
    again.Start(100);
    EXPECT_EQ(sglMessageBox("vmrgrlib", 1115, wxYES_NO), wxID_NO);
}

TEST_F(MessageBox, OfAThousandLinesCanBeScrolledAndFitsOnTheScreen)
{
    EXPECT_EQ(show_long(wxOK | wxICON_INFORMATION,
                        [](sglLongMessageDialog & dialog) {
                            EXPECT_EQ(dialog.message().utf8_string(), long_text());
                            EXPECT_EQ(dialog.GetTitle().utf8_string(),
                                      app().application_name_no_version().str());
                            wxRect const screen = wxDisplay(&dialog).GetClientArea();
                            EXPECT_TRUE(screen.Contains(dialog.GetScreenRect()));
                            auto const * const ok = dialog.FindWindow(wxID_OK);
                            ASSERT_TRUE(ok);
                            EXPECT_TRUE(dialog.GetClientRect().Contains(ok->GetRect()));
                            EXPECT_TRUE(ok->HasFocus());
                            key(WXK_RETURN);
                        }),
              wxID_OK);
}

TEST_F(MessageBox, OfALongQuestionHasItsButtonsAndIsAnsweredWithNoWhenClosed)
{
    EXPECT_EQ(show_long(wxYES_NO | wxICON_WARNING,
                        [](sglLongMessageDialog & dialog) {
                            EXPECT_TRUE(dialog.FindWindow(wxID_YES));
                            EXPECT_TRUE(dialog.FindWindow(wxID_NO));
                            EXPECT_FALSE(dialog.FindWindow(wxID_OK));
                            key(WXK_ESCAPE);
                        }),
              wxID_NO);
    EXPECT_EQ(show_long(wxYES_NO,
                        [](sglLongMessageDialog & dialog) {
                            wxCommandEvent event(wxEVT_BUTTON, wxID_YES);
                            dialog.FindWindow(wxID_YES)->ProcessWindowEvent(event);
                        }),
              wxID_YES);
}

TEST_F(MessageBox, StaysABoxOfThePlatformAsLongAsItFits)
{
    kitModal boxes;
    boxes.expect([](wxDialog * dialog) {
        EXPECT_TRUE(dynamic_cast<wxMessageDialog *>(dialog));
        return static_cast<int>(wxID_OK);
    });
    std::string text;
    for (int i = 0; i < 30; ++i)
        text += "a line\n";
    EXPECT_EQ(sgl_show_message(show_frame(), utString(text), wxOK), wxID_OK);
    EXPECT_EQ(boxes.said(), std::vector<std::string>{text});
}
