#include "sglResourceControlMaker.h"

#include "sglOptionsDialog.h"
#include "sglResourceCheckWidget.h"
#include "sglResourceComboWidget.h"
#include "sglResourceEditWidget.h"
#include "sglResourceGroupWidget.h"
#include "sglResourceOptionsPage.h"

sglResourceOptionsPage * sglResourceControlMaker::make_page(utString const & title,
                                                            sglResourceOptionsPage * parent)
{
    auto * const page = new sglResourceOptionsPage(title, m_table, m_dialog);
    if (parent)
        page->set_parent(parent);
    m_dialog->add_page(page);
    return page;
}

void sglResourceControlMaker::make_check_box(sglResourceDetails const & details, wxRect & row,
                                             sglResourceOptionsPage * page)
{
    page->add_widget(utPtrClaim, new sglResourceCheckWidget(details, row, page));
}

void sglResourceControlMaker::make_edit_box(sglResourceDetails const & details, wxRect & row,
                                            sglResourceOptionsPage * page)
{
    page->add_widget(utPtrClaim, new sglResourceEditWidget(details, row, page));
}

void sglResourceControlMaker::make_combo_box(sdbOrderedStringPairs const & values,
                                             sglResourceDetails const & details, wxRect & row,
                                             sglResourceOptionsPage * page)
{
    page->add_widget(utPtrClaim, new sglResourceComboWidget(values, details, row, page));
}

void sglResourceControlMaker::make_group(sglResourceDetails const & details, wxRect & box,
                                         sglResourceOptionsPage * page)
{
    page->add_widget(utPtrClaim, new sglResourceGroupWidget(details, box, page));
}

wxPoint sglResourceControlMaker::to_pixels(wxPoint const & dialog_units) const
{
    return m_dialog->ConvertDialogToPixels(dialog_units);
}

wxPoint sglResourceControlMaker::to_dialog_units(wxPoint const & pixels, sglResourceOptionsPage * page) const
{
    return page->ConvertPixelsToDialog(pixels);
}
