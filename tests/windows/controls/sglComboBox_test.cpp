#include "sglComboBox.h"

#include "sglListViewComboPopup.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/kit/kitXrc.h"
#include "wxt/wxtStringConverter.h"

#include <gmock/gmock.h>

namespace {

class FormatBox : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
        m_box = new sglComboBox;
        ASSERT_TRUE(m_box->create(m_frame, 77, "", wxPoint(20, 20), wxSize(240, -1), wxCB_READONLY,
                                  wxDefaultValidator, "box"));
        settle();
        for (auto const type : {wxEVT_COMBOBOX, wxEVT_COMBOBOX_CLOSEUP, wxEVT_COMBOBOX_DROPDOWN})
            m_frame->Bind(type, [this](wxCommandEvent & event) { m_events.push_back(event.GetEventType()); });
    }
    void TearDown() override
    {
        sglComboBox::set_unknown_format(utString::make_invalid());
        kitWindowTest::TearDown();
    }

    static std::string unknown() { return unknown_format().str(); }
    std::string shown() const { return m_box->GetValue().utf8_string(); }
    std::string selected() const { return m_box->selected_item().str(); }
    std::vector<std::string> rows() const
    {
        std::vector<std::string> texts;
        for (int row = 0; row < m_box->popup()->GetItemCount(); ++row)
            texts.push_back(m_box->popup()->GetItemText(row).utf8_string());
        return texts;
    }
    int count(wxEventType type) const
    {
        return static_cast<int>(std::count(m_events.begin(), m_events.end(), type));
    }
    sglListViewComboPopup & list() { return const_cast<sglListViewComboPopup &>(*m_box->popup()); }
    void open()
    {
        m_box->Popup();
        run_until([this] { return m_box->IsPopupShown() && list().IsShownOnScreen(); }, 20, "the list");
        settle();
    }
    void wait_for_close()
    {
        run_until([this] { return !m_box->IsPopupShown(); }, 20, "the list to close");
        settle();
    }
    wxPoint middle_of(int row)
    {
        wxRect place;
        list().GetItemRect(row, place);
        return list().ClientToScreen(wxPoint(place.x + 10, place.y + place.height / 2));
    }
    void point_at(int row)
    {
        wxUIActionSimulator simulator;
        simulator.MouseMove(middle_of(row) + wxPoint(1, 0));
        settle();
        simulator.MouseMove(middle_of(row));
        run_until([this, row] { return list().hover_row() == row; }, 20, "the row under the mouse");
    }
    void open_and_point_and_open_again()
    {
        open();
        point_at(2);
        m_box->Dismiss();
        wait_for_close();
        wxUIActionSimulator().MouseMove(m_frame->ClientToScreen(wxPoint(500, 400)));
        settle();
        open();
    }
    void click_on(int row)
    {
        point_at(row);
        wxUIActionSimulator().MouseClick();
        wait_for_close();
    }
    static sdbFormatDeclaration step_format()
    {
        sdbFormatDeclaration format;
        format.name = "STEP";
        return format;
    }
    sdbTranslatorInfo const * step() { return app().input_dlls().translator_for_format("STEP"); }

    wxFrame * m_frame = nullptr;
    sglComboBox * m_box = nullptr;
    std::vector<wxEventType> m_events;
};

using ::testing::ElementsAre;

} // namespace

TEST_F(FormatBox, ListsItsTextsInOrder)
{
    EXPECT_EQ(m_box->Append("STEP"), 0);
    EXPECT_EQ(m_box->Append("BREP"), 0);
    EXPECT_EQ(m_box->Append("iges"), 1);
    EXPECT_THAT(rows(), ElementsAre("BREP", "iges", "STEP"));
    EXPECT_EQ(m_box->FindString("STEP"), 2);
    EXPECT_EQ(m_box->FindString("STE"), -1);
    EXPECT_EQ(m_box->GetCurrentSelection(), -1);
    EXPECT_EQ(selected(), "");
}

TEST_F(FormatBox, IsFilledAfreshWithNothingChosen)
{
    m_box->fill({"B", "A"});
    m_box->SetStringSelection("B");
    EXPECT_EQ(m_box->GetCurrentSelection(), 1);
    m_box->fill({"D", "C"});
    EXPECT_THAT(rows(), ElementsAre("C", "D"));
    EXPECT_EQ(m_box->GetCurrentSelection(), -1);
    EXPECT_EQ(selected(), "");
}

TEST_F(FormatBox, KeepsItsChoiceWhenATextComesBeforeIt)
{
    m_box->fill({"B", "D"});
    m_box->SetStringSelection("D");
    m_box->Append("C");
    EXPECT_EQ(selected(), "D");
}

