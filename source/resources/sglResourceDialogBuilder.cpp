#include "sglResourceDialogBuilder.h"

#include <algorithm>

#include "sglApp.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"
#include "sglResourceControlMaker.h"
#include "sglResourceOptionsPage.h"

#include "sdu/ubStreams.h"

#include <wx/msgdlg.h>

sglResourceDialogBuilder::sglResourceDialogBuilder(sglDialog * owner, sglOptionsDialog * dialog,
                                                   vmrTableInstance * table)
    : sglResourceDialogBuilder(std::make_unique<sglResourceControlMaker>(dialog, table), table)
{
    m_dialog = dialog;
    m_owner = owner;
}

sglResourceDialogBuilder::sglResourceDialogBuilder(std::unique_ptr<sglResourceLayoutMaker> maker,
                                                   vmrTableInstance * table)
    : m_table(table), m_maker(std::move(maker))
{
}

sglResourceDialogBuilder::~sglResourceDialogBuilder() = default;

int sglResourceDialogBuilder::build_dialog(unsigned int mask)
{
    utString const name = "resource_layout.txt";
    auto const * const information = sglApp::app().application_information();
    utString const file = information->find_file_in_path(information->schema_path("resources"), name);
    if (file.invalid()) {
        sglMessageBox("vmrgrlib", 1211, wxOK, name);
        return 0;
    }
    ubIFStream stream(file, ubOpenInput);
    if (stream.rdstate() != std::ios::goodbit) {
        sglMessageBox("vmrgrlib", 1211, wxOK, file);
        return 0;
    }
    if (read_layout(stream, mask))
        return 1;
    sglMessageBox("vmrgrlib", 1212, wxOK, file, m_line_number);
    return 0;
}

int sglResourceDialogBuilder::initialise(vmrTableInstance * working)
{
    return std::all_of(m_pages.begin(), m_pages.end(),
                       [working](auto * page) { return page->initialise(working) != 0; });
}

int sglResourceDialogBuilder::read_layout(ubIFStream & stream, unsigned int mask)
{
    m_depth = 0;
    utString line;
    if (!get_line(stream, line))
        return 0;
    while (line == "start_enum")
        if (!read_enum(stream) || !get_line(stream, line))
            return 0;
    // After a failure no further line is read, so that the line number tells where it was.
    while (line == "start_page") {
        if (!read_page(stream, mask, nullptr))
            return 0;
        if (!get_line(stream, line))
            break;
    }
    return !m_pages.empty();
}

int sglResourceDialogBuilder::read_enum(ubIFStream & stream)
{
    static utStringutStringcoTable attributes(4, 50);
    utString name;
    if (!read_attributes(stream, attributes) || !attributes.read("name", name))
        return 0;
    auto const [entry, fresh] = m_enums.try_emplace(name, nullptr);
    if (!fresh)
        return 0;
    entry->second = std::make_unique<sdbOrderedStringPairs>();
    auto & values = *entry->second;
    utString line;
    while (get_line(stream, line)) {
        if (line == "end_enum")
            return 1;
        if (line != "start_values" || !read_enum_values(stream, values))
            return 0;
    }
    return 0;
}

int sglResourceDialogBuilder::read_enum_values(ubIFStream & stream, sdbOrderedStringPairs & values) const
{
    utString line;
    while (get_line(stream, line)) {
        if (line == "end_values")
            return 1;
        utString const key = strip_macro(line);
        int const colons = key.locate_substring("::");
        if (colons < 0)
            return 0;
        values.add_pair(key.substring(colons + 2, key.length()),
                        getNlsHelp()->gsprintf("vmrgrlib", key.c_str()));
    }
    return 0;
}
