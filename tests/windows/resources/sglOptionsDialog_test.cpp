#include "windows/resources/kitOptions.h"

#include "sglCaptionText.h"
#include "sglResourceDialogTreeData.h"

#include <wx/settings.h>
#include <wx/treectrl.h>

namespace {

struct OptionsDialog : kitOptionsTest {
    wxTreeCtrl * tree() { return find<wxTreeCtrl>(panel(), "IDC_OPTIONS_TREE"); }
    wxStaticText * marker() { return find<wxStaticText>(panel(), "IDC_OPTIONS_COORDINATES"); }
    void paint()
    {
        initialise();
        panel().Refresh();
        settle();
    }
    wxPoint marker_corner() { return marker()->GetPosition(); }
};

/// A page that writes down which buttons it was told of.
struct Recorder : sglOptionsPage {
    explicit Recorder(wxWindow * parent) : sglOptionsPage(parent) {}
    utString const & name() const override { return m_name; }
    int ok_pressed() override { return note("ok"); }
    int apply_pressed() override { return note("apply"); }
    int cancel_pressed() override { return note("cancel"); }
    int defaults_pressed() override { return note("defaults"); }
    int note(std::string const & what)
    {
        told.push_back(what);
        return 0;
    }

    std::vector<std::string> told;

private:
    utString m_name = "Recorder";
};

} // namespace

TEST_F(OptionsDialog, WithoutPagesPaintsAnEmptyCaption)
{
    paint();
    EXPECT_EQ(panel().active_page(), nullptr);
    wxRect const bar = panel().caption_rectangle();
    wxImage const picture = picture_of(panel());
    auto const wanted = wxSystemSettings::GetColour(wxSYS_COLOUR_INACTIVECAPTION);
    // All of the inside has the one colour.
    for (int x = bar.x + 1; x < bar.GetRight(); x += 3) {
        int const y = bar.y + 16;
        ASSERT_EQ(wxColour(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)),
                  wxColour(wanted.Red(), wanted.Green(), wanted.Blue()))
            << x;
    }
}

TEST_F(OptionsDialog, WithoutPagesHasSelectedItsInitialPageAtTheFirstPaint)
{
    paint();
    auto * const late = add_page("Late");
    panel().create_page(late);
    panel().Refresh();
    settle();
    EXPECT_EQ(panel().active_page(), nullptr) << "an initial page is selected once";
}

TEST_F(OptionsDialog, StaysOnThePageThatTheUserHasSelectedWhenItIsPaintedAgain)
{
    add_page("First");
    auto * const other = add_page("Other");
    paint();
    tree()->SelectItem(other->tree_item());
    panel().Refresh();
    settle();
    EXPECT_EQ(panel().active_page(), other);
}

TEST_F(OptionsDialog, OpensOnTheFirstLeafOfTheTree)
{
    auto * const top = add_page("Top");
    auto * const nested = add_page("Nested", top);
    auto * const leaf = add_page("Leaf", nested);
    auto * const other = add_page("Other");
    initialise();
    EXPECT_EQ(panel().active_page(), nullptr); // not before it is painted
    EXPECT_TRUE(other->IsShown());
    settle();
    panel().Refresh();
    run_until([&] { return panel().active_page() != nullptr; }, 20, "the first page");
    EXPECT_EQ(panel().active_page(), leaf);
    EXPECT_TRUE(leaf->IsShown());
    EXPECT_FALSE(top->IsShown());
    EXPECT_FALSE(nested->IsShown());
    EXPECT_FALSE(other->IsShown());
}

TEST_F(OptionsDialog, ListsPagesInTheOrderInWhichTheyWereAdded)
{
    auto * const a = add_page("A");
    add_page("A1", a);
    add_page("A2", a);
    add_page("B");
    initialise();
    wxTreeItemIdValue cookie;
    auto const root = tree()->GetRootItem();
    auto const first = tree()->GetFirstChild(root, cookie);
    EXPECT_EQ(tree()->GetItemText(root), "root");
    EXPECT_EQ(tree()->GetItemText(first), "A");
    EXPECT_EQ(tree()->GetItemText(tree()->GetNextChild(root, cookie)), "B");
    wxTreeItemIdValue inner;
    EXPECT_EQ(tree()->GetItemText(tree()->GetFirstChild(first, inner)), "A1");
    EXPECT_EQ(tree()->GetItemText(tree()->GetNextChild(first, inner)), "A2");
    EXPECT_EQ(a->tree_item(), first);
    auto const * const data = static_cast<sglResourceDialogTreeData *>(tree()->GetItemData(first));
    EXPECT_EQ(data->page(), a);
}

