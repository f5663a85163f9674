// The window of the resources dialog; sglResourcesFiles.cpp has what its menu does with files.

#include "sglResources.h"

#include "sglApp.h"
#include "sglDialogMenu.h"
#include "sglHelpDisplayer.h"
#include "sglMenu.h"
#include "sglOptionsDialog.h"
#include "sglResourceString.h"
#include "sglResourceUtils.h"

#include "controls/sglShownText.h"
#include "nls/sglHelpKey.h"
#include "sdu/sduServiceKeys.h"
#include "sdu/sduServices.h"
#include "vmr/coResourceIterator.h"
#include "wxt/wxtStringConverter.h"

#include <optional>
#include <wx/accel.h>
#include <wx/menu.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglResources, sglDialog)
    EVT_MENU(XRCID("IDM_OPTIONS_LOAD_DEFAULT"), sglResources::OnLoadDefault)
    EVT_MENU(XRCID("IDM_OPTIONS_LOAD_CUSTOM"), sglResources::OnLoadCustom)
    EVT_MENU(XRCID("IDM_OPTIONS_SAVE"), sglResources::OnSave)
    EVT_MENU(XRCID("IDM_OPTIONS_SAVE_AS"), sglResources::OnSaveAs)
    EVT_MENU(XRCID("IDM_OPTIONS_EXPORT_TO"), sglResources::OnExportTo)
    EVT_MENU(XRCID("IDM_OPTIONS_SCRAP_CHANGES"), sglResources::OnScrapChanges)
    EVT_MENU(XRCID("IDM_OPTIONS_FACTORY_RESET"), sglResources::OnFactoryReset)
    EVT_BUTTON(XRCID("IDC_OPTIONS_APPLY"), sglResources::OnApply)
    EVT_BUTTON(XRCID("IDC_OPTIONS_CANCEL"), sglResources::OnCancel)
    EVT_BUTTON(XRCID("IDC_OPTIONS_OK"), sglResources::OnOk)
    EVT_BUTTON(XRCID("IDC_OPTIONS_HELP"), sglResources::OnHelp)
    EVT_BUTTON(XRCID("IDC_RESOURCES_FILE_MENU"), sglResources::OnMenuButton)
    EVT_MENU(XRCID("IDC_RESOURCES_FILE_MENU"), sglResources::OnMenuButton)
    EVT_INIT_DIALOG(sglResources::OnInitDialog)
wxEND_EVENT_TABLE()

namespace {

sduServicePtr<sdbSdbFileFactory const> file_factory(vmrabsAppInfo const & app)
{
    sduServicePtr<sdbSdbFileFactory const> factory;
    app.services()->find_service(sdbSDBFILEFACTORY, factory);
    return factory;
}

/// Lends the table of a format all the resources that the format has, for as long as this object lives. A
/// file may name a few of them only, and the pages of the others are to be had all the same.
class AllResources {
public:
    AllResources(vmrTableInstance const & table, utString const & installed) : m_table(table.default_table())
    {
        if (!m_table || installed.empty())
            return;
        m_as_it_was = *m_table;
        vmrTableInstance const factory(installed.c_str());
        for (coResourceIterator resource(factory.default_table()); ++resource;)
            if (!m_table->lookup_resource(resource()->key))
                m_table->set_value(resource()->key->name, resource()->value_text());
    }
    ~AllResources()
    {
        if (m_as_it_was)
            *m_table = *m_as_it_was;
    }
    AllResources(AllResources const &) = delete;
    AllResources & operator=(AllResources const &) = delete;

private:
    coResourceTable * m_table;
    std::optional<coResourceTable> m_as_it_was;
};

wxString title(unsigned int dialog_type, utString const & name)
{
    unsigned int const id = dialog_type & sglResourceDialogBuilder::input ? 1260 : 1261;
    return sgl_shown_text(wxtStringConverter::to_wx(sglResourceString("vmrgrlib", id, name)));
}

} // namespace

sglResources::sglResources(vmrTableInstance & table, wxWindow * parent, sdbTranslatorInfo const * info,
                           vmrabsAppInfo const * app, utString const & dialog_name)
    : sglDialog(dialog_name, "vmrgrlib", parent), m_table(table), m_options(new sglOptionsDialog(this)),
      m_builder(this, m_options, &table), m_translator(info), m_file_factory(file_factory(*app))
{
    m_menu_control = XRCCTRL(*this, "IDC_RESOURCES_FILE_MENU", sglDialogMenu);
    m_coordinates = XRCCTRL(*this, "IDC_RESOURCES_COORDINATES", wxStaticText);
    CopyTable(m_table, m_working);
    SetEscapeId(XRCID("IDC_OPTIONS_CANCEL"));
    make_room_for_panel();
    CentreOnParent(wxBOTH);
}

sglResources::sglResources(vmrTableInstance & table, sdbTranslatorInfo const * info,
                           vmrabsAppInfo const * app)
    : m_table(table), m_builder(this, nullptr, &table), m_translator(info), m_file_factory(file_factory(*app))
{
    CopyTable(m_table, m_working);
}

sglResources::~sglResources() = default;

void sglResources::make_room_for_panel()
{
    // The panel has its size from the texts of the language, and the marker stands for it in the layout.
    m_coordinates->SetMinSize(m_options->GetSize());
    if (GetSizer()) {
        GetSizer()->Fit(this);
        Layout();
    }
}

