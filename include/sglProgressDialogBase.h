#pragma once

#include "nls/vmrnlsDisplayer.h"
#include "s2s/s2sThreadComm.h"
#include "sglDialog.h"

class sglTranslation;

/// What the driver of a translation talks to: the place where its progress, texts and outcome go. Graphical
/// thread, in a command-line run the polling thread.
class sglProgressDialogBase : public sglDialog {
public:
    sglProgressDialogBase(wxWindow * parent, s2sThreadComm * channel, utString const & resource_name);

    virtual vmrnlsDisplayer * output_display() = 0; ///< a new sink of the output stream; the caller owns it
    virtual vmrnlsDisplayer * error_display() = 0;  ///< the same for the error stream
    virtual int progress(int percent) = 0;          ///< non-zero when the value has grown
    virtual void fileLabel(utString const & file);  ///< nothing here
    virtual void operationLabel(utString const & label); ///< nothing here
    virtual void reset() = 0;
    virtual void translation_cancelled() = 0;
    virtual void translation_ended_ok() = 0;
    virtual void translation_error(utString const & text) = 0;
    virtual int begin(sglTranslation const * translation); ///< shows the dialog; returns the modal result

    void Lock(); ///< enters the channel's critical section
    void OnCancel() { m_cancelled = 1; }
    int cancelled() const { return m_cancelled; }
    void communicator(s2sThreadComm * channel) { m_channel = channel; } ///< not owned

protected:
    void Unlock(); ///< leaves the channel's critical section
    void clear_cancelled() { m_cancelled = 0; }
    s2sThreadComm * channel() const { return m_channel; }
    int ended_well() const { return m_ended_well; }
    void set_ended_badly() { m_ended_well = 0; }

private:
    int m_cancelled = 0;
    s2sThreadComm * m_channel;
    int m_ended_well = 1;
};
