// The options of a command-line translation: overrides of resources, and the settings that the flags stand
// for.

#include "sglParseCommandLine.h"

#include "sglResourceHandler.h"

#include "vmr/vmrApplyResource.h"
#include "vmr/vmrResourceRegistry.h"

namespace {

/// A table that shares nothing with what it was copied from.
void make_private(vmrTableInstance & table)
{
    vmrTableInstance copy(nullptr);
    copy.deep_copy(table);
    table.deep_copy(copy);
}

/// Keeps a value that is not legal, so that the translation says what the option has instead and why. A legal
/// one that was given before stays.
void keep_refused(vmrTableInstance & table, utString const & name, utString const & value)
{
    if (vmr_look_up_resource(name.view()) && (!table.table() || table.table()->value(name).invalid()))
        table.add_as_it_stands(name, value);
}

void add_or_keep(vmrTableInstance & table, utString const & name, utString const & value)
{
    if (!table.add_resource(name, value))
        keep_refused(table, name, value);
}

} // namespace

void sglParseCommandLine::get_resource_options(vmrTableInstance * table)
{
    utString name, value;
    while (extract_resource_option(name, value)) {
        sglResourceHandler const handler(name);
        if (!handler.insert(value, *table)) {
            say("cl::Unable to modify resource %s with value %s\n", name, value);
            keep_refused(*table, name, value);
        }
    }
    make_private(*table);
}

int sglParseCommandLine::extract_resource_option(utString & name, utString & value)
{
    name.invalidate();
    value.invalidate();
    m_command_line.remove_leading_chars(" ");
    if (m_command_line[0] == '-')
        return 0;
    bool const quoted = m_command_line[0] == '"';
    if (quoted)
        m_command_line.remove_leading_chars("\"");
    if (m_command_line.empty())
        return 0;
    utString item;
    m_command_line.extract_string(quoted ? "\"" : " ", item);
    int const colon = item.locate_substring(":");
    if (colon < 0)
        return 0;
    name = item.substring(0, colon);
    value = item.substring(colon + 1, item.length());
    if (quoted)
        m_command_line.remove_leading_chars("\"");
    return 1;
}

void sglParseCommandLine::pre_process_settings()
{
    vmrTableInstance & output = m_translation->output_resource_table(0);
    vmrTableInstance & input = m_translation->input_resource_table(0);
    if (m_units == vmrLengthUnit{}) {
        vmrResourceTableMark const mark;
        vmrApplyResource const applied(output);
        coResourceKeyBase const key("vmrOptOutputUnits");
        if (auto const * const units = vmr_resource_table_inquire()->lookup_resource(&key))
            make_vmrLengthUnit_from_string(units->value_text(), m_units);
    }
    make_private(output);
    output.add_resource("vmrOptOutputUnits", vmr_length_value_to_string(m_units));
    make_private(input);
    set_tri_tol_resources(input);
    if (m_surface)
        output.add_resource("vmrOptProcessWireframe", "false");
    if (m_wire)
        output.add_resource("vmrOptProcessSurfaces", "false");
    make_private(output);
    set_tri_tol_resources(output);
    say("\nReading file %s\n\n", m_translation->input_file(0));
    say("\n\nWriting the translation to %s\n", m_translation->output_file(0));
}

int sglParseCommandLine::set_tri_tol_resources(vmrTableInstance & table) const
{
    if (!(m_tolerance > 0.0))
        return 0;
    utString tolerance, coarse;
    tolerance << m_tolerance;
    coarse << m_tolerance * 10.0;
    add_or_keep(table, "vmrTolTriangulate3d", tolerance);
    add_or_keep(table, "vmrTolPolygonizeCurve2d", tolerance);
    add_or_keep(table, "vmrTolPolygonizeCurve3d", tolerance);
    add_or_keep(table, "vmrTolCurveOnSurface3d", coarse);
    return 1;
}
