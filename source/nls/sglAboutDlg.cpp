#include "sglAboutDlg.h"

#include "controls/sglShownText.h"
#include "nls/sglHelpKey.h"
#include "sglApp.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"
#include "sglResourceString.h"

#include "sdu/sduFileFunctions.h"
#include "wxt/wxtApStringConverter.h"
#include "wxt/wxtStringConverter.h"

#include <wx/convauto.h>
#include <wx/file.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/platinfo.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>
#include <wx/xrc/xmlres.h>

namespace {

wxString shown(utString const & text)
{
    return sgl_shown_text(wxtStringConverter::to_wx(text));
}

/// Open CASCADE is known only from the build: it is loaded by the translators, in a process of their own.
wxString libraries()
{
    auto const & platform = wxPlatformInfo::Get();
    return wxGetLibraryVersionInfo().GetVersionString() +
           wxString::Format("\nGTK %d.%d.%d\n", platform.GetToolkitMajorVersion(),
                            platform.GetToolkitMinorVersion(), platform.GetToolkitMicroVersion()) +
           shown(sglGUIString("d.about_box.8::Translators built with Open CASCADE %s", "vmrgrlib")
                     .process(ut_text_arguments(VMR_OCCT_VERSION)));
}

/// Row 1218 of the string table.
wxString languages()
{
    auto const & nls = *getNlsHelp();
    // Without a wish and a system's language the texts are those of the source.
    auto const or_else = [](utString const & language, char const * other) {
        return language.empty() ? utString(other) : language;
    };
    utString const code_page = wxtStringConverter::to_ut(wxLocale::GetSystemEncodingName());
    wxString text = shown(sglResourceString(
        "vmrgrlib", 1218, or_else(nls.requested_language(), "-"), or_else(nls.used_language(), "English"),
        or_else(nls.wxwidgets_language(), "English"), or_else(code_page, "-")));
    text.Replace("\r", ""); // the controls of this platform show it
    return text;
}

} // namespace

wxBEGIN_EVENT_TABLE(sglAboutDlg, sglDialog)
    EVT_INIT_DIALOG(sglAboutDlg::OnInitDialog)
    EVT_BUTTON(XRCID("IDC_ABOUTBOX_TAC"), sglAboutDlg::OnTrademarksAndCredits)
wxEND_EVENT_TABLE()

sglAboutDlg::sglAboutDlg(wxWindow * parent) : sglDialog("DLG_ABOUTBOX", "vmrgrlib", parent)
{
    CentreOnParent(wxBOTH);
    sgl_help_with_help_key(*this, "source/dialogs/about.htm");
}

void sglAboutDlg::OnInitDialog(wxInitDialogEvent & event)
{
    event.Skip();
    auto & copyright = *XRCCTRL(*this, "IDC_ABOUTBOX_COPYRIGHT_TEXT", wxTextCtrl);
    copyright.AppendText(shown(sglApp::app().copyright_message()) + "\n\n");
    // Text that is appended scrolls the first lines away.
    copyright.SetInsertionPoint(0);
    copyright.ShowPosition(0);
    show_product();
    show_surroundings();
}

void sglAboutDlg::show_product()
{
    auto & app = const_cast<sglApp &>(sglApp::app());
    auto & name = *XRCCTRL(*this, "IDC_ABOUTBOX_NAME", wxStaticText);
    name.SetFont(name.GetFont().Bold().Scaled(1.5F));
    name.SetLabelText(shown(app.application_name_no_version()));
    auto & picture = *XRCCTRL(*this, "IDC_ABOUTBOX_ICON", wxStaticBitmap);
    wxIcon const icon = app.main_icon();
    if (icon.IsOk())
        picture.SetIcon(icon);
    else
        picture.Hide();
}

void sglAboutDlg::show_surroundings()
{
    auto & text = *XRCCTRL(*this, "IDC_ABOUTBOX_SURROUNDINGS", wxTextCtrl);
    text.SetValue(languages() + "\n" + libraries());
    Layout();
}

void sglAboutDlg::OnTrademarksAndCredits(wxCommandEvent &)
{
    apFileName const name(L"TrademarksAndCredits.rtf");
    apPathName const path = sglApp::app().file_locator().search_path(sdbHRKDirectory::help).find_file(name);
    if (path.invalid())
        sglMessageBox("vmrgrlib", 1337, wxOK);
    else if (!wxLaunchDefaultApplication(wxtApStringConverter::to_wx(path)))
        open_redirect_file(path);
}

void sglAboutDlg::open_redirect_file(apPathName const & path)
{
    wxString const name = wxtStringConverter::to_wx(sdu_make_temp_file_name()) + ".html";
    wxString const url = "file:///" + wxtApStringConverter::to_wx(path);
    {
        wxLogNull const silent;
        wxFile file;
        file.Create(name, false, 0666);
        if (!file.IsOpened() ||
            !file.Write("<meta http-equiv = \"refresh\" content = \"0; url=" + url + "\" / >", wxConvAuto()))
            return;
        file.Close();
    }
    wxLaunchDefaultBrowser(name);
}
