#pragma once

#include "co/coDList.h"
#include "co/coPointers.h"
#include "sdb/sdbTranslatorDlls.h"
#include "ut/utString.h"
#include "vmr/vmrTableInstance.h"

class sglComboBox;
class wxListCtrl;

/// One side of a translation: a file, its format and the options of that format. Main thread.
class sglRow {
public:
    /// A copy for the caller to own; its options are a working copy.
    sglRow * clone() const;
    void clear();                            ///< makes the row invalid
    void take_options(sglRow const & other); ///< a copy of what the other row has set; of the same format
    /// Takes format and options over, for a file of its own.
    void take_format(sglRow const & other, utString const & file);

    /// Takes file and format from the controls of a page, from row `index` of the list, and loads the options
    /// unless the row has those of that resource file already, which keeps what the user has set. The
    /// catalogue is not owned. Returns 0 when the list has no such row or the row is invalid afterwards.
    int initialise(sdbTranslatorDlls const * dlls, sglComboBox const & combo, wxListCtrl const & list,
                   int index);

    /// Whether the row may change to `format`. Options that the user has set would be lost by that; with
    /// `ask` the user decides, and on Yes the row is cleared.
    int update_is_ok(utString const & format, int ask);

    utString const & file_type() const { return m_file_type; } ///< the format, as the combo box showed it
    utString const & filename() const { return m_file_name; }  ///< the whole path
    vmrTableInstance & resource_table() { return m_table; }
    vmrTableInstance const & resource_table() const { return m_table; }
    int invalid() const { return m_file_name.empty() || m_table.invalid(); }

private:
    int initialise_data(utString const & file, utString const & format, utString const & resource_text);
    utString resource_file() const;
    int table_needs_updating(utString const & format) const;
    static int copy_table(vmrTableInstance const & from, vmrTableInstance & to);

    sdbTranslatorDlls const * m_dlls = nullptr;
    utString m_file_type;
    vmrTableInstance m_table;
    utString m_file_name;
};

using sglRowcoPrf = coPrf<sglRow>;
using sglRowcoDListPrgcoPrg = coPrg<sglRow>;
using sglRowcoDListPrgcoPrgcoDList = coDList<sglRowcoDListPrgcoPrg>;