TEST_F(OptionsDialog, KeyboardGoesFromTheTreeToThePageAndThenToTheButtons)
{
    auto * const page = add_page("Page");
    auto * const other = add_page("Other");
    initialise();
    auto const & children = panel().GetChildren();
    auto const place = [&](wxWindow * window) { return children.IndexOf(window); };
    EXPECT_LT(place(tree()), place(page));
    EXPECT_LT(place(page), place(other));
    EXPECT_LT(place(other), place(find<wxButton>(panel(), "IDC_OPTIONS_OK")));
}

TEST_F(OptionsDialog, PagesStandWhereTheMarkerIsAndAreOfItsSize)
{
    auto * const page = add_page("A");
    EXPECT_TRUE(marker()->IsShown());
    paint();
    EXPECT_FALSE(marker()->IsShown());
    EXPECT_EQ(page->GetRect(), marker()->GetRect());
    EXPECT_GT(page->GetSize().x, 200);
    EXPECT_GE(page->GetPosition().y, panel().caption_rectangle().GetBottom());
}

TEST_F(OptionsDialog, ShowsThePageThatIsSelectedInTheTree)
{
    auto * const a = add_page("A");
    auto * const b = add_page("B");
    paint();
    EXPECT_TRUE(a->IsShown());
    tree()->SelectItem(b->tree_item());
    settle();
    EXPECT_FALSE(a->IsShown());
    EXPECT_TRUE(b->IsShown());
    EXPECT_EQ(panel().active_page(), b);
}

TEST_F(OptionsDialog, MovingBeforeItIsInitialisedLeavesThePagesAlone)
{
    auto * const page = add_page("A");
    page->Move(3, 4);
    wxMoveEvent event(wxPoint(10, 10), panel().GetId());
    panel().ProcessWindowEvent(event);
    EXPECT_EQ(page->GetPosition(), wxPoint(3, 4));
    EXPECT_TRUE(event.GetSkipped());
    initialise();
    page->Move(3, 4);
    panel().ProcessWindowEvent(event);
    EXPECT_EQ(page->GetPosition(), marker_corner());
}

TEST_F(OptionsDialog, CaptionIs32PixelsHighWhateverTheFontAndComputedOnce)
{
    wxFont font = panel().GetFont();
    font.SetPointSize(40);
    panel().SetFont(font);
    add_page("A");
    paint();
    wxRect const bar = panel().caption_rectangle();
    wxRect const tree_place = tree()->GetRect();
    EXPECT_EQ(bar.height, 32);
    EXPECT_EQ(bar.x, tree_place.x + tree_place.width + 4);
    EXPECT_EQ(bar.y, tree_place.y);
    EXPECT_EQ(bar.width, panel().GetRect().x + panel().GetRect().width - 11 - bar.x);
    tree()->SetSize(tree_place.width + 50, tree_place.height);
    EXPECT_EQ(panel().caption_rectangle(), bar);
}

TEST_F(OptionsDialog, PlaceOfThePanelInItsParentCountsInTheCaption)
{
    panel().Move(30, 20);
    wxRect const bar = panel().caption_rectangle();
    EXPECT_EQ(bar.x + bar.width, 30 + panel().GetSize().x - 11);
}

TEST_F(OptionsDialog, CaptionHasARaisedEdge)
{
    paint();
    wxRect const bar = panel().caption_rectangle();
    wxImage const picture = picture_of(panel());
    auto const at = [&](int x, int y) {
        return wxColour(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y));
    };
    auto const opaque = [](wxSystemColour index) {
        auto const colour = wxSystemSettings::GetColour(index);
        return wxColour(colour.Red(), colour.Green(), colour.Blue());
    };
    auto const light = opaque(wxSYS_COLOUR_BTNHIGHLIGHT);
    auto const dark = opaque(wxSYS_COLOUR_3DDKSHADOW);
    EXPECT_EQ(at(bar.x, bar.y), light);
    EXPECT_EQ(at(bar.x + bar.width - 2, bar.y), light);
    EXPECT_EQ(at(bar.x, bar.y + bar.height - 2), light);
    EXPECT_EQ(at(bar.x + bar.width - 1, bar.y), dark);
    EXPECT_EQ(at(bar.x + bar.width - 1, bar.y + bar.height - 1), dark);
    EXPECT_EQ(at(bar.x, bar.y + bar.height - 1), dark);
    EXPECT_NE(at(bar.x + 1, bar.y + 1), light);
}

