#include "sglExportOptionsFile.h"

#include "sglApp.h"

#include "sdu/ubStreams.h"

namespace {

constexpr int longest_line = 1023;

void add_override_line(sglExportSystem & system, utString line)
{
    int const blank = line.locate_substring(" ");
    if (blank < 0)
        return;
    utString const name(line.view().substr(0, static_cast<std::size_t>(blank)));
    line.remove(0, blank);
    line.remove_leading_chars(" ");
    system.add_override(name, line);
}

} // namespace

int sglExportOptionsFile::use_default_options_file()
{
    auto const * const info = sglApp::app().application_information();
    m_file = vmrabsAppInfo::find_file_in_path(info->schema_path("export_options"), "export_overrides.txt");
    return !m_file.invalid();
}

int sglExportOptionsFile::read_options_file()
{
    if (m_file.invalid())
        return 0;
    ubIFStream stream(m_file, ubOpenInput);
    std::unique_ptr<sglExportSystem> open;
    // One byte for the end of the text, and one for the carriage return of a file from another platform.
    char line[longest_line + 2];
    while (stream.getline(line, sizeof line)) {
        // A last line without a line end is not looked at.
        if (!stream.good())
            break;
        utString text(line);
        if (!text.empty() && text[text.length() - 1] == '\r')
            text.remove(text.length() - 1, 1);
        if (text.length() > longest_line)
            break;
        bool const closes = text[0] == '#';
        if (!open && closes)
            return 0;
        if (!open) {
            open = std::make_unique<sglExportSystem>();
            open->set_system_name(text);
        } else if (closes) {
            m_systems.push_back(std::move(open));
        } else {
            add_override_line(*open, text);
        }
    }
    return !m_systems.empty();
}

sglExportSystem const * sglExportOptionsFile::system(int index) const
{
    return index >= 0 && index < num_systems() ? m_systems[static_cast<std::size_t>(index)].get() : nullptr;
}

sglExportSystem const * sglExportOptionsFile::find_named_system(utString const & name) const
{
    for (auto const & system : m_systems)
        if (system->get_system_name() == name)
            return system.get();
    return nullptr;
}