TEST_F(FormatBox, ChoosesNothingByATextThatIsNotThere)
{
    m_box->fill({"A", "B"});
    m_box->SetStringSelection("A");
    m_box->SetStringSelection("C");
    EXPECT_EQ(selected(), "A");
    EXPECT_EQ(shown(), "C");
}

TEST_F(FormatBox, ShowsTheUnknownFormatAsOneEntry)
{
    m_box->fill({"STEP", "IGES"});
    m_box->add_and_select_unknown();
    m_box->add_and_select_unknown();
    EXPECT_THAT(rows(), ElementsAre(unknown(), "IGES", "STEP"));
    EXPECT_EQ(selected(), "unknown format");
    EXPECT_EQ(shown(), "unknown format");
}

TEST_F(FormatBox, CallsTheUnknownFormatAsTheProgramWants)
{
    sglComboBox::set_unknown_format("no idea");
    m_box->fill({"STEP"});
    m_box->add_and_select_unknown();
    EXPECT_EQ(selected(), "no idea");
    m_box->delete_unknown();
    EXPECT_THAT(rows(), ElementsAre("STEP"));
}

TEST_F(FormatBox, ChecksForTheUnknownFormatOnlyWhereNothingIsChosen)
{
    m_box->fill({"STEP"});
    m_box->SetStringSelection("STEP");
    m_box->check_and_select_unknown();
    EXPECT_EQ(selected(), "STEP");
    m_box->fill({"STEP"});
    m_box->check_and_select_unknown();
    EXPECT_EQ(selected(), unknown());
}

TEST_F(FormatBox, KeepsTheChosenTextWhenTheUnknownFormatGoes)
{
    m_box->fill({"STEP", "IGES"});
    m_box->add_and_select_unknown();
    m_box->SetStringSelection("STEP");
    EXPECT_EQ(m_box->GetCurrentSelection(), 2);
    m_box->delete_unknown();
    EXPECT_EQ(m_box->GetCurrentSelection(), 1);
    EXPECT_EQ(selected(), "STEP");
    m_box->delete_unknown();
    EXPECT_EQ(selected(), "STEP");
    m_box->add_and_select_unknown();
    m_box->delete_unknown();
    EXPECT_EQ(m_box->GetCurrentSelection(), -1);
}

TEST_F(FormatBox, TakesTheUnknownFormatOutOfTheOpenListAndPutsItBack)
{
    m_box->fill({"STEP", "IGES"});
    m_box->add_and_select_unknown();
    open();
    EXPECT_THAT(rows(), ElementsAre("IGES", "STEP"));
    EXPECT_EQ(shown(), "");
    m_box->Dismiss();
    wait_for_close();
    EXPECT_EQ(selected(), unknown());
    EXPECT_EQ(shown(), unknown());
    EXPECT_EQ(count(wxEVT_COMBOBOX), 1);
    EXPECT_EQ(count(wxEVT_COMBOBOX_CLOSEUP), 1);
}

TEST_F(FormatBox, TellsOnceOfEachCloseWithAChoice)
{
    m_box->fill({"STEP", "IGES", "BREP"});
    m_box->add_and_select_unknown();
    open();
    click_on(1);
    EXPECT_EQ(selected(), "IGES");
    EXPECT_EQ(shown(), "IGES");
    EXPECT_THAT(rows(), ElementsAre("BREP", "IGES", "STEP"));
    EXPECT_EQ(count(wxEVT_COMBOBOX), 1);
    EXPECT_EQ(count(wxEVT_COMBOBOX_CLOSEUP), 1);
}

TEST_F(FormatBox, TellsOnceOfACloseByEachOfTheWaysOut)
{
    m_box->fill({"STEP", "IGES"});
    m_box->SetStringSelection("IGES");
    auto * const other = new wxTextCtrl(m_frame, wxID_ANY, "", wxPoint(20, 300), wxSize(200, -1));
    settle();
    open();
    key(WXK_ESCAPE);
    wait_for_close();
    EXPECT_EQ(count(wxEVT_COMBOBOX), 1);
    open();
    click(*other);
    wait_for_close();
    EXPECT_EQ(count(wxEVT_COMBOBOX), 2);
    EXPECT_EQ(count(wxEVT_COMBOBOX_CLOSEUP), 2);
    EXPECT_EQ(selected(), "IGES");
    EXPECT_EQ(shown(), "IGES");
}

TEST_F(FormatBox, ShowsTheUnknownFormatAgainAfterAClickBesideTheList)
{
    m_box->fill({"STEP", "IGES"});
    auto * const other = new wxTextCtrl(m_frame, wxID_ANY, "", wxPoint(20, 300), wxSize(200, -1));
    std::string seen_by_page;
    m_frame->Bind(wxEVT_COMBOBOX_CLOSEUP, [&](wxCommandEvent &) { seen_by_page = selected(); });
    m_box->add_and_select_unknown();
    settle();
    open();
    click(*other);
    wait_for_close();
    EXPECT_EQ(seen_by_page, unknown());
    EXPECT_EQ(shown(), unknown());
    EXPECT_EQ(count(wxEVT_COMBOBOX), 1);
}

