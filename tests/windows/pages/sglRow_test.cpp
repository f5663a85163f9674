#include "sglRow.h"

#include "kit/kitCatalogue.h"
#include "sglPathText.h"
#include "windows/pages/kitSide.h"

namespace {

class Row : public kitSideTest {
protected:
    void SetUp() override
    {
        kitSideTest::SetUp();
        for (auto const & name : formats())
            app().input_dlls().translator_for_format(name)->load(m_status);
        m_list->AppendColumn("File");
        m_list->AppendColumn("Resource");
    }
    void show(char const * file, char const * resources, char const * format)
    {
        m_list->DeleteAllItems();
        m_list->InsertItem(0, file);
        m_list->SetItem(0, 1, resources);
        m_box->SetStringSelection(format);
    }
    int initialise(sglRow & row) { return row.initialise(&app().input_dlls(), *m_box, *m_list, 0); }
    static std::string resources_of(sglRow const & row)
    {
        return ExtractFile(row.resource_table().resource_file()).str();
    }
    /// A row for a STEP file in which the user has set an option.
    sglRow edited()
    {
        sglRow row;
        show("/data/part.stp", "step.rsc", "STEP");
        EXPECT_EQ(initialise(row), 1);
        EXPECT_TRUE(row.resource_table().add_resource("stepReadHealing", "false"));
        return row;
    }

    sdbTranslatorLoadStatus m_status{sdbTranslatorLoadStart};
};

} // namespace

TEST_F(Row, IsInvalidUntilItHasAFileAndOptions)
{
    sglRow row;
    EXPECT_TRUE(row.invalid());
    show("/data/part.stp", "step.rsc", "STEP");
    EXPECT_EQ(initialise(row), 1);
    EXPECT_FALSE(row.invalid());
    EXPECT_EQ(row.filename(), utString("/data/part.stp"));
    EXPECT_EQ(row.file_type(), utString("STEP"));
    EXPECT_EQ(resources_of(row), "step.rsc");
    EXPECT_GT(row.resource_table().default_table()->count(), 0);
    row.clear();
    EXPECT_TRUE(row.invalid());
    EXPECT_TRUE(row.filename().invalid());
    EXPECT_TRUE(row.file_type().invalid());
}

TEST_F(Row, StaysAsItIsWhereTheListHasNoSuchCell)
{
    sglRow row = edited();
    EXPECT_EQ(row.initialise(&app().input_dlls(), *m_box, *m_list, 1), 0);
    EXPECT_EQ(row.initialise(&app().input_dlls(), *m_box, *m_list, -1), 0);
    m_list->DeleteColumn(1);
    EXPECT_EQ(initialise(row), 0);
    EXPECT_EQ(row.filename(), utString("/data/part.stp"));
}

TEST_F(Row, OfAnUnknownFormatHasNoOptions)
{
    sglRow row = edited();
    m_box->add_and_select_unknown();
    EXPECT_EQ(initialise(row), 0);
    EXPECT_TRUE(row.invalid());
    EXPECT_EQ(row.file_type(), unknown_format());
}

TEST_F(Row, LoadsTheOptionsOfAnotherFormat)
{
    sglRow row = edited();
    show("/data/part.igs", "iges.rsc", "IGES");
    EXPECT_EQ(initialise(row), 1);
    EXPECT_EQ(resources_of(row), "iges.rsc");
    EXPECT_FALSE(row.resource_table().modified());
}

TEST_F(Row, KeepsWhatTheUserHasSetWhileItsResourceFileStandsInTheList)
{
    sglRow row = edited();
    show("/data/other.stp", "step.rsc", "STEP");
    EXPECT_EQ(initialise(row), 1);
    EXPECT_EQ(row.filename(), utString("/data/other.stp"));
    EXPECT_TRUE(row.resource_table().modified());
}

TEST_F(Row, KeepsTheOptionsOfACustomFileWhileThatStandsInTheListInAnyCase)
{
    sglRow row = edited();
    row.resource_table().set_resource_file("/data/Mine.rsc");
    show("/data/part.stp", "MINE.RSC", "STEP");
    EXPECT_EQ(initialise(row), 1);
    EXPECT_TRUE(row.resource_table().modified());
    show("/data/part.stp", "other.rsc", "STEP");
    EXPECT_EQ(initialise(row), 1);
    EXPECT_EQ(resources_of(row), "step.rsc");
    EXPECT_FALSE(row.resource_table().modified());
}

