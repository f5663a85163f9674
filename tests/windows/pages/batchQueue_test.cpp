// The list of the batch page: what it shows of each translation, and what is done to several at a time.

#include "windows/pages/kitBatchPage.h"

#include <gmock/gmock.h>
#include <wx/checkbox.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class BatchQueue : public kitBatchPageTest {
protected:
    std::string state(int number) { return line(number, 3); }
    std::string format_of(int number) { return m_batch->output_row(number).file_type().str(); }
    bool output_options_are_set(int number)
    {
        return m_batch->output_row(number).resource_table().modified() != 0;
    }
    std::string triangles(std::string const & name)
    {
        return folder().write(name, "solid a\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\n"
                                    "vertex 0 1 0\nendloop\nendfacet\nendsolid a\n");
    }
    /// Opens the options of a side and changes the first that can be ticked.
    void change_options(char const * button)
    {
        in_next_dialog([](wxDialog & dialog) {
            auto * const box = first_check_box(dialog);
            ASSERT_TRUE(box);
            box->SetValue(!box->GetValue());
            wxCommandEvent event(wxEVT_CHECKBOX, box->GetId());
            box->ProcessWindowEvent(event);
            press(dialog, "IDC_OPTIONS_APPLY");
            press(dialog, "IDC_OPTIONS_OK");
        });
        press(*m_page, button);
        settle();
    }
    static wxCheckBox * first_check_box(wxWindow & window)
    {
        for (wxWindow * const child : window.GetChildren()) {
            if (auto * const box = dynamic_cast<wxCheckBox *>(child); box && box->IsEnabled())
                return box;
            if (auto * const found = first_check_box(*child))
                return found;
        }
        return nullptr;
    }
};

} // namespace

TEST_F(BatchQueue, ShowsInputOutputFormatAndStateOfEachTranslation)
{
    std::filesystem::create_directory(folder() / "out");
    queue_pair(step_file("a.stp"), folder() / "a.stl");
    queue_pair(step_file("b.stp"), folder() / "out/b.igs");
    ASSERT_EQ(queue().GetColumnCount(), 4);
    EXPECT_EQ(line(0, 0), folder() / "a.stp");
    EXPECT_EQ(line(0, 1), "a.stl") << "beside its input";
    EXPECT_EQ(line(0, 2), "STL");
    EXPECT_EQ(state(0), "Waiting");
    EXPECT_EQ(line(1, 1), folder() / "out/b.igs");
    EXPECT_EQ(line(1, 2), "IGES");
}

TEST_F(BatchQueue, ShowsTheOutputOfASavedTranslation)
{
    queue_pair(step_file("a.stp"), folder() / "a.stl");
    choose(m_ids.output_format, "IGES");
    save();
    EXPECT_EQ(line(0, 1), "a.igs");
    EXPECT_EQ(line(0, 2), "IGES");
    EXPECT_EQ(state(0), "Waiting");
}

TEST_F(BatchQueue, ShowsWhatBecameOfEachTranslation)
{
    drop_on_queue({triangles("good.stl"), step_file("broken.stp")});
    {
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        translate();
    }
    EXPECT_THAT(state(0), testing::StartsWith("Done"));
    EXPECT_EQ(state(1), "Failed");
    click_line(0);
    choose(m_ids.output_format, "IGES");
    EXPECT_EQ(state(0), "Not saved");
    save();
    EXPECT_EQ(state(0), "Waiting");
}

TEST_F(BatchQueue, RemovesAllThatAreChosenWithTheDeleteKey)
{
    drop_on_queue({step_file("a.stp"), step_file("b.stp"), step_file("c.stp"), step_file("d.stp")});
    choose_lines({0, 2, 3});
    EXPECT_TRUE(can_remove());
    focus(queue());
    key(WXK_DELETE);
    run_until([&] { return queued() == 1; }, 20, "the removal");
    ASSERT_EQ(queue().GetItemCount(), 1);
    EXPECT_EQ(line(0), folder() / "b.stp");
    EXPECT_EQ(queued_output(0), folder() / "b.igs");
    EXPECT_FALSE(can_remove());
}

