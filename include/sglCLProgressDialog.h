#pragma once

#include <atomic>

#include "sdb/sdbOstream.h"
#include "sglProgressDialogBase.h"

#include <wx/longlong.h>

/// Turns the progress of a command-line run into text: a row of dots with a figure at each tenth step. Its
/// progress comes on the polling thread.
class sglCLProgressDialog : public sglProgressDialogBase {
public:
    sglCLProgressDialog(sdbOstream * stream, wxWindow * parent,
                        s2sThreadComm * channel); ///< the stream is not owned

    vmrnlsDisplayer * output_display() override;
    vmrnlsDisplayer * error_display() override;           ///< output and errors go to one place
    int progress(int percent) override;                   ///< also writes a dot a second while nothing moves
    void operationLabel(utString const & label) override; ///< only the first label is ever written
    void reset() override;
    void translation_cancelled() override;
    void translation_ended_ok() override;
    void translation_error(utString const & text) override;

    /// For callers that expect a dialog: lets the worker go and waits for the end of the run. Returns the
    /// toolkit's identifier of a good or a cancelled end.
    virtual int DoModal();

private:
    int m_last_percent = 0;
    int m_label_written = 0;
    wxLongLong m_last_output;
    sdbOstream * m_stream;
    std::atomic<int> m_finished = 0;
};
