#include "sglTranslation.h"

#include "sglApp.h"
#include "sglNlsHelp.h"
#include "sglProgressDialogBase.h"

#include "s2s/s2sTranslate.h"
#include "s2s/s2sWrapper.h"
#include "sdb/sdbException.h"

namespace {

constexpr int tick_milliseconds = 100;

/// Stores in `translators` the translator's file for each index below `files`. Returns 1 at the first index
/// without.
int find_dlls(int files, utStringcoDynArr & formats, sdbTranslatorDlls const & catalogue,
              utStringcoDynArr & translators)
{
    for (int i = 0; i < files; ++i) {
        auto const * const info = catalogue.translator_for_format(formats.at_grow(i));
        utString & translator = translators.at_grow(i);
        if (info)
            translator = info->file_ut();
        if (translator.empty())
            return 1;
    }
    return 0;
}

int is_viewer(sdbTranslatorDlls const & catalogue, utString const & format)
{
    auto const * const info = catalogue.translator_for_format(format);
    return info ? info->is_viewer() : 0;
}

} // namespace

wxBEGIN_EVENT_TABLE(sglTranslation, wxEvtHandler)
    EVT_TIMER(wxID_ANY, sglTranslation::OnTimer)
wxEND_EVENT_TABLE()

sglTranslation::sglTranslation()
    : m_timer(this, wxID_ANY), m_app(sglApp::app()), m_info(m_app.application_information()),
      m_input_catalogue(m_app.input_dlls()), m_output_catalogue(m_app.output_dlls()), m_nls(getNlsHelp()),
      m_writing_label(m_nls->gsprintf("vmrgrlib", "Writing :")),
      m_reading_label(m_nls->gsprintf("vmrgrlib", "Reading :")),
      m_process_thread(sgl_process_thread_operations(*m_info)),
      m_translator_loader(std::make_unique<s2sTranslatorLoader>(
          utObserverPtr<apILibraryLoaderOperations const>(sgl_library_loader_operations(*m_info))))
{
    m_context.set_limits(s2s_limits(m_app.startup_info()));
}

sglTranslation::~sglTranslation()
{
    m_output_displayer.reset();
    m_error_displayer.reset();
    m_output_connector.reset();
    m_error_connector.reset();
    m_wrapper.reset();
    m_translator_loader.reset();
}

int sglTranslation::invalid() const
{
    return m_input_files.empty() || m_input_tables.empty() || m_input_formats.empty() ||
           m_output_files.empty() || m_output_formats.empty() || m_output_tables.empty() ||
           m_output_documents.empty();
}

int sglTranslation::find_input_dlls()
{
    return find_dlls(num_input_files(), m_input_formats, m_input_catalogue, m_input_translators);
}

int sglTranslation::find_output_dlls()
{
    return find_dlls(num_output_files(), m_output_formats, m_output_catalogue, m_output_translators);
}

sglTranslationResult sglTranslation::execute()
{
    if (find_input_dlls())
        return sglTranslationResult::no_input_translator;
    if (find_output_dlls())
        return sglTranslationResult::no_output_translator;
    return translate();
}

sglTranslationResult sglTranslation::translate()
{
    if (invalid() || !m_dialog)
        return sglTranslationResult::failed;
    m_channel.reset();
    m_dialog->communicator(&m_channel);
    if (m_output_displayer || m_error_displayer || m_output_connector || m_error_connector)
        return sglTranslationResult::failed;
    m_output_displayer.reset(m_dialog->output_display());
    m_error_displayer.reset(m_dialog->error_display());
    m_output_connector.reset(m_nls->make_new_connector(m_output_displayer.get()));
    m_error_connector.reset(m_nls->make_new_connector(m_error_displayer.get()));
    create_wrapper();
    if (!m_wrapper)
        return sglTranslationResult::failed;
    m_channel.currentFile(m_input_files[0], s2sReadWriteReading);
    m_dialog->fileLabel(m_input_files[0]);
    m_timer.Start(tick_milliseconds);
    start_translation();
    log_completed_translations();
    return sglTranslationResult::started;
}

