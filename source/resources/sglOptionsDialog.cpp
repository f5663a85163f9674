#include "sglOptionsDialog.h"

#include "sglCaptionText.h"
#include "sglDialog.h"
#include "sglOptionsPage.h"
#include "sglResourceDialogTreeData.h"

#include "wxt/wxtStringConverter.h"

#include <wx/dcclient.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/treectrl.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglOptionsDialog, wxPanel)
    EVT_MOVE(sglOptionsDialog::OnMove)
    EVT_PAINT(sglOptionsDialog::OnPaint)
    EVT_TREE_SEL_CHANGED(XRCID("IDC_OPTIONS_TREE"), sglOptionsDialog::OnSelchangedTree)
    EVT_BUTTON(XRCID("IDC_OPTIONS_APPLY"), sglOptionsDialog::OnApply)
    EVT_BUTTON(XRCID("IDC_OPTIONS_CANCEL"), sglOptionsDialog::OnCancel)
    EVT_BUTTON(XRCID("IDC_OPTIONS_OK"), sglOptionsDialog::OnOk)
    EVT_BUTTON(XRCID("IDC_OPTIONS_DEFAULTS"), sglOptionsDialog::OnDefaults)
    EVT_INIT_DIALOG(sglOptionsDialog::OnInitDialog)
wxEND_EVENT_TABLE()

namespace {

constexpr int caption_points = 18;
constexpr int caption_height = 32;
constexpr int caption_gap = 4;     ///< between the tree and the caption, and before the text
constexpr int caption_margin = 11; ///< right of the caption

/// Fills the rectangle between two corners, in whichever order they are given; the right and lower sides
/// do not belong to it. A brush covers whole pixels, where a pen would leave the ends of a thin line
/// pale.
void fill_rectangle(wxDC & dc, wxColour const & colour, int x, int y, int width, int height)
{
    if (width < 0) {
        x += width;
        width = -width;
    }
    if (height < 0) {
        y += height;
        height = -height;
    }
    dc.SetBrush(wxBrush(colour));
    dc.DrawRectangle(x, y, width, height);
}

} // namespace

sglOptionsDialog::sglOptionsDialog(wxWindow * parent)
{
    wxXmlResource::Get()->LoadPanel(this, parent, "DLG_OPTIONS_DIALOG");
    m_tree = XRCCTRL(*this, "IDC_OPTIONS_TREE", wxTreeCtrl);
    m_coordinates = XRCCTRL(*this, "IDC_OPTIONS_COORDINATES", wxStaticText);
    sglTranslateWndText("vmrgrlib", this, 1);
    // The buttons have the room that the texts of this language need.
    if (auto * const sizer = GetSizer())
        sizer->Fit(this);
}

void sglOptionsDialog::add_page(sglOptionsPage * page)
{
    m_pages.append(page);
}

sglOptionsPage * sglOptionsDialog::active_page() const
{
    auto const selected = m_tree->GetSelection();
    auto const * const data =
        selected.IsOk() ? static_cast<sglResourceDialogTreeData *>(m_tree->GetItemData(selected)) : nullptr;
    return data ? data->page() : nullptr;
}

wxRect sglOptionsDialog::caption_rectangle()
{
    if (m_caption_rectangle.width >= 1 && m_caption_rectangle.height >= 1)
        return m_caption_rectangle;
    wxRect const tree = m_tree->GetRect();
    wxRect const panel = GetRect();
    int const x = tree.x + tree.width + caption_gap;
    // The panel's own place in its parent belongs to the sum.
    m_caption_rectangle = wxRect(x, tree.y, panel.x + panel.width - caption_margin - x, caption_height);
    return m_caption_rectangle;
}

int sglOptionsDialog::create_page(sglOptionsPage * page)
{
    auto const above = page->parent() ? page->parent()->tree_item() : m_tree->GetRootItem();
    page->set_tree_item(m_tree->InsertItem(above, m_tree->GetLastChild(above),
                                           wxtStringConverter::to_wx(page->name()), -1, -1,
                                           new sglResourceDialogTreeData(page)));
    // From the tree the keyboard goes on to the page, and from there to the buttons.
    wxWindow * before = m_tree;
    for (int i = 0; i < m_pages.count() && m_pages[i] != page; ++i)
        before = m_pages[i];
    page->MoveAfterInTabOrder(before);
    return 1;
}

void sglOptionsDialog::position_children()
{
    wxPoint const corner = m_coordinates->GetRect().GetTopLeft();
    for (auto * const page : m_pages)
        page->Move(corner);
}

