#pragma once

#include <optional>

#include "ut/utString.h"

class wxListCtrl;

/// The text of a cell of a report list, which may be a path; nothing when the list has no such cell.
std::optional<utString> sgl_list_cell(wxListCtrl const & list, long row, int column);
