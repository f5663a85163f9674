// Files dragged out of the window of another program, by the mouse.

#include "sglDropFiles.h"
#include "sglMergeFiles.h"
#include "sglSingleFile.h"
#include "windows/drop/kitFileManager.h"
#include "windows/pages/kitBatchPage.h"

#include <wx/textctrl.h>

namespace {

class Drop : public kitBatchPageTest {
protected:
    /// Drags the files onto the middle of a window and drops them there.
    static void drag_onto(wxWindow & target, std::vector<std::string> const & files)
    {
        kitFileManager source(files);
        run_until([&] { return source.ready(); }, 30, "the other program");
        wxPoint const place = target.ClientToScreen(wxPoint(target.GetSize().x / 2, target.GetSize().y / 2));
        // Two programs and the display talk about the place while the mouse is over it. Who lets go before
        // they are done drags once more, and holds on for longer.
        for (int attempt = 1; attempt <= 5 && !source.has_dropped(); ++attempt)
            drag(source, place, 15 * attempt);
        EXPECT_TRUE(source.has_dropped()) << source.said();
        settle();
    }

private:
    static void drag(kitFileManager & source, wxPoint const & to, int movements_there)
    {
        wxUIActionSimulator mouse;
        auto const move = [&](wxPoint const & place) {
            mouse.MouseMove(place);
            settle();
        };
        wxPoint const from = source.middle();
        move(from);
        mouse.MouseDown();
        run_until([&] { return source.drags(); }, 30, "the start of the drag");
        for (int step = 1; step <= 8; ++step)
            move(from + (to - from) * step / 8);
        for (int i = 0; i < movements_there; ++i)
            move(to + wxPoint(i % 2, 0));
        mouse.MouseUp();
        run_until([&] { return !source.drags(); }, 30, "the end of the drag");
    }
};

} // namespace

TEST_F(Drop, OntoThePageForOneFileShowsTheFile)
{
    auto * const page = open<sglSingleFile>(kit_single_page);
    m_notebook->SetSelection(1);
    settle();
    auto const file = step_file("one part \xc3\xa4.stp");
    drag_onto(list(kit_single_page.input_list), {file});
    EXPECT_EQ(page->input_row(0).filename(), utString(file));
    EXPECT_EQ(output_file(), folder() / "one part \xc3\xa4.igs");
    EXPECT_TRUE(can_translate());
}

TEST_F(Drop, OntoThePageThatMergesAddsEveryFile)
{
    auto * const page = open<sglMergeFiles>(kit_merge_page);
    m_notebook->SetSelection(1);
    settle();
    drag_onto(list(kit_merge_page.input_list), {step_file("a.stp"), step_file("b.stp")});
    EXPECT_EQ(page->num_input_rows(), 2);
}

TEST_F(Drop, OntoTheQueueAddsEveryFileWhateverItsBytes)
{
    auto const odd = step_file("caf\xe9 100%.stp");
    drag_onto(queue(), {step_file("a.stp"), odd});
    ASSERT_EQ(queued(), 2);
    EXPECT_EQ(m_batch->input_row(1).filename(), utString(odd));
}

TEST_F(Drop, OntoATextFieldPutsTheNameOfTheFirstFileInIt)
{
    auto * const frame = show_frame(wxSize(400, 120));
    auto * const text = new wxTextCtrl(frame, wxID_ANY, "before", wxPoint(10, 10), wxSize(380, 40));
    text->SetDropTarget(new sglDropFiles(text));
    settle();
    auto const file = step_file("first.stp");
    drag_onto(*text, {file, step_file("second.stp")});
    EXPECT_EQ(text->GetValue().utf8_string(), file);
}