void sglOptionsDialog::select_initial_page()
{
    if (!m_pages.empty()) {
        auto item = m_pages[0]->tree_item();
        wxTreeItemIdValue cookie;
        for (auto child = item; child.IsOk(); child = m_tree->GetFirstChild(item, cookie))
            item = child;
        m_tree->SelectItem(item, true);
        m_tree->Expand(item);
    }
    m_initial_page_selected = 1;
}

void sglOptionsDialog::OnInitDialog(wxInitDialogEvent &)
{
    m_initialised = 1;
    m_coordinates->Hide();
    wxFont const font = GetFont();
    if (!font.IsOk())
        return;
    m_caption_font = font;
    m_caption_font.SetPointSize(caption_points);
    m_tree->AddRoot("root", -1, -1, nullptr);
    wxSize const size = m_coordinates->GetSize();
    for (auto * const page : m_pages) {
        wxInitDialogEvent event(page->GetId());
        event.SetEventObject(page);
        page->ProcessWindowEvent(event);
        if (!create_page(page))
            break;
        page->SetSize(size);
    }
    position_children();
}

void sglOptionsDialog::OnMove(wxMoveEvent & event)
{
    event.Skip();
    if (m_initialised)
        position_children();
}

void sglOptionsDialog::OnSelchangedTree(wxTreeEvent &)
{
    for (auto * const page : m_pages)
        page->Hide();
    if (auto * const page = active_page())
        page->Show(true);
    RefreshRect(caption_rectangle(), false);
}

void sglOptionsDialog::OnPaint(wxPaintEvent &)
{
    wxPaintDC dc(this);
    // A panel that is on the screen before it is told to initialise has no items in its tree yet.
    if (!m_initialised)
        return;
    if (!m_initial_page_selected)
        select_initial_page();
    wxRect const bar = caption_rectangle();
    draw_caption_bar(dc, bar);
    draw_caption_text(dc, bar);
}

void sglOptionsDialog::draw_caption_bar(wxDC & dc, wxRect const & bar) const
{
    auto const [x, y] = bar.GetTopLeft();
    auto const [w, h] = bar.GetSize();
    wxDCPenChanger const pen(dc, *wxTRANSPARENT_PEN);
    wxDCBrushChanger const brush(dc, *wxTRANSPARENT_BRUSH);
    fill_rectangle(dc, wxSystemSettings::GetColour(wxSYS_COLOUR_INACTIVECAPTION), x, y, w, h);
    auto const light = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNHIGHLIGHT);
    fill_rectangle(dc, light, x, y, w - 1, 1);
    fill_rectangle(dc, light, x, y, 1, h - 1);
    auto const dark = wxSystemSettings::GetColour(wxSYS_COLOUR_3DDKSHADOW);
    fill_rectangle(dc, dark, x + w, y, -1, h);
    fill_rectangle(dc, dark, x, y + h, w, -1);
}

void sglOptionsDialog::draw_caption_text(wxDC & dc, wxRect const & bar) const
{
    if (!m_caption_font.IsOk())
        return;
    auto const * const page = active_page();
    wxString const text = page ? wxtStringConverter::to_wx(page->name()) : wxString();
    wxDCFontChanger const font(dc, sgl_fitting_font(dc, m_caption_font, text, bar.height));
    dc.SetTextForeground(sgl_readable_colour(wxSystemSettings::GetColour(wxSYS_COLOUR_INACTIVECAPTION),
                                             wxSystemSettings::GetColour(wxSYS_COLOUR_CAPTIONTEXT)));
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    int const text_height = dc.GetTextExtent(text).GetHeight();
    dc.DrawText(text, bar.x + caption_gap, bar.y - 1 + bar.height - (text_height + bar.height) / 2);
}

/// The Enter key presses the default button and leaves the focus in the field; what was typed there counts
/// once the field has lost it.
void sglOptionsDialog::take_focus_from_page(int button)
{
    auto * const window = FindWindow(button);
    for (auto const * focused = wxWindow::FindFocus(); window && focused; focused = focused->GetParent())
        if (dynamic_cast<sglOptionsPage const *>(focused) && focused->GetParent() == this) {
            window->SetFocus();
            return;
        }
}

void sglOptionsDialog::OnApply(wxCommandEvent & event)
{
    take_focus_from_page(event.GetId());
    for (auto * const page : m_pages)
        page->apply_pressed();
    event.Skip();
}

void sglOptionsDialog::OnCancel(wxCommandEvent & event)
{
    for (auto * const page : m_pages)
        page->cancel_pressed();
    event.Skip();
}

void sglOptionsDialog::OnOk(wxCommandEvent & event)
{
    take_focus_from_page(event.GetId());
    for (auto * const page : m_pages)
        page->ok_pressed();
    event.Skip();
}

void sglOptionsDialog::OnDefaults(wxCommandEvent & event)
{
    for (auto * const page : m_pages)
        page->defaults_pressed();
    event.Skip();
}
