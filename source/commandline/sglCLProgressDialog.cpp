#include "sglCLProgressDialog.h"

#include "sdb/sdbOstreamDisplayer.h"

#include <wx/defs.h>
#include <wx/time.h>
#include <wx/utils.h>

namespace {

constexpr long sign_of_life_milliseconds = 1000;
constexpr unsigned long wait_milliseconds = 100;

} // namespace

sglCLProgressDialog::sglCLProgressDialog(sdbOstream * stream, wxWindow * parent, s2sThreadComm * channel)
    : sglProgressDialogBase(parent, channel, "DLG_DUMMY"), m_last_output(wxGetLocalTimeMillis()),
      m_stream(stream)
{
}

vmrnlsDisplayer * sglCLProgressDialog::output_display()
{
    return new sdbOstreamDisplayer(m_stream);
}

vmrnlsDisplayer * sglCLProgressDialog::error_display()
{
    return new sdbOstreamDisplayer(m_stream);
}

int sglCLProgressDialog::progress(int percent)
{
    int const risen = percent > m_last_percent;
    if (risen) {
        while (m_last_percent < percent) {
            ++m_last_percent;
            if (m_last_percent % 10 == 0)
                m_stream->print_percent(m_last_percent);
            else
                m_stream->print_dot();
        }
        m_last_output = wxGetLocalTimeMillis();
    }
    wxLongLong const now = wxGetLocalTimeMillis();
    if (now - m_last_output >= sign_of_life_milliseconds) {
        m_stream->print_dot();
        m_last_output = now;
    }
    return risen;
}

void sglCLProgressDialog::operationLabel(utString const & label)
{
    if (m_label_written)
        return;
    m_stream->print_row_label(label.c_str());
    m_label_written = 1;
}

void sglCLProgressDialog::reset()
{
    clear_cancelled();
}

void sglCLProgressDialog::translation_cancelled()
{
    m_finished = 1;
}

void sglCLProgressDialog::translation_ended_ok()
{
    m_finished = 1;
}

void sglCLProgressDialog::translation_error(utString const & text)
{
    set_ended_badly();
    m_stream->print(text.c_str());
    m_finished = 1;
}

int sglCLProgressDialog::DoModal()
{
    Unlock();
    while (!m_finished)
        wxMilliSleep(wait_milliseconds);
    return ended_well() ? wxID_OK : wxID_CANCEL;
}
