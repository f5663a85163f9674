#include "windows/kit/kitWindowTest.h"

#include <wx/button.h>
#include <wx/textctrl.h>

namespace {

using WindowKit = kitWindowTest;

} // namespace

TEST_F(WindowKit, ClicksAndTypes)
{
    auto * const frame = show_frame();
    auto * const sizer = new wxBoxSizer(wxVERTICAL);
    auto * const text = new wxTextCtrl(frame, wxID_ANY);
    auto * const button = new wxButton(frame, wxID_ANY, "Press");
    sizer->Add(text);
    sizer->Add(button);
    frame->SetSizer(sizer);
    frame->Layout();
    int pressed = 0;
    button->Bind(wxEVT_BUTTON, [&](wxCommandEvent &) { ++pressed; });
    settle();

    click(*text);
    run_until([text] { return text->HasFocus(); }, 20, "the focus");
    type("abc");
    run_until([text] { return text->GetValue() == "abc"; }, 20, "the keys");
    click(*button);
    run_until([&] { return pressed == 1; }, 20, "the press");
}

TEST_F(WindowKit, AnswersMessageBoxes)
{
    show_frame();
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    EXPECT_EQ(wxMessageBox("Sure?", "Test", wxYES_NO), wxNO);
    EXPECT_EQ(boxes.said(), std::vector<std::string>{"Sure?"});
}

TEST_F(WindowKit, DrivesAModalDialog)
{
    wxDialog dialog(nullptr, wxID_ANY, "Test");
    EXPECT_EQ(show_modal(dialog, [&] { dialog.EndModal(42); }), 42);
}

TEST_F(WindowKit, HasTheApplicationOfTheBuildTree)
{
    auto names = app().input_dlls().resource_file_names();
    EXPECT_TRUE(++names);
}