TEST_F(Row, TakesAFileNamedAfterItsFormatInAnyCaseForTheRightOne)
{
    sglRow row = edited();
    row.resource_table().set_resource_file("/data/StEp.RSC");
    show("/data/part.stp", "something else", "STEP");
    EXPECT_EQ(initialise(row), 1);
    EXPECT_TRUE(row.resource_table().modified()) << "loaded anew";
    EXPECT_EQ(row.update_is_ok("step", 0), 1);
    EXPECT_EQ(row.update_is_ok("IGES", 0), 0);
}

TEST_F(Row, LooksUpTheViewerForItsResourceFileAndKeepsTheFormatOfTheBox)
{
    kitCatalogue const catalogue({kitCatalogue::format("viewer", "Viewer", "viewer")});
    std::filesystem::create_directories(user_resources());
    std::ofstream(user_resources() + "/viewer.rsc") << "stepReadHealing = false\n";
    sglRow row;
    show("/data/part.stp", "VIEWER.RSC", "STEP");
    EXPECT_EQ(row.initialise(&catalogue.dlls(), *m_box, *m_list, 0), 1);
    EXPECT_EQ(row.file_type(), utString("STEP"));
    EXPECT_EQ(row.resource_table().resource_file(), utString(user_resources() + "/viewer.rsc"));
    EXPECT_EQ(row.update_is_ok("IGES", 0), 1);
}

TEST_F(Row, MayChangeItsFormatFreelyWhileNothingWasSet)
{
    sglRow row;
    EXPECT_EQ(row.update_is_ok("IGES", 0), 1);
    show("/data/part.stp", "step.rsc", "STEP");
    initialise(row);
    EXPECT_EQ(row.update_is_ok("IGES", 1), 1);
    EXPECT_FALSE(row.invalid());
}

TEST_F(Row, KeepsItsFormatWithoutAskingWhereSomethingWasSet)
{
    sglRow row = edited();
    EXPECT_EQ(row.update_is_ok("IGES", 0), 0);
    EXPECT_FALSE(row.invalid());
    EXPECT_EQ(row.update_is_ok("STEP", 0), 1);
}

TEST_F(Row, KeepsWhatWasSetWhenTheUserWantsThat)
{
    sglRow row = edited();
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    EXPECT_EQ(row.update_is_ok("IGES", 1), 0);
    EXPECT_EQ(boxes.said().front(),
              "Some resource values have been altered. Is it ok to lose these changes?");
    EXPECT_TRUE(boxes.styles().front() & wxYES_NO);
    EXPECT_TRUE(row.resource_table().modified());
}

TEST_F(Row, IsClearedAndNoMoreWhenTheUserGivesUpWhatWasSet)
{
    sglRow row = edited();
    kitModal boxes;
    boxes.expect_message(wxID_YES);
    EXPECT_EQ(row.update_is_ok("IGES", 1), 1);
    EXPECT_TRUE(row.filename().invalid());
    EXPECT_TRUE(row.file_type().invalid());
    EXPECT_TRUE(row.resource_table().invalid());
}

TEST_F(Row, IsClonedWithOptionsOfItsOwn)
{
    sglRow row = edited();
    sglRowcoDListPrgcoPrgcoDList clones;
    clones.append(sglRowcoDListPrgcoPrg(row.clone()));
    clones.append(sglRowcoDListPrgcoPrg(sglRow().clone()));
    row.resource_table().add_resource("stepReadHealing", "true");
    EXPECT_EQ(clones[0]->filename(), row.filename());
    EXPECT_EQ(clones[0]->file_type(), row.file_type());
    EXPECT_EQ(clones[0]->resource_table().effective_value("stepReadHealing"), utString("false"));
    EXPECT_TRUE(clones[1]->invalid());
    EXPECT_TRUE(clones[1]->resource_table().invalid());
}
