#include "sglResourceCheckWidget.h"

#include "sglResourceOptionsPage.h"

#include "wxt/wxtStringConverter.h"

wxBEGIN_EVENT_TABLE(sglResourceCheckBox, wxCheckBox)
    EVT_CHECKBOX(wxID_ANY, sglResourceCheckBox::OnClicked)
wxEND_EVENT_TABLE()

void sglResourceCheckBox::OnClicked(wxCommandEvent &)
{
    if (m_widget)
        m_widget->control_changed();
}

sglResourceCheckWidget::sglResourceCheckWidget(sglResourceDetails const & details, wxRect & rectangle,
                                               sglResourceOptionsPage * page)
    : sglResourceWidget(details, page), m_check_box(new sglResourceCheckBox(this))
{
    create(rectangle);
}

sglResourceCheckWidget::~sglResourceCheckWidget()
{
    m_check_box->forget_widget();
}

int sglResourceCheckWidget::create(wxRect & rectangle)
{
    m_check_box->Create(page(), wxID_ANY, wxtStringConverter::to_wx(resource().short_description()),
                        rectangle.GetPosition(), rectangle.GetSize(), 0);
    m_check_box->SetFont(page()->GetFont());
    return 1;
}

void sglResourceCheckWidget::set_value()
{
    m_check_box->SetValue(current_value().case_compare("True") == 0);
}

void sglResourceCheckWidget::resource_changed()
{
    set_value();
    add_resource(current_value());
}

void sglResourceCheckWidget::control_changed()
{
    add_resource(m_check_box->IsChecked() ? "True" : "False");
}
