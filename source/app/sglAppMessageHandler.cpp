#include "sglAppMessageHandler.h"

#include "sglApp.h"
#include "sglHelpDisplayer.h"
#include "sglReportDialog.h"

#include "wxt/wxtStringConverter.h"

#include <wx/utils.h>

namespace {

constexpr char const * home_page = "https://www.tarnloft.example/";

/// The program may look for its window anew, so asking for it is no constant operation.
wxWindow * main_window(sglApp const * app)
{
    return const_cast<sglApp *>(app)->main_window();
}

} // namespace

sglAppMessageHandler::sglAppMessageHandler(sglApp const * app) : m_app(app) {}

sglAppMessageHandler::~sglAppMessageHandler() = default;

void sglAppMessageHandler::OnTarnloftHomePage() const
{
    start_browser(home_page);
}

void sglAppMessageHandler::OnViewTranslationDetails() const
{
    sglReportDialog(main_window(m_app)).ShowModal();
}

void sglAppMessageHandler::OnWhatNewInCrosswalk() const
{
    m_help = std::make_unique<sglHelpDisplayer>(m_app, main_window(m_app));
    m_help->show_help("source/new/new.htm");
}

void sglAppMessageHandler::start_browser(utString const & url) const
{
    wxLaunchDefaultBrowser(wxtStringConverter::to_wx(url), 0);
}
