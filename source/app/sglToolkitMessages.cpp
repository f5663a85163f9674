#include "sglToolkitMessages.h"

#include <glib.h>

namespace {

void drop(gchar const *, GLogLevelFlags, gchar const *, gpointer) {}

} // namespace

void sgl_silence_toolkit_messages()
{
    // wxApp::GTKSuppressDiagnostics promises the same and does nothing in the toolkit's 3.2.2.
    g_log_set_default_handler(drop, nullptr);
}
