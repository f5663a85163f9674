#include "sglDialogFilterIndexSet.h"

#include <wx/filedlg.h>

void sglDialogFilterIndexSet::set_filter_index(int index) const
{
    wxArrayString labels, patterns;
    int const count = wxParseCommonDialogsFilter(m_dialog->GetWildcard(), labels, patterns);
    int const shown = index + m_in_front;
    if (count > 0)
        m_dialog->SetFilterIndex(index >= 0 && shown < count ? shown : count - 1);
}