TEST_F(OptionsDialog, CaptionSaysThePageInAColourThatCanBeRead)
{
    add_page("Geometry");
    paint();
    wxRect const bar = panel().caption_rectangle();
    wxImage const picture = picture_of(panel());
    wxColour const ground = wxSystemSettings::GetColour(wxSYS_COLOUR_INACTIVECAPTION);
    double most = 0.0;
    for (int x = bar.x + 2; x < bar.GetRight() - 1; ++x)
        for (int y = bar.y + 2; y < bar.GetBottom() - 1; ++y)
            most = std::max(most, sgl_contrast(ground, wxColour(picture.GetRed(x, y), picture.GetGreen(x, y),
                                                                picture.GetBlue(x, y))));
    EXPECT_GE(most, 4.0);
}

TEST_F(OptionsDialog, ButtonsReachEveryPageAndThenTheDialogAroundThem)
{
    auto * const a = new Recorder(&panel());
    auto * const b = new Recorder(&panel());
    panel().add_page(a);
    panel().add_page(b);
    initialise();
    std::vector<std::size_t> told_when_seen;
    frame()->Bind(wxEVT_BUTTON, [&](wxCommandEvent &) { told_when_seen.push_back(b->told.size()); });
    for (char const * id :
         {"IDC_OPTIONS_APPLY", "IDC_OPTIONS_OK", "IDC_OPTIONS_CANCEL", "IDC_OPTIONS_DEFAULTS"})
        press(panel(), id);
    std::vector<std::string> const all{"apply", "ok", "cancel", "defaults"};
    EXPECT_EQ(a->told, all);
    EXPECT_EQ(b->told, all);
    EXPECT_EQ(told_when_seen, (std::vector<std::size_t>{1, 2, 3, 4}));
}

TEST_F(OptionsDialog, ButtonsHaveTheRoomThatTheirTextsNeed)
{
    for (char const * id : {"IDC_OPTIONS_OK", "IDC_OPTIONS_CANCEL", "IDC_OPTIONS_APPLY",
                            "IDC_OPTIONS_DEFAULTS", "IDC_OPTIONS_HELP"}) {
        auto * const button = find<wxButton>(panel(), id);
        EXPECT_GE(button->GetSize().x, button->GetBestSize().x) << id;
        EXPECT_EQ(button->GetLabel().find("::"), wxString::npos) << id;
        EXPECT_TRUE(panel().GetClientRect().Contains(button->GetRect())) << id;
    }
    EXPECT_TRUE(tree()->HasFlag(wxTR_HIDE_ROOT));
}

TEST_F(OptionsDialog, WantedColourIsKeptWhereItCanBeRead)
{
    EXPECT_EQ(sgl_readable_colour(*wxWHITE, wxColour(0x33, 0x33, 0x33)), wxColour(0x33, 0x33, 0x33));
    EXPECT_NEAR(sgl_contrast(*wxWHITE, *wxBLACK), 21.0, 1e-9);
    for (int grey = 0; grey < 256; grey += 5) {
        wxColour const ground(static_cast<unsigned char>(grey), static_cast<unsigned char>(grey),
                              static_cast<unsigned char>(grey));
        EXPECT_GE(sgl_contrast(ground, sgl_readable_colour(ground, ground)), 4.5) << grey;
    }
}

TEST_F(OptionsDialog, CaptionFontIsAsLargeAsTheBarAllows)
{
    wxClientDC dc(&panel());
    wxFont font = panel().GetFont();
    font.SetPointSize(18);
    EXPECT_EQ(sgl_fitting_font(dc, font, "Geometry", 1000), font);
    font.SetPointSize(60);
    wxFont const smaller = sgl_fitting_font(dc, font, "Geometry", 32);
    EXPECT_LT(smaller.GetPointSize(), 60);
    EXPECT_GT(smaller.GetPointSize(), 8);
    dc.SetFont(smaller);
    EXPECT_LE(dc.GetTextExtent("Geometry").GetHeight(), 32);
}
