#include "sglToolkitMessages.h"

#include <glib.h>
#include <iostream>
#include <wx/debug.h>
#include <wx/string.h>

namespace {

void drop(gchar const *, GLogLevelFlags, gchar const *, gpointer) {}

#ifdef NDEBUG
constexpr wxAssertHandler_t assertion_handler = nullptr;
#else
void tell(wxString const & file, int line, wxString const & function, wxString const & condition,
          wxString const & message)
{
    std::cerr << "assertion of the toolkit: " << condition.utf8_string() << " in " << function.utf8_string()
              << ", " << file.utf8_string() << ":" << line << ": " << message.utf8_string() << '\n';
}
constexpr wxAssertHandler_t assertion_handler = tell;
#endif

} // namespace

void sgl_silence_toolkit_messages()
{
    // wxApp::GTKSuppressDiagnostics promises the same and does nothing in the toolkit's 3.2.2.
    g_log_set_default_handler(drop, nullptr);
}

void sgl_keep_toolkit_assertions_from_user()
{
    wxSetAssertHandler(assertion_handler);
}
