#include "sglMessageBox.h"

#include "sglApp.h"
#include "sglMessageDisplayer.h"
#include "sglResourceString.h"

#include "nls/sglShownMessage.h"

#include <iostream>
#include <wx/msgdlg.h>

namespace {

void tell_on_standard_error(utString const & text)
{
    std::cerr << sglApp::app().application_name_no_version().view() << ": " << text.view();
    if (text.empty() || text[text.length() - 1] != '\n')
        std::cerr << '\n';
}

} // namespace

int sglMessageBoxWithArguments(char const * domain, unsigned int id, utTextArguments const & arguments,
                               unsigned int style)
{
    utString const text = sglStringTableString(domain).process(id, arguments);
    if (text.empty())
        return sglMESSAGE_BOX_NO_TEXT;
    if (!sglApp::app().has_display()) {
        tell_on_standard_error(text);
        // Nobody is there to agree to anything.
        return style & wxYES_NO ? wxID_NO : wxID_OK;
    }
    int const answer = sgl_show_message(wxGetActiveWindow(), text, static_cast<long>(style));
    // Who closes a question without an answer has not agreed.
    return answer == wxID_CANCEL && style & wxYES_NO && !(style & wxCANCEL) ? wxID_NO : answer;
}

void sgl_show_error_text(utString const & text)
{
    if (!sglApp::app().has_display()) {
        tell_on_standard_error(text);
        return;
    }
    sgl_show_message(nullptr, text, wxOK | wxICON_HAND);
}

unsigned int sglWxMessageDisplayer::style_of(int flags)
{
    if (flags == 0)
        return wxOK;
    unsigned int style = 0;
    if (flags & ask_yes_no)
        style |= wxYES_NO;
    if (flags & (error | serious_error))
        style |= wxICON_HAND;
    if (flags & warning)
        style |= wxICON_EXCLAMATION;
    return style;
}

int sglWxMessageDisplayer::vmessage(char const * domain, unsigned int id, int flags,
                                    utTextArguments const & arguments) const
{
    return sglMessageBoxWithArguments(domain, id, arguments, style_of(flags)) == wxID_YES ? 1 : 0;
}
