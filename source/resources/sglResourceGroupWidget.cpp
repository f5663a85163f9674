#include "sglResourceGroupWidget.h"

#include "sglResourceOptionsPage.h"

#include "wxt/wxtStringConverter.h"

#include <wx/statbox.h>

sglResourceGroupWidget::sglResourceGroupWidget(sglResourceDetails const & details, wxRect & rectangle,
                                               sglResourceOptionsPage * page)
    : sglResourceWidget(details, page)
{
    create(rectangle);
}

int sglResourceGroupWidget::create(wxRect & rectangle)
{
    m_box = new wxStaticBox(page(), wxID_ANY, wxtStringConverter::to_wx(resource().short_description()),
                            rectangle.GetPosition(), rectangle.GetSize(), 0);
    m_box->SetFont(page()->GetFont());
    return 1;
}
