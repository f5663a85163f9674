#pragma once

#include <functional>

#include "co/coStrings.h"
#include "sdb/sdbTranslatorDlls.h"
#include "ut/utString.h"

class sglComboBox;
class sglRow;
class vmrTableInstance;
class vmrabsAppInfo;
class wxButton;
class wxFileDialog;
class wxListCtrl;
class wxWindow;

/// Looks after one side of a page: a list of one row with file and resource file, the format box and the
/// button for the options, which it keeps in step when a file or a format changes. It opens the system's file
/// dialog and the resources dialog for its side. It is no window itself and owns none. Graphical thread.
class sglFileDialog {
public:
    static constexpr unsigned int input = 1;
    static constexpr unsigned int output = 2;

    /// The parent of the dialogs; neither is owned.
    sglFileDialog(wxWindow * parent, vmrabsAppInfo const * info);
    virtual ~sglFileDialog() = default;

    void set_list_control(wxListCtrl * list) { m_list = list; }
    void set_combo_box(sglComboBox * combo) { m_combo = combo; }
    void set_resource_button(wxButton * button) { m_resource_button = button; }
    void set_type(unsigned int type) { m_type = type; }      ///< the lowest bit means input
    void allow_multiple_files(int) { m_allow_multiple = 1; } ///< whatever the argument
    /// Tells of a path whether it is an input of the translation or the queue that this side is for. Such a
    /// file is never proposed.
    void set_is_input(std::function<bool(utString const &)> is_input) { m_is_input = std::move(is_input); }
    void initialise(); ///< adds the columns of the list
    int invalid() const;

    utString file_name() const; ///< empty when the list has no row, and so is the resource file
    utString resource_file() const;
    utString format() const;
    sdbTranslatorDlls const * dlls() const;
    int num_selected() const { return m_selected_files.count(); }
    utStringcoPageArr const & selected_files() const
    {
        return m_selected_files;
    }                                ///< of the last input_browse
    utString unknown_string() const; ///< the resource text of a file of unknown format

    void format_selected(); ///< takes the unknown format out of the box
    void format_closed();   ///< puts it back when nothing is chosen

    /// Asks for input files. One file is shown on this side and comes back in `file`; several are in
    /// selected_files() only. The result is wxID_OK or the code with which the dialog ended.
    int input_browse(utString & file);
    /// Asks for an output file and takes it into the row. Where it has the extension of another format the
    /// box follows, unless the user keeps the options of the row. The result is wxID_OK, the code with which
    /// the dialog ended, or wxID_CANCEL for a file that cannot be written, of which the user has been told.
    int output_browse(sglRow & row, int & user_edited);
    /// Whether the user has chosen this very file in output_browse, where he was asked about overwriting it,
    /// and nothing was forgotten since.
    bool confirmed(utString const & file) const { return !file.empty() && file == m_confirmed; }
    void forget_confirmed() { m_confirmed.make_empty(); }
    /// Proposes an output file for an input file and shows it. Returns 0 when there is no output format for
    /// it.
    int create_output_details(utString const & input_format, utString const & input_file, sglRow & row);

    /// Shows a file with the format that it seems to have. `failed` becomes 1 when its translator cannot be
    /// loaded, else 0; a format that nobody knows is no failure. The button is left disabled.
    void set_details(utString const & file, int & failed);
    void set_format_type(int & failed);
    void set_resource_file();
    void set_resource_file(utString const & format);
    /// Makes the row follow the format that was chosen in the box: the file gets its extension.
    void set_row_details(sglRow & row);

    /// What set_row_details would make of a file's name for a format.
    utString name_for_format(utString const & file, utString const & format);
    /// Shows file, format and options of a row as they are, or nothing where the row has no file.
    void show_row(sglRow const & row);

    /// Opens the resources dialog for the format in the box; its code, or wxID_CANCEL when that has none, of
    /// which the user is told.
    int edit_resources(vmrTableInstance & table);
    int edit_resources(vmrTableInstance & table, utString const & format_name); ///< whatever the box shows
    int nothing_selected() const; ///< whether the side has no file that can be translated

private:
    void add_list_control_headers();
    bool has_row() const;
    utString filter_text() const; ///< the filter for all formats, and behind it those of the list
    void choose_filter(wxFileDialog & dialog, char const * preferred_format_field) const;
    void show_file(utString const & file);
    utString cell(int column) const;
    utString resource_text_for(utString const & resource_path) const;
    sdbTranslatorInfo const * translator_for_file(utString const & path) const;
    sdbTranslatorInfo const * translator_for_format(utString const & format) const;
    /// Returns 0 when the translator of the file cannot be loaded.
    int take_output(utString const & path, sglRow & row);
    int initialise_row(sglRow & row) const;
    utString proposal(utString const & name); ///< the name, with a number where it is an input

    wxListCtrl * m_list = nullptr;
    sglComboBox * m_combo = nullptr;
    wxButton * m_resource_button = nullptr;
    wxWindow * m_parent;
    unsigned int m_type = 0;
    int m_allow_multiple = 0;
    utStringcoPageArr m_selected_files;
    vmrabsAppInfo const * m_info;
    std::function<bool(utString const &)> m_is_input = [](utString const &) { return false; };
    utString m_confirmed;
    utString m_wanted; ///< what the name of m_numbered would have been
    utString m_numbered;
};
