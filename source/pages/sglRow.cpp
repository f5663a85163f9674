#include "sglRow.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglMessageBox.h"
#include "sglPathText.h"
#include "sglResourceUtils.h"

#include "pages/sglListCell.h"

namespace {

constexpr char const * viewer_format = "viewer";
constexpr char const * viewer_resource_file = "viewer.rsc";

} // namespace

sglRow * sglRow::clone() const
{
    auto copy = std::make_unique<sglRow>();
    copy->m_dlls = m_dlls;
    copy->m_file_type = m_file_type;
    copy->m_file_name = m_file_name;
    if (!m_table.invalid())
        copy_table(m_table, copy->m_table);
    return copy.release();
}

void sglRow::clear()
{
    m_file_type.invalidate();
    m_file_name.invalidate();
    m_table.reset();
}

void sglRow::take_options(sglRow const & other)
{
    copy_table(other.m_table, m_table);
}

void sglRow::take_format(sglRow const & other, utString const & file)
{
    m_dlls = other.m_dlls;
    m_file_type = other.m_file_type;
    take_options(other);
    m_file_name = file;
}

int sglRow::initialise(sdbTranslatorDlls const * dlls, sglComboBox const & combo, wxListCtrl const & list,
                       int index)
{
    utString const format = combo.selected_item();
    auto const file = sgl_list_cell(list, index, 0);
    auto const resource_text = sgl_list_cell(list, index, 1);
    if (!file || !resource_text)
        return 0;
    m_dlls = dlls;
    return initialise_data(*file, format, *resource_text);
}

int sglRow::initialise_data(utString const & file, utString const & format, utString const & resource_text)
{
    bool const views = resource_text.case_compare(viewer_resource_file) == 0;
    utString const lookup_format = views ? utString(viewer_format) : format;
    if (lookup_format == unknown_format()) {
        m_table.reset();
    } else if (auto const * const translator = m_dlls->translator_for_format(lookup_format)) {
        utString path = sglApp::app().rsc_dir(translator->resource_file_name());
        if (table_needs_updating(format) && resource_file().case_compare(resource_text) != 0)
            set_up_resources(path, m_table);
    }
    m_file_name = file;
    m_file_type = format;
    return invalid() ? 0 : 1;
}

utString sglRow::resource_file() const
{
    return m_table.invalid() ? utString() : ExtractFile(m_table.resource_file());
}

int sglRow::table_needs_updating(utString const & format) const
{
    utString const file = resource_file();
    bool const fits = !file.empty() && (file.case_compare(viewer_resource_file) == 0 ||
                                        file.case_compare(format + ".rsc") == 0);
    return fits ? 0 : 1;
}

int sglRow::copy_table(vmrTableInstance const & from, vmrTableInstance & to)
{
    return sgl_copy_resource_table(from, to);
}

int sglRow::update_is_ok(utString const & format, int ask)
{
    if (!table_needs_updating(format) || m_table.invalid() || !m_table.modified())
        return 1;
    if (!ask || sglMessageBox("vmrgrlib", 1115, wxYES_NO) == wxID_NO)
        return 0;
    clear();
    return 1;
}
