#pragma once

#include "sdb/sdbOrderedStringPairs.h"
#include "sglResourceDetails.h"
#include "ut/utString.h"

#include <wx/gdicmn.h>

class sglResourceOptionsPage;

/// What a layout file is turned into: the reader of the file says what there is and where, and this makes
/// it. The program's own makes windows; a check of a layout can do without.
class sglResourceLayoutMaker {
public:
    virtual ~sglResourceLayoutMaker() = default;

    /// A page below `parent`, which is null for one at the top. The page belongs to the maker or to whom the
    /// maker gives it, and lives as long as the reader works.
    virtual sglResourceOptionsPage * make_page(utString const & title, sglResourceOptionsPage * parent) = 0;

    /// Rows of a page. The rectangle is in pixels, and higher afterwards if the row needs more room.
    virtual void make_check_box(sglResourceDetails const & details, wxRect & row,
                                sglResourceOptionsPage * page) = 0;
    virtual void make_edit_box(sglResourceDetails const & details, wxRect & row,
                               sglResourceOptionsPage * page) = 0;
    virtual void make_combo_box(sdbOrderedStringPairs const & values, sglResourceDetails const & details,
                                wxRect & row, sglResourceOptionsPage * page) = 0;
    virtual void make_group(sglResourceDetails const & details, wxRect & box,
                            sglResourceOptionsPage * page) = 0;

    virtual wxPoint to_pixels(wxPoint const & dialog_units) const = 0;
    virtual wxPoint to_dialog_units(wxPoint const & pixels, sglResourceOptionsPage * page) const = 0;
};
