// What a request tells others afterwards: the usage reporter, and the user when a translator did not load.

#include "sglTranslation.h"

#include "sglApp.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"

#include "s2s/s2sAnalytics.h"
#include "sdu/sduServiceKeys.h"
#include "sdu/sduServicePtr.h"

void sglTranslation::log_translation_details(s2sTranslationDetails const & details) const
{
    sduServicePtr<s2sAnalytics> service;
    m_info->services()->find_service(sduServiceKey(s2sANALYTICSOPERATION), service);
    s2sAnalytics * const analytics = service.pointer();
    if (!analytics)
        return;
    auto const & encoding = *m_info->ut_encoding();
    auto const text = [&](utString const & source) { return encoding.to_ap(source); };
    for (auto const & input : details.elements().input_elements())
        if (!input.is_viewer())
            analytics->read_file(text(input.file()), text(input.format()));
    auto const & output = details.elements().output_elements();
    if (!output.is_viewer())
        analytics->write_file(text(output.file()), text(output.format()));
}

void sglTranslation::display_dll_load_error(sdbTranslatorLoadStatus status) const
{
    auto files = status.translator_files_failed_to_load();
    if (files.undefined())
        return;
    utString text;
    while (++files) {
        text += m_nls->gsprintf("vmrgrlib", "Error : unable to load %s\n",
                                m_info->ut_encoding()->to_ut(files().string()));
    }
    sgl_show_error_text(text);
}
