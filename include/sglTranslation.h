#pragma once

#include <memory>

#include <wx/event.h>
#include <wx/timer.h>

#include "ann/annDocument.h"
#include "ap/apThread.h"
#include "co/coStrings.h"
#include "nls/vmrnlsDisplayer.h"
#include "s2s/s2sTranslationElements.h"
#include "s2s/s2sTranslatorLoader.h"
#include "s2s/s2sVmr2vmr.h"
#include "s2s/s2sWrapperBase.h"
#include "sdb/sdbTranslatorDlls.h"
#include "sglThreadComm.h"
#include "vmr/vmrTableInstance.h"
#include "vmr/vmrabsOutput.h"

class sglApp;
class sglNlsHelp;
class sglProgressDialogBase;
class vmrabsAppInfo;

/// What execute() reports. It says whether the engine ran, not whether the translation succeeded.
class sglTranslationResult {
public:
    enum Value { started = 0, failed = 1, same_file = 2, no_input_translator = 3, no_output_translator = 4 };

    sglTranslationResult(Value value) : m_value(value) {}
    Value value() const { return m_value; }

private:
    Value m_value;
};

/// One request to translate: files, formats and resource tables index by index, then its run. execute()
/// returns when the progress dialog has been closed. An object runs once; a second run fails. Graphical
/// thread; only the channel, the connectors and the wrapper are touched by the worker.
class sglTranslation : public wxEvtHandler {
public:
    sglTranslation();
    ~sglTranslation() override; ///< does not stop a running thread: by then execute() has returned

    virtual sglTranslationResult execute();
    virtual int invalid() const; ///< non-zero when one of the lists is empty

    void input_file(utString const & file, int index); ///< setters grow their list to hold the index
    utString input_file(int index) const;              ///< empty when no file was set
    void input_format(utString const & format, int index);
    utString input_format(int index) const;
    void input_resource_table(vmrTableInstance & table, int index);
    vmrTableInstance & input_resource_table(int index) const;
    int num_input_files() const { return m_input_files.count(); }
    int num_input_formats() const { return m_input_formats.count(); }
    int num_input_resource_tables() const { return m_input_tables.count(); }

    void output_file(utString const & file, int index);
    utString output_file(int index) const; ///< only after an output file was set
    void output_format(utString const & format, int index);
    utString output_format(int index) const;
    void output_resource_table(vmrTableInstance & table, int index);
    vmrTableInstance & output_resource_table(int index) const;
    void output_document(annDocument * document, int index); ///< not owned, may be null
    int num_output_files() const { return m_output_files.count(); }
    int num_output_formats() const { return m_output_formats.count(); }
    int num_output_resource_tables() const { return m_output_tables.count(); }

    void progress(sglProgressDialogBase * dialog) { m_dialog = dialog; } ///< not owned; must outlive the run
    s2sThreadComm const & communicator() const { return m_channel; }

protected:
    virtual void create_wrapper();
    virtual int start_translation();
    virtual void thread_has_died() {} ///< first thing on the tick that finds the worker finished

    sglTranslationResult translate();
    int find_input_dlls();  ///< 0 when every input has a translator
    int find_output_dlls(); ///< 0 when every output has a translator
    s2sTranslatorElements input_elements(int index) const;
    s2sOutputTranslatorElements output_elements(int index) const;
    int input_is_viewer(int index) const;
    int output_is_viewer(int index) const;
    void log_translation_details(s2sTranslationDetails const & details) const;
    void display_dll_load_error(sdbTranslatorLoadStatus status) const;

    void OnTimer(wxTimerEvent & event);

    sglThreadComm & channel() { return m_channel; }
    s2sWrapperBase * wrapper() const { return m_wrapper.get(); }
    void set_wrapper(std::unique_ptr<s2sWrapperBase> wrapper) { m_wrapper = std::move(wrapper); }
    wxTimer & timer() { return m_timer; }

    /// Takes the entry out of every list, apart from the documents. The lists that are longer than that of
    /// the outputs become as long as it.
    void remove_entry(int index);

    /// What a wrapper is made of; the connectors are there from translate() on.
    s2sVmr2vmr const & context() const { return m_context; }
    vmrabsAppInfo const * application_information() const { return m_info; }
    s2sTranslatorLoader const * translator_loader() const { return m_translator_loader.get(); }
    vmrabsOutput * output_connector() const { return m_output_connector.get(); }
    vmrabsOutput * error_connector() const { return m_error_connector.get(); }
    int num_input_translators() const { return m_input_translators.count(); }
    int num_output_translators() const { return m_output_translators.count(); }

    wxDECLARE_EVENT_TABLE();

private:
    void tick();
    void tell_outcome();
    void log_completed_translations() const;

    sglThreadComm m_channel;
    std::unique_ptr<s2sWrapperBase> m_wrapper;
    wxTimer m_timer;
    utStringcoDynArr m_input_files;
    mutable coPageArr<vmrTableInstance> m_input_tables;
    utStringcoDynArr m_input_formats;
    utStringcoDynArr m_input_translators;
    utStringcoDynArr m_output_files;
    utStringcoDynArr m_output_formats;
    mutable coPageArr<vmrTableInstance> m_output_tables;
    utStringcoDynArr m_output_translators;
    coPageArr<annDocument *> m_output_documents;
    std::unique_ptr<vmrabsOutput> m_output_connector;
    std::unique_ptr<vmrabsOutput> m_error_connector;
    std::unique_ptr<vmrnlsDisplayer> m_output_displayer;
    std::unique_ptr<vmrnlsDisplayer> m_error_displayer;
    sglProgressDialogBase * m_dialog = nullptr;
    s2sVmr2vmr m_context;
    sglApp const & m_app;
    vmrabsAppInfo const * m_info;
    sdbTranslatorDlls const & m_input_catalogue;
    sdbTranslatorDlls const & m_output_catalogue;
    sglNlsHelp * m_nls;
    utString m_writing_label; ///< in the language of the request's making
    utString m_reading_label;
    std::unique_ptr<apThread> m_thread;
    apIProcessThreadOperations const * m_process_thread;
    std::unique_ptr<s2sTranslatorLoader> m_translator_loader;
};
