// What the menu of the resources dialog does with resource files.

#include "sglResources.h"

#include "sglApp.h"
#include "sglExportToDialog.h"
#include "sglMessageBox.h"
#include "sglResourceHandler.h"
#include "sglResourceString.h"
#include "sglResourceUtils.h"

#include "controls/sglFileFilter.h"
#include "controls/sglSaveDialog.h"
#include "sdb/sdbResourceType.h"
#include "sdu/sduFileFunctions.h"
#include "sglOptionsDialog.h"
#include "vmr/coResourceIterator.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrResourceRegistry.h"
#include "wxt/wxtStringConverter.h"

#include <wx/filedlg.h>
#include <wx/xrc/xmlres.h>

namespace {

sdbSchemaDir resource_directory()
{
    return sglApp::app().file_locator().schema_dir(sdbHRKDirectory::resources);
}

utString file_name_of(utString const & path)
{
    return apPathName::from_utf8(path.view()).file_name().utf8();
}

/// Tells the user what is wrong with a file, with as many of the problems as fit on the screen.
void tell_problems(char const * key, utString const & file, std::vector<std::string> const & problems)
{
    constexpr std::size_t most = 10;
    utString text = sglGUIString(key, "vmrgrlib").process(ut_text_arguments(file));
    for (std::size_t at = 0; at < problems.size() && at < most; ++at)
        text += "\n" + utString(problems[at]);
    if (problems.size() > most)
        text += "\n...";
    sgl_show_error_text(text);
}

wxString file_caption()
{
    return wxtStringConverter::to_wx(sglResourceString("vmrgrlib", 1215));
}

wxString file_directory()
{
    return wxtStringConverter::path_to_wx(sdbFile::backslashify(resource_directory().user_dir()));
}

wxString file_filter(char const * tail)
{
    return sgl_toolkit_filter(wxtStringConverter::to_wx(sglResourceString("vmrgrlib", 1214)) + tail);
}

bool hold_the_same(coResourceTable & one, coResourceTable const & other)
{
    if (one.count() != other.count())
        return false;
    for (coResourceIterator resource(&one); ++resource;)
        if (other.value(resource()->key->name) != resource()->value_text())
            return false;
    return true;
}

bool holds(coResourceTable * table, utString const & name)
{
    coResourceKeyBase const key(name);
    return table && table->lookup_resource(&key);
}

} // namespace

sdbFile sglResources::file_of(utString const & path) const
{
    return m_file_factory.pointer()->make_file(path);
}

utString sglResources::user_directory() const
{
    return resource_directory().user_dir();
}

