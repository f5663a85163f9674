#include "sglMessageBox.h"
#include "sglMessageDisplayer.h"

#include "nls/sglLongMessageDialog.h"
#include "nls/sglShownMessage.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/program/kitScreen.h"

#include <unistd.h>
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

TEST_F(MessageBox, HasTheProgramsNameAndStandsInTheMiddleOfTheActiveWindow)
{
    auto * const frame = show_frame({700, 600});
    wxRect const screen = wxDisplay(frame).GetClientArea();
    frame->Move(screen.GetRight() - 750, screen.GetBottom() - 650);
    settle();
    kitScreen const display;
    std::string title;
    wxRect place;
    // The box of the platform has no window of the toolkit to wait for: it is looked for until it is there,
    // and the key comes again until it is gone.
    wxTimer again;
    again.Bind(wxEVT_TIMER, [&](wxTimerEvent &) {
        auto const active = display.active_title(getpid());
        if (active.empty() || active == frame->GetTitle().utf8_string())
            return;
        title = active;
        place = display.active_place(getpid());
        wxUIActionSimulator().Char(WXK_RETURN);
    });
    again.Start(100);
    EXPECT_EQ(sglMessageBox("vmrgrlib", 1219, wxOK), wxID_OK);
    EXPECT_EQ(title, app().application_name_no_version().str());
    wxPoint const apart = wxPoint(place.x + place.width / 2, place.y + place.height / 2) -
                          frame->ClientToScreen(wxPoint(350, 300));
    EXPECT_LT(std::abs(apart.x), 30);
    EXPECT_LT(std::abs(apart.y), 60);
}

TEST_F(MessageBox, BelongsToTheActiveWindow)
{
    auto * const frame = show_frame();
    kitModal boxes;
    boxes.expect([frame](wxDialog * dialog) {
        EXPECT_EQ(dialog->GetParent(), frame);
        return static_cast<int>(wxID_OK);
    });
    EXPECT_EQ(sglMessageBox("vmrgrlib", 1219, wxOK), wxID_OK);
    EXPECT_EQ(boxes.styles(), std::vector<long>{wxOK});
}

TEST_F(MessageBox, OfTheDisplayerGivesOneForYesAlone)
{
    show_frame();
    sglWxMessageDisplayer const displayer;
    kitModal boxes;
    struct {
        int flags;
        int pressed;
        int result;
        long style;
    } const messages[] = {
        {1, wxID_YES, 1, wxYES_NO},
        {1, wxID_NO, 0, wxYES_NO},
        {1 | 4, wxID_YES, 1, wxYES_NO | wxICON_EXCLAMATION},
        {0, wxID_OK, 0, wxOK},
        {4, wxID_OK, 0, wxICON_EXCLAMATION},
        {2 | 8, wxID_OK, 0, wxICON_HAND},
    };
    for (auto const & message : messages) {
        boxes.expect_message(message.pressed);
        EXPECT_EQ(displayer.message("vmrgrlib", 1118, message.flags, utString("part.igs")), message.result);
        EXPECT_EQ(boxes.styles().back() & message.style, message.style);
        EXPECT_EQ(boxes.said().back(), "The file part.igs already exists. Do you want to overwrite it?");
    }
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
