#include "sglResourceRow.h"

#include "controls/sglWrapLabel.h"

#include <wx/stattext.h>

int sgl_row_label_y(wxRect const & row, wxWindow const & control)
{
    return row.y + (row.height - control.GetFont().GetPointSize()) / 2;
}

void sgl_fit_row(wxRect & row, wxStaticText & label, wxWindow & control)
{
    int const room = row.width - control.GetSize().GetWidth();
    if (label.GetSize().GetWidth() <= room)
        return;
    int const label_y = sgl_row_label_y(row, control);
    control.Move(control.GetPosition().x, static_cast<int>((row.GetBottom() - label_y) / 3.0 + label_y));
    row.height *= 2;
    sgl_wrap_label(label, room);
}
