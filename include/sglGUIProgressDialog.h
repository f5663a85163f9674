#pragma once

#include <memory>

#include "sdb/sdbTranslationData.h"
#include "sglProgressDialogBase.h"
#include "vmr/vmrabsAppInfo.h"

class sglEdit;
class wxButton;
class wxGauge;
class wxNotebook;
class wxStaticLine;
class wxStaticText;

/// Says to a progress dialog that its translation has ended. The integer is the sdbProgressFinish value; with
/// a failure the string is the message for the user. To be sent on the graphical thread, and processed there
/// and then.
wxDECLARE_EVENT(sglEVT_TRANSLATION_ENDED, wxCommandEvent);

/// The dialog in front of one translation: its progress, the texts of its two streams, and in the end its
/// outcome. Makes the record of the translation and gives it to the application. Serves for one run.
class sglGUIProgressDialog : public sglProgressDialogBase {
public:
    sglGUIProgressDialog(vmrabsAppInfo const * info, wxWindow * parent, s2sThreadComm * channel);
    ~sglGUIProgressDialog() override;

    vmrnlsDisplayer * output_display() override;
    vmrnlsDisplayer * error_display() override;
    int progress(int percent) override;
    void fileLabel(utString const & file) override;
    void operationLabel(utString const & label) override;
    void reset() override;
    void translation_cancelled() override;
    void translation_ended_ok() override;
    void translation_error(utString const & text) override;
    int begin(sglTranslation const * translation) override;

    void activateOKbutton();   ///< as after the end: OK, and the panes' menus, but no Cancel
    void deactivateOKbutton(); ///< as while the worker runs
    void save_details();       ///< asks for a file and writes the report of the translation to it

    /// What the user is told at a clean end. With an empty text the dialog then closes by itself.
    void set_translation_ended_ok_message(utString const & text) { m_success_message = text; }

    using sglProgressDialogBase::OnCancel;

protected:
    virtual void start_translation_data(sglTranslation const * translation);
    virtual void finish_translation_data(sdbProgressFinish status);

    void show_details();
    void hide_details();
    void clear_tabs();
    void ensure_visible(); ///< shows the parent window
    void ShowErrors();     ///< opens the details on the errors, if there are any
    int OnInitDialog();    ///< called by begin(); in the end it lets the worker go
    void OnEndOk();
    void OnClosing();
    void OnError(utString const & text);

    int set_gauge(int value);                                   ///< non-zero when the value has grown
    sdbTranslationData & start_record(sdbTranslationType type); ///< an empty one
    sdbTranslationData & record() const { return *m_record; }
    void register_record(); ///< the application takes the record over
    utString output_text(); ///< all that has been written to the stream so far
    utString error_text();

    wxDECLARE_EVENT_TABLE();

private:
    void find_controls();
    void show_file(utString const & file);
    void set_height(int height);
    void end_with(sdbProgressFinish outcome, utString const & text = {});
    void OnDetails(wxCommandEvent & event);
    void OnCancel(wxCommandEvent & event);
    void OnOK(wxCommandEvent & event);
    void OnUserMessage(wxCommandEvent & event);
    void OnCopy(wxCommandEvent & event);
    void OnSelectAll(wxCommandEvent & event);
    void OnSaveDetails(wxCommandEvent & event);
    void OnClose(wxCloseEvent & event);

    wxStaticText * m_operation_label = nullptr;
    wxStaticText * m_file_label = nullptr;
    wxGauge * m_gauge = nullptr;
    wxButton * m_details_button = nullptr;
    wxNotebook * m_tabs = nullptr;
    sglEdit * m_output_pane = nullptr;
    sglEdit * m_error_pane = nullptr;
    wxButton * m_ok_button = nullptr;
    wxStaticLine * m_separator = nullptr;
    wxButton * m_cancel_button = nullptr;
    int m_details_shown = 1;
    utString m_first_file;
    std::unique_ptr<sdbTranslationData> m_unregistered; // until the application has it
    sdbTranslationData * m_record = nullptr;
    utString m_success_message;
    int m_full_height = 100;
    int m_short_height = 100;
    utString m_details_closed_label;
    utString m_details_open_label;
    vmrabsAppInfo const * m_info;
};