TEST_F(FormatBox, IsUsedWithTheKeysAlone)
{
    m_box->fill({"BREP", "IGES", "STEP"});
    m_box->SetStringSelection("BREP");
    open();
    key(WXK_DOWN);
    key(WXK_RETURN);
    wait_for_close();
    EXPECT_EQ(selected(), "IGES");
    EXPECT_EQ(count(wxEVT_COMBOBOX), 1);
}

TEST_F(FormatBox, KeepsItsChoiceWhenARowIsPointedAtAndNotClicked)
{
    m_box->fill({"BREP", "IGES", "STEP"});
    m_box->SetStringSelection("BREP");
    open();
    point_at(2);
    EXPECT_EQ(list().value(), 0);
    EXPECT_EQ(list().GetFirstSelected(), 2);
    m_box->Dismiss();
    wait_for_close();
    EXPECT_EQ(selected(), "BREP");
    EXPECT_EQ(shown(), "BREP");
}

TEST_F(FormatBox, OpensOnItsChoiceWhateverWasPointedAtBefore)
{
    m_box->fill({"BREP", "IGES", "STEP"});
    m_box->SetStringSelection("BREP");
    open_and_point_and_open_again();
    EXPECT_EQ(list().hover_row(), -1);
    EXPECT_EQ(list().GetFirstSelected(), 0);
    key(WXK_RETURN);
    wait_for_close();
    EXPECT_EQ(selected(), "BREP");
}

TEST_F(FormatBox, OpensOnNothingWhileNothingIsChosen)
{
    m_box->fill({"BREP", "IGES", "STEP"});
    m_box->add_and_select_unknown();
    open_and_point_and_open_again();
    EXPECT_EQ(list().GetFirstSelected(), -1);
    m_box->Dismiss();
    wait_for_close();
    EXPECT_EQ(selected(), unknown());
}

TEST_F(FormatBox, TakesTheRowOfAClickThatNoMoveCameBefore)
{
    m_box->fill({"BREP", "IGES", "STEP"});
    m_box->SetStringSelection("BREP");
    open();
    point_at(2);
    wxRect row;
    list().GetItemRect(1, row);
    wxMouseEvent press(wxEVT_LEFT_DOWN);
    press.SetEventObject(&list());
    press.SetPosition(wxPoint(row.x + 10, row.y + row.height / 2));
    list().ProcessWindowEvent(press);
    wait_for_close();
    EXPECT_EQ(selected(), "IGES");
}

TEST_F(FormatBox, TellsNothingWhenItIsHiddenWithoutBeingOpen)
{
    m_box->HidePopup(true);
    EXPECT_THAT(m_events, ElementsAre());
}

TEST_F(FormatBox, LoadsATranslatorAndShowsItsFormat)
{
    m_box->fill({"BREP", "IGES", "STEP"});
    m_box->add_and_select_unknown();
    EXPECT_EQ(m_box->select_and_load(step()), 1);
    EXPECT_EQ(selected(), "STEP");
    EXPECT_EQ(shown(), "STEP");
    EXPECT_THAT(rows(), ElementsAre("BREP", "IGES", "STEP"));
    EXPECT_TRUE(step()->loaded());
}

TEST_F(FormatBox, ShowsThatItLoadsWhileItDoes)
{
    struct Watched : sdbTranslatorInfo {
        using sdbTranslatorInfo::sdbTranslatorInfo;
        void load(sdbTranslatorLoadStatus &) const override { while_loading = look(); }
        std::function<std::string()> look;
        mutable std::string while_loading;
    };
    auto const format = step_format();
    Watched watched(std::make_shared<sdbTranslatorModule>(), format, 0, nullptr);
    watched.look = [this] { return shown() + ", " + selected(); };
    m_box->fill({"STEP"});
    EXPECT_EQ(m_box->select_and_load(&watched), 1);
    EXPECT_EQ(watched.while_loading, "Loading DLL..., Loading DLL...");
    EXPECT_THAT(rows(), ElementsAre("STEP"));
    EXPECT_EQ(selected(), "STEP");
}

TEST_F(FormatBox, LoadsWhatWasClickedFromTheHandlerOfThePage)
{
    m_box->fill({"BREP", "IGES", "STEP"});
    m_box->add_and_select_unknown();
    int loaded = 0;
    m_frame->Bind(wxEVT_COMBOBOX_CLOSEUP, [&](wxCommandEvent &) { loaded += m_box->load_selected(); });
    open();
    click_on(2);
    EXPECT_EQ(loaded, 1);
    EXPECT_EQ(selected(), "STEP");
    EXPECT_EQ(shown(), "STEP");
    EXPECT_THAT(rows(), ElementsAre("BREP", "IGES", "STEP"));
    open();
    click_on(0);
    EXPECT_EQ(loaded, 2);
    EXPECT_EQ(selected(), "BREP");
}

