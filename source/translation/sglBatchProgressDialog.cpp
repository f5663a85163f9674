#include "sglBatchProgressDialog.h"

#include "sglResourceString.h"
#include "sglStreamText.h"
#include "sglTranslation.h"

#include "nls/sglShownMessage.h"

#include <algorithm>
#include <array>
#include <wx/msgdlg.h>

namespace {

constexpr char const * domain = "vmrgrlib";

/// The files of the summary by outcome, in the order in which it shows them.
class SummaryLists {
public:
    void add(s2sThreadStatus status, utString const & input, utString const & output)
    {
        auto list = m_lists.begin();
        while (list->status != status && list->status != s2sThreadNotEnded)
            ++list;
        list->files += "  " + (status == s2sThreadWriteError ? output : input) + "\n";
    }
    utString text() const
    {
        utString result;
        for (auto const & list : m_lists)
            if (!list.files.empty())
                result += sglResourceString(domain, list.text, list.files + "\n");
        return result;
    }

private:
    struct List {
        s2sThreadStatus status;
        unsigned int text;
        utString files = {};
    };
    std::array<List, 6> m_lists{{
        {s2sThreadCompleted, 1276},
        {s2sThreadCancelled, 1277},
        {s2sThreadFileTooBig, 1278},
        {s2sThreadReadError, 1279},
        {s2sThreadWriteError, 1280},
        {s2sThreadNotEnded, 1282}, // stands for all that is not named above
    }};
};

} // namespace

sglBatchProgressDialog::sglBatchProgressDialog(vmrabsAppInfo const * info, wxWindow * parent)
    : sglGUIProgressDialog(info, parent, nullptr)
{
}

int sglBatchProgressDialog::progress(int percent)
{
    int const outputs = std::max(1, record().num_output_files());
    int const done = ((percent - 100) + channel()->num_translations() * 100) / outputs;
    return set_gauge(std::clamp(done, 0, 100));
}

void sglBatchProgressDialog::start_translation_data(sglTranslation const * translation)
{
    auto & data = start_record(sdbTranslationBatch);
    for (int i = 0; i < translation->num_output_files(); ++i) {
        data.set_input_file(translation->input_file(i));
        data.set_input_format(translation->input_format(i));
        data.set_input_resource_table(translation->input_resource_table(i));
        data.set_output_file(translation->output_file(i));
        data.set_output_format(translation->output_format(i));
        data.set_output_resource_table(translation->output_resource_table(i));
    }
}

void sglBatchProgressDialog::finish_translation_data(sdbProgressFinish)
{
    auto & data = record();
    utString output = output_text();
    utString errors = error_text();
    for (int i = 0; i < data.num_output_files(); ++i) {
        auto const details = channel()->translation_details(i);
        auto const status = sgl_finish_of(details.status());
        bool const cancelled = status == sdbProgressCancelled;
        data.set_translation_status(status);
        data.set_output_messages(cancelled ? utString() : sgl_record_text(sgl_cut_batch_section(output)));
        data.set_error_messages(cancelled ? utString() : sgl_record_text(sgl_cut_batch_section(errors)));
        data.set_verdict(details.verdict());
        data.set_findings(details.findings());
    }
    register_record();
}

utString sglBatchProgressDialog::summary()
{
    auto const & data = record();
    SummaryLists lists;
    bool has_errors = false, has_failed = false;
    for (int i = 0; i < data.num_output_files(); ++i) {
        auto const details = channel()->translation_details(i);
        lists.add(details.status(), data.input_file(i), data.output_file(i));
        has_errors = has_errors || !data.error_messages(i).empty();
        has_failed = has_failed || details.num_failed() != 0;
    }
    utString text = lists.text();
    if (has_failed || has_errors)
        ShowErrors();
    if (has_failed)
        text += sglResourceString(domain, 1283);
    else if (has_errors)
        text += sglResourceString(domain, 1284);
    return text;
}

void sglBatchProgressDialog::translation_ended()
{
    progress(100);
    finish_translation_data(sdbProgressCompleted);
    ensure_visible();
    sgl_show_message(nullptr, summary(), wxOK);
    activateOKbutton();
}