TEST_F(BatchQueue, ChoosesAllWithItsKeyAndRemovesThemWithTheButton)
{
    drop_on_queue({step_file("a.stp"), step_file("b.stp"), step_file("c.stp")});
    focus(queue());
    key('A', wxMOD_CONTROL);
    EXPECT_THAT(chosen(), ElementsAre(0, 1, 2));
    press(*m_page, "IDC_BATCH_REMOVE_BUTTON");
    EXPECT_EQ(queued(), 0);
    EXPECT_EQ(queue().GetItemCount(), 0);
    EXPECT_FALSE(can_translate());
}

TEST_F(BatchQueue, GivesAFormatToAllThatAreChosen)
{
    drop_on_queue({step_file("a.stp"), step_file("b.stp"), step_file("c.stp")});
    choose_lines({0, 2});
    EXPECT_EQ(input_file(), folder() / "a.stp");
    choose(m_ids.output_format, "STL");
    EXPECT_EQ(state(0), "Not saved");
    EXPECT_EQ(state(1), "Waiting");
    EXPECT_EQ(state(2), "Not saved");
    EXPECT_EQ(format_of(2), "IGES") << "before it is saved";
    save();
    EXPECT_EQ(queued_output(0), folder() / "a.stl");
    EXPECT_EQ(queued_output(1), folder() / "b.igs");
    EXPECT_EQ(queued_output(2), folder() / "c.stl");
    EXPECT_EQ(format_of(2), "STL");
    EXPECT_EQ(m_batch->input_row(2).filename(), utString(folder() / "c.stp"));
    EXPECT_EQ(line(2, 1), "c.stl");
    EXPECT_EQ(state(2), "Waiting");
    EXPECT_THAT(chosen(), ElementsAre(0, 2));
}

TEST_F(BatchQueue, GivesOptionsToAllThatAreChosenAndOfTheFormat)
{
    drop_on_queue({step_file("a.stp"), step_file("b.stp"), step_file("c.stp")});
    queue_pair(step_file("d.stp"), folder() / "d.stl");
    choose_lines({0, 2, 3});
    change_options(m_ids.output_resources);
    EXPECT_EQ(state(2), "Not saved");
    EXPECT_FALSE(output_options_are_set(0));
    save();
    EXPECT_TRUE(output_options_are_set(0));
    EXPECT_FALSE(output_options_are_set(1));
    EXPECT_TRUE(output_options_are_set(2));
    EXPECT_FALSE(output_options_are_set(3)) << "those of another format";
    EXPECT_EQ(queued_output(2), folder() / "c.igs");
}

TEST_F(BatchQueue, GivesOptionsOfTheInputToAllThatAreChosenAndOfTheFormat)
{
    drop_on_queue({step_file("a.stp"), triangles("b.stl"), step_file("c.stp")});
    choose_lines({0, 1, 2});
    change_options(m_ids.input_resources);
    save();
    EXPECT_TRUE(m_batch->input_row(0).resource_table().modified());
    EXPECT_FALSE(m_batch->input_row(1).resource_table().modified());
    EXPECT_TRUE(m_batch->input_row(2).resource_table().modified());
    EXPECT_EQ(m_batch->input_row(1).file_type(), utString("STL"));
}

TEST_F(BatchQueue, LeavesThoseAsTheyWereWhoseNewOutputIsRefused)
{
    drop_on_queue({step_file("a.stp"), step_file("b.stp")});
    folder().write("b.stl", "precious");
    choose_lines({0, 1});
    choose(m_ids.output_format, "STL");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    save();
    EXPECT_THAT(boxes.said(), ElementsAre(HasSubstr(folder() / "b.stl")));
    EXPECT_EQ(queued_output(0), folder() / "a.stl");
    EXPECT_EQ(queued_output(1), folder() / "b.igs");
    EXPECT_EQ(format_of(1), "IGES");
    EXPECT_EQ(state(1), "Waiting");
}

TEST_F(BatchQueue, GivesAnOutputOfTheUsersOwnToTheFirstOfSeveral)
{
    drop_on_queue({step_file("a.stp"), step_file("b.stp")});
    choose_lines({0, 1});
    browse_output(folder() / "mine.igs");
    EXPECT_THAT(chosen(), ElementsAre(0));
    save();
    EXPECT_EQ(queued_output(0), folder() / "mine.igs");
    EXPECT_EQ(queued_output(1), folder() / "b.igs");
}
