#pragma once

#include "sdb/sdbFilterIndexSet.h"
#include "sdb/sdbTranslatorDlls.h"
#include "ut/utString.h"

/// Something in which a format is selected, and what follows from it for the filters of a file dialog.
class sglFormatList {
public:
    virtual utString selected_item() const = 0;    ///< the format's name; empty when none is selected
    virtual utString all_files_filter() const = 0; ///< how the label of the filter for all files begins
    virtual ~sglFormatList() = default;

    /// The place, counted from 1, of the first entry of `filter` whose label begins with `format_filter`,
    /// case ignored; an empty one is found at once. An empty label ends the search as a hit, so that in a
    /// text ending in two bars a label that is not there gives the place behind the last entry. -1 when
    /// nothing was found before the end of the text.
    int find_index_in_filter(utString const & format_filter, utString const & filter) const;

    /// Chooses the filter with which a file dialog over the formats of `dlls` opens: that of the selected
    /// format, else that of the preferred one, else all files.
    void set_filter_index(sdbTranslatorDlls const & dlls, utString const & preferred_format,
                          apIStringCompare const * compare, sdbFilterIndexSet & index_set) const;

protected:
    /// How the label of a format's filter begins: the label without its last character; empty when there is
    /// no such format or it has no filter.
    utString find_format_filter(sdbTranslatorDlls const & dlls, utString const & format) const;
};
