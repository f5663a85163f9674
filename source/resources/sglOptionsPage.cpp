#include "sglOptionsPage.h"

sglOptionsPage::sglOptionsPage(wxWindow * parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxNO_BORDER)
{
}