utString sglResources::file_to_open()
{
    wxFileDialog dialog(this, file_caption(), file_directory(), wxString(), file_filter(" (*.rsc)|*.rsc||"),
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    return dialog.ShowModal() == wxID_OK ? wxtStringConverter::path_to_ut(dialog.GetPath())
                                         : utString::make_invalid();
}

utString sglResources::file_to_save()
{
    sglSaveDialog dialog(this, file_caption(), file_directory(), wxString(),
                         file_filter(" (*.rsc) | *.rsc||"), "rsc", wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    return dialog.ShowModal() == wxID_OK ? dialog.chosen_path() : utString::make_invalid();
}

void sglResources::Load(utString const & file)
{
    m_working.initialise(file);
    m_working.set_resource_file(file);
    update_name(file);
    m_builder.initialise(&m_working);
}

void sglResources::load_and_tell(utString const & file)
{
    vmrTableInstance probe;
    if (!probe.initialise(file)) {
        tell_problems("d.resources.messagebox::The file %s could not be read.", file, probe.problems());
        return;
    }
    Load(file);
    if (!m_working.problems().empty())
        tell_problems("d.resources.messagebox::Some of the file %s could not be used:", file,
                      m_working.problems());
}

void sglResources::OnLoadDefault(wxCommandEvent &)
{
    utString const name = m_translator->resource_file_name().utf8();
    Load(sglApp::app().rsc_dir(apFileName::from_utf8(name.view())));
}

void sglResources::OnLoadCustom(wxCommandEvent &)
{
    utString const file = file_to_open();
    if (file.empty())
        return;
    if (m_working.modified() && sglMessageBox("vmrgrlib", 1115, wxYES_NO) == wxID_NO)
        return;
    load_and_tell(file);
}

/// What is on the screen is saved, and what is typed into a field counts once the field has lost the focus.
void sglResources::apply_pages()
{
    coResourceTable before = *m_working.table();
    wxCommandEvent event(wxEVT_BUTTON, XRCID("IDC_OPTIONS_APPLY"));
    event.StopPropagation();
    m_options->ProcessWindowEvent(event);
    if (!hold_the_same(before, *m_working.table()))
        enable_save(true);
}

void sglResources::OnSave(wxCommandEvent &)
{
    apply_pages();
    utString const file = m_working.resource_file();
    utString const installed = sglApp::app().installation_resource_file(*m_translator);
    // However the path is written, the installation file is not to be changed.
    bool const is_installed =
        file == installed || (!installed.empty() && file_of(file) == file_of(installed));
    if (!is_installed)
        Save(file);
    else if (resource_directory().create_user_dir())
        Save(user_directory() + "/" + file_name_of(file));
    else
        sglMessageBox("vmrgrlib", 1216, wxICON_WARNING, user_directory());
    enable_save(false);
}

void sglResources::OnSaveAs(wxCommandEvent &)
{
    apply_pages();
    resource_directory().create_user_dir();
    utString const file = file_to_save();
    if (file.empty())
        return;
    utString const in_use = m_working.resource_file();
    Save(file);
    if (m_working.resource_file() != in_use)
        go_on_with(in_use);
}

/// The dialog goes on working on the file that it had; the values are overrides where they differ from it.
void sglResources::go_on_with(utString const & file)
{
    vmrTableInstance const saved(m_working);
    m_working.initialise(file);
    auto const & in_file = *m_working.default_table();
    for (coResourceIterator resource(saved.default_table()); ++resource;)
        if (in_file.value(resource()->key->name) != resource()->value_text())
            m_working.add_as_it_stands(*resource());
    m_builder.initialise(&m_working);
}

void sglResources::Save(utString const & file)
{
    bool const is_default = is_default_rsc_file(file) || becomes_default_rsc_file(file);
    if (is_default && sglMessageBox("vmrgrlib", 1213, wxYES_NO | wxICON_WARNING) != wxID_YES)
        return;
    if (!write_values(file)) {
        tell_problems("d.resources.messagebox::The file %s could not be written.", file, {});
        return;
    }
    m_working.initialise(file);
    if (m_options)
        m_builder.initialise(&m_working);
}

bool sglResources::write_values(utString const & file) const
{
    utStringutStringcoTable values(4, 50);
    for (auto const * const table : {m_working.default_table(), m_working.table()})
        for (coResourceIterator resource(table); ++resource;) {
            utString const & name = resource()->key->name;
            values[name] = sglResourceHandler(name).display(resource());
        }
    vmrTableInstance scratch(file.c_str());
    for (auto const & [name, value] : values)
        // The values of a translator that is not loaded go on into the file as they are.
        if (!sglResourceHandler(name).insert(value, scratch) && !sdbResourceType::look_up_type(name))
            scratch.add_resource(name, value);
    return vmr_resource_save(file, scratch.table()) != 0;
}

int sglResources::is_default_rsc_file(utString const & file) const
{
    auto const candidate = file_of(file);
    if (candidate.file_type() == sdbFileNothing)
        return 0;
    // Only the formats that can be read count: a format that can only be written gives no warning.
    for (auto names = sglApp::app().input_dlls().resource_file_names(); ++names;)
        if (file_of(sglApp::app().rsc_dir(names())) == candidate)
            return 1;
    return 0;
}

/// A file of the user's that is not there yet is found before that of the installation once it is written.
bool sglResources::becomes_default_rsc_file(utString const & file) const
{
    for (auto names = sglApp::app().input_dlls().resource_file_names(); ++names;)
        if (is_in_user_directory(file, names().utf8()))
            return true;
    return false;
}

bool sglResources::is_in_user_directory(utString const & file, utString const & name) const
{
    return file_of(user_directory() + "/" + name) == file_of(file);
}

void sglResources::OnScrapChanges(wxCommandEvent & event)
{
    event.SetId(XRCID("IDC_OPTIONS_DEFAULTS"));
    event.SetEventType(wxEVT_BUTTON);
    event.StopPropagation();
    m_options->ProcessWindowEvent(event);
}

void sglResources::OnFactoryReset(wxCommandEvent &)
{
    if (sglMessageBox("vmrgrlib", 1213, wxYES_NO) != wxID_YES)
        return;
    if (do_on_factory_settings() == 0) {
        m_builder.initialise(&m_working);
        enable_save(false);
    } else {
        sglMessageBox("vmrgrlib", 1286, wxICON_ERROR, file_name_of(m_table.resource_file()));
    }
}

int sglResources::do_on_factory_settings()
{
    utString const file = m_working.resource_file();
    utString const installed = sglApp::app().installation_resource_file(*m_translator);
    if (installed.empty())
        return 1;
    // A file of the user's that lies elsewhere stays, and so does one with a name of its own.
    utString const name = m_translator->resource_file_name().utf8();
    if (is_in_user_directory(file, name) || is_in_user_directory(file, vmr_default_resources_name))
        sdu_remove_file(file);
    // An empty one would hide the factory settings from the format, and holds nothing of the user's.
    utString const copy = user_directory() + "/" + name;
    std::string content;
    if (file_of(copy).read(content) && content.empty())
        sdu_remove_file(copy);
    m_working.initialise(installed);
    m_table.initialise(installed);
    update_name(installed);
    return 0;
}

void sglResources::OnExportTo(wxCommandEvent &)
{
    sglExportToDialog dialog(this);
    if (!dialog.initialise(utString::make_invalid())) {
        sglMessageBox("vmrgrlib", 1217, wxOK | wxICON_ERROR);
        return;
    }
    if (dialog.ShowModal() != wxID_OK)
        return;
    if (auto const * const system = dialog.selected_system())
        export_to(*system);
}

void sglResources::export_to(sglExportSystem const & system)
{
    vmrTableInstance scratch(m_working.resource_file().c_str());
    for (coResourceIterator kept(m_working.table()); ++kept;)
        scratch.add_as_it_stands(*kept());
    vmrTableInstance const factory(sglApp::app().installation_resource_file(*m_translator).c_str());
    for (sglExportSystemIT walk(system); ++walk;)
        // A system names the options of several formats.
        if (holds(m_working.default_table(), walk.resource()) ||
            holds(factory.default_table(), walk.resource()))
            scratch.add_resource(walk.resource(), walk.value());
    CopyTable(scratch, m_working);
    m_builder.initialise(&m_working);
    enable_save(true);
}