void sglResources::OnInitDialog(wxInitDialogEvent & event)
{
    m_coordinates->Hide();
    build_pages();
    m_builder.initialise(&m_working);
    m_options->ProcessWindowEvent(event);
    m_options->Move(m_coordinates->GetPosition());
    make_menu();
    spread_buttons();
    add_menu_key();
    sgl_open_with_help_key(*this, [this] {
        wxCommandEvent command;
        OnHelp(command);
    });
    // The menu would have the focus as the first control.
    if (auto * const tree = m_options->FindWindow(XRCID("IDC_OPTIONS_TREE")))
        tree->SetFocus();
    SetTitle(title(m_dialog_type, apPathName::from_utf8(m_table.resource_file().view()).file_name().utf8()));
    event.Skip();
}

void sglResources::build_pages()
{
    AllResources const all(m_table, sglApp::app().installation_resource_file(*m_translator));
    if (!m_builder.build_dialog(m_dialog_type))
        close_when_modal();
}

/// The dialog is not modal yet while it is told to initialise.
void sglResources::close_when_modal()
{
    Bind(wxEVT_IDLE, [this](wxIdleEvent & event) {
        event.Skip();
        if (IsModal())
            EndModal(wxID_CANCEL);
    });
    wxWakeUpIdle();
}

void sglResources::make_menu()
{
    m_menu.reset(sglMenu("vmrgrlib").create_menu("MB_OPTIONS_MENU"));
    enable_save(false);
    // Export systems are for output only.
    if (!m_menu || m_dialog_type & sglResourceDialogBuilder::output)
        return;
    std::size_t place = 0;
    if (!m_menu->FindChildItem(XRCID("IDM_OPTIONS_EXPORT_TO"), &place))
        return;
    m_menu->Destroy(XRCID("IDM_OPTIONS_EXPORT_TO"));
    // One separator is enough for what is left on the two sides.
    if (place > 0 && place < m_menu->GetMenuItemCount() && m_menu->FindItemByPosition(place)->IsSeparator() &&
        m_menu->FindItemByPosition(place - 1)->IsSeparator())
        m_menu->Destroy(m_menu->FindItemByPosition(place));
}

void sglResources::spread_buttons()
{
    auto const button = [this](char const * id) {
        return m_options->FindWindow(wxXmlResource::GetXRCID(id));
    };
    auto * const defaults = button("IDC_OPTIONS_DEFAULTS");
    wxWindow * const others[] = {button("IDC_OPTIONS_OK"), button("IDC_OPTIONS_CANCEL"),
                                 button("IDC_OPTIONS_APPLY"), button("IDC_OPTIONS_HELP")};
    if (!defaults || !others[0] || !others[1] || !others[2] || !others[3])
        return;
    defaults->Hide();
    wxRect const ok = others[0]->GetRect();
    wxRect const help = others[3]->GetRect();
    int const width = ok.width;
    int const gap = others[1]->GetRect().x - ok.x - width + 1;
    int const left = defaults->GetRect().x;
    int const right = help.x + help.width - 1;
    int x = left + (right - left - (3 * gap + 4 * width)) / 2;
    for (auto * const other : others) {
        other->Move(x, ok.y);
        x += width + gap;
    }
}

/// The menu control is no menu for the toolkit, which therefore does not know its mnemonic.
void sglResources::add_menu_key()
{
    wxString const label = m_menu_control->GetLabel();
    auto const ampersand = label.find('&');
    if (ampersand == wxString::npos || ampersand + 1 >= label.length())
        return;
    wxAcceleratorEntry entry(wxACCEL_ALT, wxToupper(label[ampersand + 1]), m_menu_control->GetId());
    SetAcceleratorTable(wxAcceleratorTable(1, &entry));
}

void sglResources::enable_save(bool enable)
{
    if (m_menu)
        m_menu->Enable(XRCID("IDM_OPTIONS_SAVE"), enable);
}

void sglResources::update_name(utString const & file)
{
    if (GetHandle())
        SetTitle(title(m_dialog_type, file));
}

void sglResources::OnMenuButton(wxCommandEvent &)
{
    wxRect const control = m_menu_control->GetScreenRect();
    if (m_menu)
        PopupMenu(m_menu.get(), ScreenToClient(wxPoint(control.x, control.y + control.height - 1)));
    m_menu_control->menu_dismissed();
}

void sglResources::OnApply(wxCommandEvent &)
{
    enable_save(true);
}

void sglResources::OnCancel(wxCommandEvent &)
{
    EndModal(wxID_CANCEL);
}

void sglResources::OnOk(wxCommandEvent &)
{
    EndModal(wxID_OK);
}

void sglResources::OnHelp(wxCommandEvent &)
{
    show_help(nullptr);
}

void sglResources::show_help(wxWindow * parent)
{
    if (!m_help)
        m_help = std::make_unique<sglHelpDisplayer>(&sglApp::app(), parent);
    m_help->show_help("source/resources/resourcevalues.htm");
}

void sglResources::CopyTable(vmrTableInstance & from, vmrTableInstance & to)
{
    sgl_copy_resource_table(from, to);
}

sglResourcesCom::sglResourcesCom(vmrTableInstance & table, sdbTranslatorInfo const * info,
                                 vmrabsAppInfo const * app, wxWindow * parent)
    : sglResources(table, parent, info, app, "DLG_RESOURCESCOM")
{
}

void sglResourcesCom::OnHelp(wxCommandEvent &)
{
    show_help(this);
}
