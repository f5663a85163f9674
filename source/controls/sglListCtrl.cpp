#include "sglListCtrl.h"

#include "wxt/wxtStringConverter.h"

wxIMPLEMENT_DYNAMIC_CLASS(sglListCtrl, wxListCtrl);

void sglListCtrl::fill(utStringcoPageArr const & cells)
{
    DeleteAllItems();
    int const columns = GetColumnCount();
    if (columns == 0)
        return;
    for (int cell = 0; cell < cells.count(); cell += columns) {
        long const row = InsertItem(cell, wxtStringConverter::to_wx(cells[cell]), 0);
        SetItemPtrData(row, static_cast<wxUIntPtr>(cell));
        for (int column = 1; column < columns && cell + column < cells.count(); ++column)
            SetItem(row, column, wxtStringConverter::to_wx(cells[cell + column]), -1);
    }
    adjust_columns();
}

void sglListCtrl::adjust_columns()
{
    for (int column = 0; column < GetColumnCount(); ++column)
        SetColumnWidth(column, wxLIST_AUTOSIZE_USEHEADER);
}
