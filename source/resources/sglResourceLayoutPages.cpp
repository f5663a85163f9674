#include "sglResourceDialogBuilder.h"

#include <algorithm>
#include <cstdint>

#include "sglNlsHelp.h"

#include "sdb/sdbResourceType.h"
#include "sdu/ubStreams.h"
#include "vmr/coResourceIterator.h"
#include "vmr/vmrTableInstance.h"

namespace {

/// Counts an element that is open.
class DepthScope {
public:
    explicit DepthScope(int & depth) : m_depth(depth) { ++m_depth; }
    ~DepthScope() { --m_depth; }
    DepthScope(DepthScope const &) = delete;
    DepthScope & operator=(DepthScope const &) = delete;

private:
    int & m_depth;
};

/// A place in dialog units. A file may say any number; those beyond what a window can have count as the
/// farthest place there is.
int place(std::int64_t units)
{
    constexpr std::int64_t farthest = 1'000'000;
    return static_cast<int>(std::clamp(units, -farthest, farthest));
}

int place(std::int64_t units, std::int64_t distance)
{
    return place(units + distance);
}

} // namespace

int sglResourceDialogBuilder::resource_available(utString const & name) const
{
    for (coResourceIterator resources(m_table->default_table()); ++resources;)
        if (resources()->key->name == name)
            return sdbResourceType::look_up_type(name) != nullptr;
    return 0;
}

bool sglResourceDialogBuilder::is_shown(utStringutStringcoTable const & attributes, unsigned int mask) const
{
    utString const type = attributes.read("type");
    bool const fits = type == "input"          ? (mask & input) != 0
                      : type == "output"       ? (mask & output) != 0
                      : type == "both"         ? (mask & (input | output)) != 0
                      : type == "viewer_input" ? (mask & (input | viewer)) == (input | viewer)
                                               : false;
    return fits && (!attributes.member("requires") || resource_available(attributes.read("requires")));
}

wxRect sglResourceDialogBuilder::pixels(int left, int top, int right, int bottom) const
{
    return wxRect(m_maker->to_pixels(wxPoint(left, top)), m_maker->to_pixels(wxPoint(right, bottom)));
}

int sglResourceDialogBuilder::skip_page(ubIFStream & stream) const
{
    int depth = 0;
    utString line;
    while (get_line(stream, line)) {
        if (line == "start_page")
            ++depth;
        else if (line == "end_page" && depth-- == 0)
            return 1;
    }
    return 0;
}

int sglResourceDialogBuilder::read_page(ubIFStream & stream, unsigned int mask,
                                        sglResourceOptionsPage * parent)
{
    DepthScope const scope(m_depth);
    utStringutStringcoTable attributes(4, 50);
    utString name;
    if (m_depth > max_depth || !read_attributes(stream, attributes) || !attributes.member("type") ||
        !attributes.read("name", name))
        return 0;
    if (!is_shown(attributes, mask))
        return skip_page(stream);
    auto * const page = m_maker->make_page(getNlsHelp()->gsprintf("vmrgrlib", name.c_str()), parent);
    m_pages.append(page);
    return read_page_content(stream, mask, page, layout_value(attributes, "spacing", m_default_spacing),
                             place(layout_value(attributes, "start", m_default_start)));
}

int sglResourceDialogBuilder::read_page_content(ubIFStream & stream, unsigned int mask,
                                                sglResourceOptionsPage * page, int spacing, int y)
{
    utString line;
    while (get_line(stream, line)) {
        if (line == "end_page")
            return 1;
        if (line == "start_page") {
            if (!read_page(stream, mask, page))
                return 0;
            continue;
        }
        if (!read_element(stream, line, page, spacing, y))
            return 0;
    }
    return 0;
}

int sglResourceDialogBuilder::read_element(ubIFStream & stream, utString const & first_line,
                                           sglResourceOptionsPage * page, int spacing, int & y) const
{
    bool const is_group = first_line == "start_group";
    if (!is_group && first_line != "start_resource")
        return 0;
    if (!(is_group ? read_group(stream, page, spacing, y) : read_resource(stream, page, y)))
        return 0;
    y = place(y, spacing);
    return 1;
}

int sglResourceDialogBuilder::read_group(ubIFStream & stream, sglResourceOptionsPage * page, int spacing,
                                         int & y) const
{
    DepthScope const scope(m_depth);
    utStringutStringcoTable attributes(4, 50);
    utString name;
    if (m_depth > max_depth || !read_attributes(stream, attributes) || !attributes.read("name", name))
        return 0;
    spacing = layout_value(attributes, "spacing", spacing);
    int const top = place(layout_value(attributes, "top", y));
    y = place(top, m_group_top_inset);
    utString line;
    int read = get_line(stream, line);
    for (; read && line != "end_group"; read = get_line(stream, line))
        if (!read_element(stream, line, page, spacing, y))
            return 0;
    if (!read)
        return 0;
    utString bottom;
    int position = 0;
    if (!attributes.read("bottom", bottom))
        y = place(y, std::int64_t(m_group_bottom_inset) - spacing); // takes the last gap back
    else if (!bottom.parse(y, position))
        return 0;
    y = place(y);
    wxRect box = pixels(place(layout_value(attributes, "left", m_group_left)), top,
                        place(layout_value(attributes, "right", m_group_right)), y);
    m_maker->make_group(sglResourceDetails("", name, name), box, page);
    return 1;
}

int sglResourceDialogBuilder::read_resource(ubIFStream & stream, sglResourceOptionsPage * page, int & y) const
{
    static utStringutStringcoTable attributes(4, 50);
    utString line;
    return read_attributes(stream, attributes) && make_row(attributes, page, y) && get_line(stream, line) &&
           line == "end_resource";
}

int sglResourceDialogBuilder::make_row(utStringutStringcoTable const & attributes,
                                       sglResourceOptionsPage * page, int & y) const
{
    utString name;
    utString short_description;
    utString long_description;
    utString type;
    if (!attributes.read("name", name) || !attributes.read("short_description", short_description) ||
        !attributes.read("long_description", long_description) || !attributes.read("type", type))
        return 0;
    sglResourceDetails const details(name, short_description, long_description);
    int const top = place(layout_value(attributes, "top", y));
    y = top;
    bool const is_list = type == "finite";
    auto const values = is_list ? m_enums.find(attributes.read("enum")) : m_enums.end();
    if (is_list ? values == m_enums.end() : type != "infinite" && type != "boolean")
        return 0;
    int const height = is_list ? m_combo_height : type == "boolean" ? m_check_height : m_edit_height;
    wxRect row = pixels(place(layout_value(attributes, "left", m_resource_left)), top,
                        place(layout_value(attributes, "right", m_resource_right)),
                        place(layout_value(attributes, "bottom", place(top, height))));
    if (is_list)
        m_maker->make_combo_box(*values->second, details, row, page);
    else if (type == "boolean")
        m_maker->make_check_box(details, row, page);
    else
        m_maker->make_edit_box(details, row, page);
    y = place(m_maker->to_dialog_units(wxPoint(row.x, row.GetBottom()), page).y);
    return 1;
}
