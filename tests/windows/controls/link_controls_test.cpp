#include "sglBitmapWithLink.h"
#include "sglStaticWithLink.h"

#include "windows/kit/kitBrowser.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/kit/kitXrc.h"

namespace {

using LinkControls = kitWindowTest;

/// The text and address of each piece, in order.
std::vector<std::pair<std::string, std::string>> pieces(wxRichTextCtrl & control)
{
    std::vector<std::pair<std::string, std::string>> found;
    for (auto & child : control.GetBuffer().GetChildren())
        for (auto & part : dynamic_cast<wxRichTextParagraph &>(*child).GetChildren()) {
            auto const & text = dynamic_cast<wxRichTextPlainText &>(*part);
            found.emplace_back(text.GetText().utf8_string(), text.GetAttributes().GetURL().utf8_string());
        }
    return found;
}

using Pieces = std::vector<std::pair<std::string, std::string>>;

} // namespace

TEST_F(LinkControls, OpenTheAddressOfABitmapThatIsClicked)
{
    kitBrowser const browser;
    auto * const frame = show_frame();
    auto * const bitmap =
        new sglBitmapWithLink(frame, wxID_ANY, wxBitmap(60, 40), wxPoint(5, 5), wxSize(60, 40));
    bitmap->set_link("https://example.org/a_page");
    EXPECT_TRUE(bitmap->GetCursor().IsOk());
    settle();
    click(*bitmap);
    run_until([&] { return browser.opened() == "open <https://example.org/a_page>\n"; }, 20, "the browser");
}

TEST_F(LinkControls, CallTheBrowserWithAnEmptyAddressForABitmapWithoutOne)
{
    kitBrowser const browser;
    auto * const frame = show_frame();
    auto * const bitmap = new sglBitmapWithLink(frame, wxID_ANY, wxBitmap(60, 40));
    wxMouseEvent press(wxEVT_LEFT_DOWN);
    bitmap->ProcessWindowEvent(press);
    // The toolkit puts the scheme in front.
    run_until([&] { return browser.opened() == "open <http://>\n"; }, 20, "the browser");
}

TEST_F(LinkControls, ShowATooltipOverABitmap)
{
    auto * const bitmap = new sglBitmapWithLink(show_frame(), wxID_ANY, wxBitmap(10, 10));
    bitmap->set_tooltip("To the pages of the maker");
    EXPECT_EQ(bitmap->GetToolTipText(), "To the pages of the maker");
}

TEST_F(LinkControls, SplitATextAroundItsAddress)
{
    auto * const text =
        new sglStaticWithLink(show_frame(), wxID_ANY, "", wxDefaultPosition, wxSize(300, 100));
    text->set_text("See www.example.org for more", "www.example.org");
    EXPECT_EQ(pieces(*text),
              (Pieces{{"See ", ""}, {"www.example.org", "www.example.org"}, {" for more", ""}}));
    wxRichTextAttr style;
    ASSERT_TRUE(text->GetStyle(6, style));
    EXPECT_TRUE(style.GetFontUnderlined());
    EXPECT_EQ(style.GetTextColour(), *wxBLUE);
}

TEST_F(LinkControls, WriteNoPartBeforeAnAddressAtTheVeryStart)
{
    auto * const text =
        new sglStaticWithLink(show_frame(), wxID_ANY, "", wxDefaultPosition, wxSize(300, 100));
    text->set_text("www.example.org has more", "www.example.org");
    EXPECT_EQ(pieces(*text), (Pieces{{"www.example.org", "www.example.org"}, {" has more", ""}}));
}

TEST_F(LinkControls, WriteNoPartBehindAnAddressAtTheEnd)
{
    auto * const text =
        new sglStaticWithLink(show_frame(), wxID_ANY, "", wxDefaultPosition, wxSize(300, 100));
    text->set_text("More: www.example.org", "www.example.org");
    EXPECT_EQ(pieces(*text), (Pieces{{"More: ", ""}, {"www.example.org", "www.example.org"}}));
}

TEST_F(LinkControls, WriteATextWithoutAnAddressAsItIs)
{
    auto * const text =
        new sglStaticWithLink(show_frame(), wxID_ANY, "", wxDefaultPosition, wxSize(300, 100));
    text->set_text("No address here", utString::make_invalid());
    EXPECT_EQ(pieces(*text), (Pieces{{"No address here", ""}}));
}

TEST_F(LinkControls, OpenTheAddressInATextThatIsClicked)
{
    kitBrowser const browser;
    auto * const frame = show_frame();
    auto * const text = new sglStaticWithLink(frame, wxID_ANY, "", wxPoint(0, 0), wxSize(300, 100),
                                              wxTE_MULTILINE | wxTE_READONLY);
    text->set_text("www.example.org", "www.example.org");
    settle();
    wxUIActionSimulator simulator;
    simulator.MouseMove(text->ClientToScreen(wxPoint(40, 12)));
    settle();
    simulator.MouseClick();
    run_until([&] { return browser.opened() == "open <http://www.example.org>\n"; }, 20, "the browser");
}

TEST_F(LinkControls, ComeOutOfResources)
{
    kitXrc const xrc(R"(<object class="wxPanel" name="PANEL">
      <object class="sglLinkBitmapCtrl" name="ID_TEST_BITMAP">
        <bitmap stock_id="wxART_INFORMATION"/><tooltip>Opens a_page</tooltip>
        <link>https://example.org/a_page</link><hidden>1</hidden></object>
      <object class="sglLinkTextCtrl" name="ID_TEST_TEXT"><size>300,100</size><style>wxTE_READONLY|wxTE_MULTILINE</style>
        <label>d.test::See https://example.org/a_page</label><link>https://example.org/a_page</link></object>
      </object>)");
    auto * const panel = wxXmlResource::Get()->LoadPanel(show_frame(), "PANEL");
    ASSERT_TRUE(panel);
    auto * const bitmap = find<sglBitmapWithLink>(*panel, "ID_TEST_BITMAP");
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->GetToolTipText(), "Opens a_page");
    EXPECT_FALSE(bitmap->IsShown());
    EXPECT_TRUE(bitmap->GetBitmap().IsOk());
    auto * const text = find<sglStaticWithLink>(*panel, "ID_TEST_TEXT");
    ASSERT_TRUE(text);
    EXPECT_EQ(pieces(*text),
              (Pieces{{"See ", ""}, {"https://example.org/a_page", "https://example.org/a_page"}}));
    EXPECT_EQ(text->GetBackgroundColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    EXPECT_FALSE(text->IsEditable());
}
