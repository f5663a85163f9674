#include "sglDialogMenu.h"

#include "windows/kit/kitWindowTest.h"
#include "windows/kit/kitXrc.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>

namespace {

enum class Frame { none, raised, sunken };

class DialogMenu : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
        m_panel = new wxPanel(m_frame);
        m_frame->SendSizeEvent();
        m_menu = new sglDialogMenu(m_panel, wxID_ANY, "Option &File", wxPoint(40, 30));
        m_panel->Bind(wxEVT_BUTTON, [this](wxCommandEvent & event) { m_pressed.push_back(event.GetId()); });
        settle();
    }

    /// What the edges of the control look like on the screen.
    Frame frame_shown()
    {
        m_menu->Refresh();
        m_menu->Update();
        settle();
        wxSize const size = m_menu->GetSize();
        wxBitmap picture(size);
        {
            wxClientDC source(m_menu);
            wxMemoryDC target(picture);
            target.Blit(wxPoint(), size, &source, wxPoint());
        }
        wxImage const image = picture.ConvertToImage();
        auto const colour = [&](int x, int y) {
            return wxColour(image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y));
        };
        auto const top_left = colour(0, size.y / 2);
        auto const bottom_right = colour(size.x - 1, size.y / 2);
        EXPECT_EQ(top_left, colour(size.x / 2, 0));
        EXPECT_EQ(bottom_right, colour(size.x / 2, size.y - 1));
        auto const light = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNHIGHLIGHT);
        auto const dark = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW);
        if (top_left == light && bottom_right == dark)
            return Frame::raised;
        if (top_left == dark && bottom_right == light)
            return Frame::sunken;
        auto const face = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
        EXPECT_EQ(top_left, face);
        EXPECT_EQ(bottom_right, face);
        return Frame::none;
    }

    void mouse_over(bool over)
    {
        wxUIActionSimulator simulator;
        simulator.MouseMove(over ? m_menu->ClientToScreen(wxPoint(6, 6))
                                 : m_panel->ClientToScreen(wxPoint(300, 200)));
        settle();
    }

    wxFrame * m_frame = nullptr;
    wxPanel * m_panel = nullptr;
    sglDialogMenu * m_menu = nullptr;
    std::vector<int> m_pressed;
};

} // namespace

TEST_F(DialogMenu, RisesUnderTheMouse)
{
    mouse_over(false);
    EXPECT_EQ(frame_shown(), Frame::none);
    mouse_over(true);
    EXPECT_EQ(frame_shown(), Frame::raised);
    mouse_over(false);
    EXPECT_EQ(frame_shown(), Frame::none);
}

TEST_F(DialogMenu, ReportsAPressAndStaysSunkenUntilItsMenuIsDismissed)
{
    click(*m_menu);
    EXPECT_EQ(m_pressed, std::vector<int>{m_menu->GetId()});
    EXPECT_EQ(frame_shown(), Frame::sunken);
    click(*m_menu);
    EXPECT_EQ(m_pressed.size(), 2u);
    EXPECT_EQ(frame_shown(), Frame::sunken);
    m_menu->menu_dismissed();
    EXPECT_EQ(frame_shown(), Frame::raised) << "the mouse is still over it";
    mouse_over(false);
    m_menu->highlight(0);
    EXPECT_EQ(frame_shown(), Frame::none);
}

TEST_F(DialogMenu, KeepsItsFrameWhenTheMouseLeavesWhileTheMenuIsOpen)
{
    click(*m_menu);
    mouse_over(false);
    EXPECT_EQ(frame_shown(), Frame::sunken);
    m_menu->menu_dismissed();
    m_menu->highlight(0);
    EXPECT_EQ(frame_shown(), Frame::none) << "leaving has cleared the highlight";
}

TEST_F(DialogMenu, RisesAndIsPressedFromTheKeyboard)
{
    mouse_over(false);
    focus(*m_menu);
    run_until([this] { return m_menu->HasFocus(); }, 20, "the focus");
    EXPECT_EQ(frame_shown(), Frame::raised);
    for (int const code : {WXK_SPACE, WXK_RETURN, WXK_DOWN})
        key(code);
    EXPECT_EQ(m_pressed.size(), 3u);
}

TEST_F(DialogMenu, LosesItsFrameWithTheFocus)
{
    auto * const text = new wxTextCtrl(m_panel, wxID_ANY, "", wxPoint(40, 100));
    mouse_over(false);
    focus(*m_menu);
    run_until([this] { return m_menu->HasFocus(); }, 20, "the focus");
    focus(*text);
    run_until([text] { return text->HasFocus(); }, 20, "the focus elsewhere");
    EXPECT_EQ(frame_shown(), Frame::none);
}

TEST_F(DialogMenu, TakesTheSizeOfItsTextWithAMarginAround)
{
    wxClientDC dc(m_menu);
    dc.SetFont(m_menu->GetFont());
    int const width = dc.GetTextExtent("Option ").x + dc.GetTextExtent("F").x + dc.GetTextExtent("ile").x;
    EXPECT_NEAR(m_menu->GetSize().x, width + 8, 1);
    EXPECT_EQ(m_menu->GetSize().y, dc.GetTextExtent("Option File").y + 4);
    EXPECT_EQ(m_menu->GetBestSize(), m_menu->GetSize());
    int const before = m_menu->GetSize().x;
    m_menu->SetLabel("A longer Option &File");
    EXPECT_GT(m_menu->GetSize().x, before);
}

TEST_F(DialogMenu, TakesLabelsThatAreTooShortForAMnemonic)
{
    for (char const * label : {"", "F", "&", "&F", "File&"}) {
        m_menu->SetLabel(label);
        EXPECT_EQ(m_menu->GetLabel(), label);
        frame_shown();
    }
}

TEST_F(DialogMenu, ComesOutOfResources)
{
    kitXrc const xrc(
        R"(<object class="wxPanel" name="PANEL"><object class="sglDialogMenu" name="ID_TEST_MENU">
        <label>d.test::_File</label><hidden>1</hidden></object></object>)");
    auto * const panel = wxXmlResource::Get()->LoadPanel(m_frame, "PANEL");
    ASSERT_TRUE(panel);
    auto * const menu = find<sglDialogMenu>(*panel, "ID_TEST_MENU");
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->GetLabel(), "d.test::&File");
    EXPECT_FALSE(menu->IsShown());
    EXPECT_EQ(menu->GetName(), "ID_TEST_MENU");
}
