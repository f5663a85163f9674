#pragma once

#include <memory>
#include <unordered_map>

#include "co/coPageArr.h"
#include "co/utStringutStringcoTable.h"
#include "sdb/sdbOrderedStringPairs.h"
#include "sglResourceLayoutMaker.h"
#include "ut/utString.h"

class sglDialog;
class sglOptionsDialog;
class sglResourceOptionsPage;
class ubIFStream;
class vmrTableInstance;

/// Reads the layout of the options and makes its pages and controls. A line stands for itself, without the
/// spaces before it; lines that begin with "#" are comments:
///
///     file        = *enumeration 1*page                    anything else at the top ends the reading
///     enumeration = "start_enum" attributes *values "end_enum"                             key: name
///     values      = "start_values" *(context "::" stored value) "end_values"
///     page        = "start_page" attributes *(page | group | resource) "end_page"
///                   keys: type (input, output, both, viewer_input), name [requires, spacing, start]
///     group       = "start_group" attributes *(group | resource) "end_group"
///                   keys: name [left, right, top, bottom, spacing]
///     resource    = "start_resource" attributes "end_resource"
///                   keys: name, short_description, long_description, type (infinite, finite, boolean),
///                   enum for finite ones [left, right, top, bottom]
///     attributes  = "start_attributes" *(key " " text) "end_attributes"
///
/// A text is bare, or VMRNLS("text") with \n and \" for a line feed and a quote. Numbers are dialog units.
/// Pages and groups nest no deeper than max_depth. Graphical thread; one dialog builds at a time.
class sglResourceDialogBuilder {
public:
    static constexpr int max_depth = 200;

    /// Bits of the kind of dialog that build_dialog is for.
    static constexpr unsigned int input = 1;
    static constexpr unsigned int output = 2;
    static constexpr unsigned int viewer = 4;

    /// Builds into `dialog` for the resources of `table`; nothing is owned.
    sglResourceDialogBuilder(sglDialog * owner, sglOptionsDialog * dialog, vmrTableInstance * table);
    virtual ~sglResourceDialogBuilder();

    /// Reads the installation's layout. Returns 0 when that cannot be done, of which the user has been told;
    /// what was made so far stays.
    int build_dialog(unsigned int mask);
    /// Gives the working table to all pages. Returns 0 at the first page that fails.
    int initialise(vmrTableInstance * working);
    sglOptionsDialog * dialog() { return m_dialog; }

protected:
    /// Makes something else than windows of the layout.
    sglResourceDialogBuilder(std::unique_ptr<sglResourceLayoutMaker> maker, vmrTableInstance * table);

    int read_layout(ubIFStream & stream, unsigned int mask); ///< the whole file, with no message
    int line_number() const { return m_line_number; }        ///< lines read so far

    int get_line(ubIFStream & stream, utString & line) const;
    int get_split_line(ubIFStream & stream, utString & key, utString & value) const;
    int read_attributes(ubIFStream & stream, utStringutStringcoTable & attributes) const;
    int read_enum(ubIFStream & stream);
    int read_enum_values(ubIFStream & stream, sdbOrderedStringPairs & values) const;
    int read_page(ubIFStream & stream, unsigned int mask, sglResourceOptionsPage * parent);
    int read_group(ubIFStream & stream, sglResourceOptionsPage * page, int spacing, int & y) const;
    int read_resource(ubIFStream & stream, sglResourceOptionsPage * page, int & y) const;
    int skip_page(ubIFStream & stream) const;
    int resource_available(utString const & name) const;
    int layout_value(utStringutStringcoTable const & attributes, utString const & key, int value) const;

    /// Cuts a line at its first space. Returns 0, with all of it as the key, when it has none.
    static int split_string(utString const & line, utString & key, utString & value);
    static utString strip_macro(utString const & text);
    /// Replaces until `from` is no longer found, also where a replacement makes it anew.
    static void replace(utString const & from, utString const & to, utString & text);

private:
    int read_page_content(ubIFStream & stream, unsigned int mask, sglResourceOptionsPage * page, int spacing,
                          int y);
    /// A group or a resource with the gap below it.
    int read_element(ubIFStream & stream, utString const & first_line, sglResourceOptionsPage * page,
                     int spacing, int & y) const;
    int make_row(utStringutStringcoTable const & attributes, sglResourceOptionsPage * page, int & y) const;
    bool is_shown(utStringutStringcoTable const & attributes, unsigned int mask) const;
    wxRect pixels(int left, int top, int right, int bottom) const;

    coPageArr<sglResourceOptionsPage *> m_pages; ///< in reading order, not owned
    std::unordered_map<utString, std::unique_ptr<sdbOrderedStringPairs>> m_enums;
    vmrTableInstance * m_table;
    sglOptionsDialog * m_dialog = nullptr;
    sglDialog * m_owner = nullptr;
    int m_check_height = 10; ///< this and the following in dialog units
    int m_edit_height = 12;
    int m_combo_height = 12;
    int m_group_left = 0;
    int m_group_right = 270;
    int m_resource_left = 10;
    int m_resource_right = 265;
    int m_group_top_inset = 12;
    int m_group_bottom_inset = 6;
    int m_default_spacing = 8;
    int m_default_start = 5;
    mutable int m_line_number = 0;
    mutable int m_depth = 0; ///< elements that are open
    std::unique_ptr<sglResourceLayoutMaker> m_maker;
};