void sglTranslation::log_completed_translations() const
{
    for (int i = 0; i < m_channel.num_translations(); ++i) {
        auto const details = m_channel.translation_details(i);
        if (details.status() == s2sThreadCompleted && details.num_processed() != 0)
            log_translation_details(details);
    }
}

void sglTranslation::create_wrapper()
{
    s2sTranslatorElementscoPageArr inputs;
    for (int i = 0; i < num_input_files(); ++i)
        inputs.append(input_elements(i));
    s2sTranslationElements const elements(inputs, output_elements(0));
    m_wrapper = std::make_unique<s2sWrapper>(m_context, *m_info, m_channel, m_translator_loader.get(),
                                             m_output_connector.get(), m_error_connector.get(), elements);
}

int sglTranslation::start_translation()
{
    m_dialog->Lock();
    std::shared_ptr<apIThreadTask> task = std::make_shared<s2sTranslate>(m_wrapper.get(), m_info);
    m_thread = std::make_unique<apThread>(task, m_process_thread);
    // Where the system has no thread to give the work is done here, and the first tick tells its outcome.
    if (!m_thread->started())
        task->run();
    return m_dialog->begin(this);
}

void sglTranslation::OnTimer(wxTimerEvent &)
{
    try {
        tick();
    } catch (...) {
        sdb_exception_handler(*m_info);
        sdb_abort();
    }
}

void sglTranslation::tick()
{
    if (!m_channel.threadHasDied()) {
        m_dialog->fileLabel(m_channel.currentFile());
        m_dialog->progress(m_channel.progress());
        m_dialog->operationLabel(m_channel.writing() ? m_writing_label : m_reading_label);
        if (m_dialog->cancelled())
            m_channel.requestTermination();
        return;
    }
    thread_has_died();
    m_nls->set_translating(0);
    m_dialog->progress(100);
    m_timer.Stop();
    if (m_thread) {
        m_thread->join();
        m_thread.reset();
    }
    tell_outcome();
}

void sglTranslation::tell_outcome()
{
    auto const details = m_channel.current_translation_details();
    switch (details.status()) {
    case s2sThreadFileTooBig:
        m_dialog->translation_error(m_nls->gsprintf("vmrgrlib", "Input file too big"));
        break;
    case s2sThreadReadError:
        m_dialog->translation_error(
            m_nls->gsprintf("vmrgrlib", "Unable to read input file %s", m_channel.currentFile()));
        break;
    case s2sThreadWriteError:
        m_dialog->translation_error(m_nls->gsprintf("vmrgrlib", "Fatal error writing to output file"));
        break;
    case s2sThreadCompleted:
        if (details.num_processed() != 0)
            m_dialog->translation_ended_ok();
        else
            m_dialog->translation_error(m_nls->gsprintf(
                "vmrgrlib", "sgltranslation::No entities were translated and no output file produced"));
        break;
    case s2sThreadCancelled:
        m_dialog->translation_cancelled();
        break;
    default:
        m_dialog->translation_error(m_nls->gsprintf("vmrgrlib", "Unknown translation error"));
    }
}

s2sTranslatorElements sglTranslation::input_elements(int index) const
{
    return s2sTranslatorElements(m_input_files[index], &m_input_tables[index], m_input_translators[index],
                                 input_is_viewer(index), m_input_formats[index]);
}

s2sOutputTranslatorElements sglTranslation::output_elements(int index) const
{
    return s2sOutputTranslatorElements(m_output_files[index], &m_output_tables[index],
                                       m_output_translators[index], m_output_documents[index],
                                       output_is_viewer(index), m_output_formats[index]);
}

int sglTranslation::input_is_viewer(int index) const
{
    return is_viewer(m_input_catalogue, m_input_formats[index]);
}

int sglTranslation::output_is_viewer(int index) const
{
    return is_viewer(m_output_catalogue, m_output_formats[index]);
}
