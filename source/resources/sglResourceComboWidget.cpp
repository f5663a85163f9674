#include "sglResourceComboWidget.h"

#include <algorithm>

#include "sglResourceOptionsPage.h"
#include "sglResourceRow.h"

#include "wxt/wxtStringConverter.h"

#include <wx/stattext.h>

wxBEGIN_EVENT_TABLE(sglResourceComboBox, wxComboBox)
    EVT_TEXT(wxID_ANY, sglResourceComboBox::OnSelChange)
wxEND_EVENT_TABLE()

namespace {

/// The narrowest that a drop-down list can be, in dialog units.
constexpr int narrowest = 47;

} // namespace

void sglResourceComboBox::OnSelChange(wxCommandEvent &)
{
    if (m_widget)
        m_widget->control_changed();
}

sglResourceComboWidget::sglResourceComboWidget(sdbOrderedStringPairs const & pairs,
                                               sglResourceDetails const & details, wxRect & rectangle,
                                               sglResourceOptionsPage * page)
    : sglResourceWidget(details, page), m_combo_box(new sglResourceComboBox(this)), m_pairs(pairs)
{
    create(rectangle);
}

sglResourceComboWidget::~sglResourceComboWidget()
{
    m_combo_box->forget_widget();
}

wxWindow * sglResourceComboWidget::tooltip_window()
{
    return m_label;
}

int sglResourceComboWidget::create(wxRect & rectangle)
{
    auto const [x, y] = rectangle.GetPosition();
    int const w = rectangle.width;
    int const least = page()->ConvertDialogToPixels(wxSize(narrowest, 0)).GetWidth();
    if (!m_combo_box->Create(page(), wxID_ANY, wxString(), wxPoint(x + w - 1 - least, y), wxSize(least, -1),
                             0, nullptr, wxCB_READONLY))
        return 0;
    m_combo_box->SetFont(page()->GetFont());
    int widest = 0;
    for (auto pair = m_pairs.iterator(); ++pair;) {
        wxString const text = wxtStringConverter::to_wx(pair().string2());
        widest =
            std::max(widest, m_combo_box->GetSizeFromTextSize(m_combo_box->GetTextExtent(text)).GetWidth());
        m_combo_box->Append(text);
    }
    if (widest > least) {
        m_combo_box->Move(x - 1 + w - widest, y);
        m_combo_box->SetSize(widest, -1);
    }
    m_label = new wxStaticText(page(), wxID_ANY, wxtStringConverter::to_wx(resource().short_description()),
                               wxPoint(x, sgl_row_label_y(rectangle, *m_combo_box)), wxDefaultSize, 0);
    sgl_fit_row(rectangle, *m_label, *m_combo_box);
    return 1;
}

void sglResourceComboWidget::set_value()
{
    // A value that is none of the list leaves nothing selected.
    m_combo_box->SetSelection(
        m_combo_box->FindString(wxtStringConverter::to_wx(english_to_foreign(current_value())), true));
}

void sglResourceComboWidget::resource_changed()
{
    set_value();
    add_resource(current_value());
}

void sglResourceComboWidget::control_changed()
{
    add_resource(foreign_to_english(wxtStringConverter::to_ut(m_combo_box->GetStringSelection())));
}
