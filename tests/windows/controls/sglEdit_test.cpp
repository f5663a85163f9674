#include "sglEdit.h"

#include "sglCEditDisplayer.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/kit/kitXrc.h"

#include <thread>

namespace {

class TextPane : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
        m_edit = new sglEdit(m_frame, wxID_ANY, "", wxPoint(0, 0), wxSize(300, 200),
                             wxTE_MULTILINE | wxTE_READONLY);
        settle();
    }

    wxFrame * m_frame = nullptr;
    sglEdit * m_edit = nullptr;
};

char const popup_resource[] = R"(<object class="wxMenu" name="MB_TEST_POPUP">
    <object class="wxMenuItem" name="ID_TEST_COPY"><label>m.test::_Copy</label></object></object>)";

} // namespace

TEST_F(TextPane, AppendsTheTextsOfAWorkerInTheirOrder)
{
    std::thread worker([this] {
        sglCEditDisplayer displayer(*m_edit);
        for (int line = 0; line < 2000; ++line)
            displayer.display((std::to_string(line) + "\n").c_str());
    });
    worker.join();
    EXPECT_EQ(m_edit->GetValue(), "") << "the worker touches nothing but the queue";
    run_until([this] { return m_edit->GetValue().EndsWith("1999\n"); }, 20, "the last text");
    wxString expected;
    for (int line = 0; line < 2000; ++line)
        expected << line << "\n";
    EXPECT_EQ(m_edit->GetValue(), expected);
}

TEST_F(TextPane, ProcessesOneEventForEachCall)
{
    std::vector<wxString> texts;
    m_edit->Bind(sglEVT_WORKER_TEXT, [&](wxCommandEvent & event) {
        texts.push_back(event.GetString());
        EXPECT_EQ(event.GetId(), 0);
        event.Skip();
    });
    sglCEditDisplayer displayer(*m_edit);
    displayer.display("one ");
    displayer.display("two ");
    displayer.display("three");
    settle();
    EXPECT_EQ(texts, (std::vector<wxString>{"one ", "two ", "three"}));
    EXPECT_EQ(m_edit->GetValue(), "one two three");
}

TEST_F(TextPane, LetsTheUsersEventsInWhileTextsPourIn)
{
    sglCEditDisplayer displayer(*m_edit);
    std::string const line(40, 'x');
    for (int count = 0; count < 5000; ++count)
        displayer.display((line + "\n").c_str());
    bool seen_half_way = false;
    wxTimer timer;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent &) {
        auto const lines = m_edit->GetNumberOfLines();
        seen_half_way = seen_half_way || (lines > 1 && lines < 5001);
    });
    timer.Start(1);
    run_until([this] { return m_edit->GetNumberOfLines() == 5001; }, 60, "the last text");
    EXPECT_TRUE(seen_half_way);
}

TEST_F(TextPane, KnowsAllTextBeforeItIsShown)
{
    m_edit->AppendText("first ");
    sglCEditDisplayer displayer(*m_edit);
    std::string all = "first ";
    for (int line = 0; line < 5000; ++line) {
        std::string const text = "line " + std::to_string(line) + "\n";
        displayer.display(text.c_str());
        all += text;
    }
    displayer.display(" part-\xE9");
    all += " part-\xEF\xBF\xBD";
    EXPECT_TRUE(m_edit->all_text_with_waiting() == utString(all));
    EXPECT_EQ(m_edit->get_all_text(), utString("first "));
    run_until([&] { return m_edit->get_all_text() == utString(all); }, 20, "the rest of the text");
    EXPECT_TRUE(m_edit->all_text_with_waiting() == utString(all));
}

TEST_F(TextPane, ForgetsWhatWaitsWhenToldTo)
{
    sglCEditDisplayer displayer(*m_edit);
    displayer.display("forgotten");
    m_edit->discard_waiting_text();
    EXPECT_FALSE(m_edit->IsModified());
    settle();
    EXPECT_EQ(m_edit->GetValue(), "");
    displayer.display("kept");
    settle();
    EXPECT_EQ(m_edit->GetValue(), "kept");
}

TEST_F(TextPane, KeepsTheOrderWhenAHandlerRunsAnEventLoop)
{
    std::string texts;
    m_edit->Bind(sglEVT_WORKER_TEXT, [&](wxCommandEvent & event) {
        event.Skip();
        texts += event.GetString().utf8_string();
        if (event.GetString() == "b")
            settle();
    });
    sglCEditDisplayer displayer(*m_edit);
    for (char const * text : {"a", "b", "c", "d"})
        displayer.display(text);
    settle();
    EXPECT_EQ(texts, "abcd");
    EXPECT_EQ(m_edit->GetValue(), "abcd");
}

TEST_F(TextPane, IsModifiedAsSoonAsTextHasArrived)
{
    EXPECT_FALSE(m_edit->IsModified());
    sglCEditDisplayer(*m_edit).display("");
    settle();
    EXPECT_FALSE(m_edit->IsModified());
    sglCEditDisplayer(*m_edit).display("warning\n");
    EXPECT_TRUE(m_edit->IsModified()) << "before it is shown";
    settle();
    EXPECT_TRUE(m_edit->IsModified());
    m_edit->DiscardEdits();
    EXPECT_FALSE(m_edit->IsModified());
}

TEST_F(TextPane, AppendsAnEventThatIsProcessedAtOnce)
{
    wxCommandEvent event(sglEVT_WORKER_TEXT, 0);
    event.SetString("now");
    m_edit->ProcessWindowEvent(event);
    EXPECT_EQ(m_edit->GetValue(), "now");
    EXPECT_TRUE(m_edit->IsModified());
}

