#include "sglUsageDialogs.h"

#include "services/sglUsageQuestion.h"
#include "services/sglUsageRecordDialog.h"
#include "sglResourceString.h"

#include "ani/aniUsageDialogs.h"

#include <wx/toplevel.h>

namespace {

wxWindow * window_of(wxWindowList const & windows, void * handle)
{
    for (wxWindow * const window : windows) {
        if (window->GetHandle() == handle)
            return window;
        if (auto * const below = window_of(window->GetChildren(), handle))
            return below;
    }
    return nullptr;
}

void ask(aniUsageRecord const & record, wxWindow * parent, apString const & text)
{
    // A refusal until the user says otherwise: however the question ends, it does not come again.
    if (record.choice() != aniUsageUndecided || !record.choose(false))
        return;
    if (sglUsageQuestion(parent, text).ShowModal() == wxID_YES)
        sgl_keep_usage_choice(record, true);
}

} // namespace

void sgl_present_usage_dialogs(utObserverPtr<s2sAnalytics const> analytics)
{
    aniUsageDialogs::set_presenter(
        [analytics](aniUsageDialogsShow show, void * handle, apString const & text) {
            auto const record = analytics->usage_record();
            wxWindow * const parent = handle ? window_of(wxTopLevelWindows, handle) : nullptr;
            if (show == aniUsageDialogsAtStartUp)
                ask(record, parent, text);
            else
                sglUsageRecordDialog(parent, record, text).ShowModal();
            return static_cast<int>(record.choice() == aniUsageAgreed);
        });
}

void sgl_end_usage_dialogs()
{
    aniUsageDialogs::set_presenter(nullptr);
}

utString sgl_usage_data_text()
{
    return sglGUIString("d.usage.text::For each file that it reads or writes, [[PROGRAM-NAME]] records the "
                        "time, whether the file was read or written, its format, its size and the version "
                        "of the program: no names of files or folders, nothing of what is in the files, and "
                        "nothing about you.\n\nThe records stay in a text file on this computer and are "
                        "never sent anywhere. They help you when you describe a problem to the support. You "
                        "can look at them, delete them and change your mind at any time with Usage Data in "
                        "the Help menu.",
                        "vmrgrlib")
        .process();
}
