#include "pages/sglListCell.h"

#include "wxt/wxtStringConverter.h"

#include <wx/listctrl.h>

std::optional<utString> sgl_list_cell(wxListCtrl const & list, long row, int column)
{
    if (row < 0 || row >= list.GetItemCount() || column < 0 || column >= list.GetColumnCount())
        return std::nullopt;
    return wxtStringConverter::path_to_ut(list.GetItemText(row, column));
}