TEST_F(TextPane, ShowsBytesThatAreNoTextAsReplacementCharacters)
{
    sglCEditDisplayer(*m_edit).display("part-\xE9.stp\n");
    settle();
    EXPECT_EQ(m_edit->GetValue(), wxString(L"part-\xFFFD.stp\n"));
}

TEST_F(TextPane, GivesTheEmptyStringAndNoInvalidOneWhenEmpty)
{
    EXPECT_FALSE(m_edit->get_all_text().invalid());
    EXPECT_EQ(m_edit->get_all_text(), "");
    m_edit->AppendText(wxString::FromUTF8("gr\xC3\xBC\xC3\x9F"));
    EXPECT_EQ(m_edit->get_all_text(), "gr\xC3\xBC\xC3\x9F");
}

TEST_F(TextPane, TakesTheLargestMaximumLengthAndGrowsOn)
{
    m_edit->SetMaxLength(2147483646);
    sglCEditDisplayer displayer(*m_edit);
    for (int count = 0; count < 100; ++count)
        displayer.display((std::string(1000, 'z') + "\n").c_str());
    settle();
    EXPECT_EQ(m_edit->get_all_text().length(), 100'100);
}

TEST_F(TextPane, TakesNoMouseWhileItIsLockedAndTextKeepsArriving)
{
    m_edit->AppendText("some words to select");
    m_edit->SetSelection(0, 0);
    kitXrc const xrc(popup_resource);
    m_edit->set_context_menu("MB_TEST_POPUP");
    int menus = 0;
    m_edit->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent &) {
        ++menus;
        wxUIActionSimulator().Char(WXK_ESCAPE);
    });

    wxUIActionSimulator simulator;
    simulator.MouseMove(m_edit->ClientToScreen(wxPoint(25, 8)));
    settle();
    simulator.MouseDblClick();
    settle();
    EXPECT_EQ(m_edit->GetStringSelection(), "");
    simulator.MouseClick(wxMOUSE_BTN_RIGHT);
    settle();
    wxContextMenuEvent key(wxEVT_CONTEXT_MENU, m_edit->GetId());
    m_edit->ProcessWindowEvent(key);
    EXPECT_EQ(menus, 0);
    sglCEditDisplayer(*m_edit).display("!");
    settle();
    EXPECT_TRUE(m_edit->GetValue().EndsWith("!"));

    m_edit->editable(1);
    simulator.MouseMove(m_edit->ClientToScreen(wxPoint(26, 9)));
    settle();
    simulator.MouseDblClick();
    run_until([this] { return m_edit->GetStringSelection() != ""; }, 20, "the selection");
}

TEST_F(TextPane, OpensItsContextMenuWhenItMayBeUsed)
{
    kitXrc const xrc(popup_resource);
    m_edit->set_context_menu("MB_TEST_POPUP");
    m_edit->editable(1);
    wxString label;
    m_edit->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent & event) {
        label = event.GetMenu()->FindItemByPosition(0)->GetItemLabel();
        wxUIActionSimulator().Char(WXK_ESCAPE);
    });
    wxMouseEvent press(wxEVT_RIGHT_DOWN);
    press.SetPosition(wxPoint(-1, -1));
    m_edit->ProcessWindowEvent(press);
    EXPECT_EQ(label, "&Copy");
    label.clear();
    wxContextMenuEvent key(wxEVT_CONTEXT_MENU, m_edit->GetId());
    m_edit->ProcessWindowEvent(key);
    EXPECT_EQ(label, "&Copy") << "from the keyboard";
}

TEST_F(TextPane, LeavesTheRightButtonToOthersWithoutAMenuName)
{
    m_edit->editable(1);
    wxMouseEvent press(wxEVT_RIGHT_DOWN);
    EXPECT_FALSE(m_edit->GetEventHandler()->ProcessEvent(press));
    m_edit->editable(0);
    EXPECT_TRUE(m_edit->GetEventHandler()->ProcessEvent(press));
}

TEST_F(TextPane, OpensNoMenuThatIsNotInTheResources)
{
    wxLogNull const quiet;
    m_edit->editable(1);
    m_edit->set_context_menu("MB_NO_SUCH_MENU");
    wxMouseEvent press(wxEVT_RIGHT_DOWN);
    EXPECT_TRUE(m_edit->GetEventHandler()->ProcessEvent(press));
}

TEST_F(TextPane, ComesOutOfResources)
{
    kitXrc const xrc(R"(<object class="wxPanel" name="PANEL"><object class="sglEdit" name="ID_TEST_EDIT">
        <style>wxTE_MULTILINE|wxTE_READONLY</style><size>120,90</size><value>first</value>
        <maxlength>2147483646</maxlength><hidden>1</hidden></object></object>)");
    auto * const panel = wxXmlResource::Get()->LoadPanel(m_frame, "PANEL");
    ASSERT_TRUE(panel);
    auto * const edit = find<sglEdit>(*panel, "ID_TEST_EDIT");
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->GetValue(), "first");
    EXPECT_TRUE(edit->IsMultiLine());
    EXPECT_FALSE(edit->IsEditable());
    EXPECT_FALSE(edit->IsShown());
    EXPECT_EQ(edit->GetSize(), wxSize(120, 90));
    EXPECT_EQ(edit->GetName(), "ID_TEST_EDIT");
}