TEST_F(FormatBox, TakesNoTranslatorForTheUnknownFormat)
{
    m_box->fill({"STEP"});
    EXPECT_EQ(m_box->select_and_load(nullptr), 1);
    EXPECT_EQ(selected(), unknown());
}

TEST_F(FormatBox, TellsWhichModuleDoesNotLoadAndShowsTheUnknownFormat)
{
    auto const format = step_format();
    auto module = std::make_shared<sdbTranslatorModule>();
    module->module_path = folder() / "missing.so";
    sdbTranslatorInfo const broken(module, format, 0, nullptr);
    m_box->fill({"STEP"});
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    EXPECT_EQ(m_box->select_and_load(&broken), 0);
    EXPECT_THAT(boxes.said(), ElementsAre("Error : unable to load " + folder() / "missing.so" + "\n"));
    EXPECT_THAT(boxes.styles(), ElementsAre(testing::Truly(
                                    [](long style) { return (style & (wxOK | wxICON_HAND)) == 516; })));
    EXPECT_THAT(rows(), ElementsAre(unknown(), "STEP"));
    EXPECT_EQ(selected(), unknown());
    EXPECT_EQ(shown(), unknown());
}

TEST_F(FormatBox, FailsWithoutAWordWhenNoFileIsToBlame)
{
    struct Refusing : sdbTranslatorInfo {
        using sdbTranslatorInfo::sdbTranslatorInfo;
        void load(sdbTranslatorLoadStatus & status) const override { status.add_other_failure("no"); }
    };
    auto const format = step_format();
    Refusing const refusing(std::make_shared<sdbTranslatorModule>(), format, 0, nullptr);
    kitModal const no_boxes;
    EXPECT_EQ(m_box->select_and_load(&refusing), 0);
    EXPECT_EQ(selected(), unknown());
}

TEST_F(FormatBox, LoadsWhatIsSelectedIfThereIsSuchAFormat)
{
    m_box->fill({"STEP", "NOSUCH"});
    m_box->SetStringSelection("NOSUCH");
    EXPECT_EQ(m_box->load_selected(), 0);
    m_box->SetStringSelection("STEP");
    EXPECT_EQ(m_box->load_selected(), 1);
    EXPECT_EQ(selected(), "STEP");
    m_box->add_and_select_unknown();
    EXPECT_EQ(m_box->load_selected(), 0);
}

TEST_F(FormatBox, NamesTheFilterForAllFiles)
{
    EXPECT_EQ(m_box->all_files_filter(), utString("All files"));
}

TEST_F(FormatBox, ComesOutOfAResourceFile)
{
    kitXrc const resources(R"(<object class="wxPanel" name="PANEL">
        <object class="sglComboBox" name="ID_BOX"><value>text</value><size>200,-1</size>
          <style>wxCB_READONLY</style></object>
        <object class="sglComboBox" name="ID_HIDDEN"><hidden>1</hidden></object></object>)");
    auto * const panel = wxXmlResource::Get()->LoadPanel(m_frame, "PANEL");
    ASSERT_TRUE(panel);
    auto * const box = find<sglComboBox>(*panel, "ID_BOX");
    EXPECT_EQ(box->GetValue(), "text");
    EXPECT_TRUE(box->HasFlag(wxCB_READONLY));
    EXPECT_EQ(box->GetSize().x, 200);
    EXPECT_EQ(box->Append("A"), 0);
    EXPECT_FALSE(find<sglComboBox>(*panel, "ID_HIDDEN")->IsShown());
}

TEST_F(FormatBox, UsesTheToolkitsStylesByTheirKnownNumbers)
{
    EXPECT_EQ(wxLC_REPORT | wxLC_NO_HEADER | wxLC_SINGLE_SEL | wxLC_SORT_ASCENDING | wxSIMPLE_BORDER,
              33581088);
    EXPECT_EQ(list().GetWindowStyleFlag() & 33581088, 33581088);
    EXPECT_EQ(wxOK | wxICON_HAND, 516);
    EXPECT_EQ(wxCB_SIMPLE, 4);
    EXPECT_EQ(wxCB_SORT, 8);
    EXPECT_EQ(wxCB_READONLY, 16);
    EXPECT_EQ(wxCB_DROPDOWN, 32);
}

TEST_F(FormatBox, LimitsTheHeightOfItsList)
{
    EXPECT_EQ(list().GetAdjustedSize(100, 300, 200), wxSize(100, 200));
    EXPECT_EQ(list().GetAdjustedSize(100, 150, 200), wxSize(100, 150));
}
