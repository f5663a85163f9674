#pragma once

#include <wx/gdicmn.h>

class wxStaticText;
class wxString;
class wxWindow;

/// The y of the label beside `control`: in the middle of the row, by the point size of the control's font.
int sgl_row_label_y(wxRect const & row, wxWindow const & control);

/// Makes the row twice as high when `label` does not fit beside `control`: the label then takes two lines or
/// more, and the control moves down a third of the way.
void sgl_fit_row(wxRect & row, wxStaticText & label, wxWindow & control);
