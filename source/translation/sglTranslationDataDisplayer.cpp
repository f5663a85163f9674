#include "sglTranslationDataDisplayer.h"

#include "sglResourceHandler.h"
#include "sglResourceString.h"

#include "s2s/s2sBatchMarker.h"
#include "sdu/sduServices.h"
#include "translation/sglVerificationText.h"
#include "vmr/coResourceIterator.h"

namespace {

constexpr char const * domain = "vmrgrlib";

utString short_name(utString const & path, sdbSdbFileFactory const & files)
{
    auto const file = files.make_file(path);
    return file.path_element(sdbPathName) + "." + file.path_element(sdbPathExtension);
}

/// The translation showed the input on the screen and wrote no file.
bool is_viewer(sdbTranslationData const & record)
{
    return record.output_format(0).case_compare("viewer") == 0;
}

unsigned int status_text(sdbProgressFinish status)
{
    switch (status) {
    case sdbProgressCompleted:
        return 1060;
    case sdbProgressCancelled:
        return 1061;
    case sdbProgressFailed:
        return 1062;
    default:
        return 1064;
    }
}

/// The next piece of `text` at or behind `from`, which moves behind it. Zero when nothing was left to take.
int next_piece(utString const & text, utString const & separator, int & from, utString & piece)
{
    while (text.locate_substring(separator, from) == from)
        from += separator.length();
    if (from >= text.length())
        return 0;
    int const found = text.locate_substring(separator, from);
    int const end = found < 0 ? text.length() : found;
    piece = text.substring(from, end - from);
    from = end;
    return 1;
}

} // namespace

sglTranslationDataDisplayer::sglTranslationDataDisplayer(sdbTranslationData const * record,
                                                         vmrabsAppInfo const * info)
    : m_record(record)
{
    info->services()->find_service(sdbSDBFILEFACTORY, m_files);
}

utString sglTranslationDataDisplayer::title(sdbTranslationData const * record,
                                            sdbSdbFileFactory const * files)
{
    if (is_viewer(*record))
        return sglResourceString(domain, 1053, short_name(record->input_file(0), *files));
    if (record->type() == sdbTranslationMerge)
        return sglResourceString(domain, 1054, short_name(record->output_file(0), *files));
    if (record->type() == sdbTranslationBatch)
        return sglResourceString(domain, 1273);
    return sglResourceString(domain, 1055, short_name(record->input_file(0), *files),
                             short_name(record->output_file(0), *files));
}

int sglTranslationDataDisplayer::display()
{
    increment_depth(title(m_record, m_files.pointer()));
    for (int i = 0; i < m_record->num_output_files(); ++i)
        display_translation(i);
    return 1;
}

void sglTranslationDataDisplayer::display_translation(int index)
{
    if (m_record->type() == sdbTranslationBatch)
        display_text(s2s_batch_marker());
    display_text(sglResourceString(domain, status_text(m_record->status(index))));
    display_inputs(index);
    if (!is_viewer(*m_record))
        display_output(index);
    display_messages(m_record->output_messages(index), 1065);
    display_messages(m_record->error_messages(index), 1066);
    display_verification(m_record->verdict(index), m_record->findings(index));
}

void sglTranslationDataDisplayer::display_inputs(int index)
{
    auto const display_input = [this](int input) {
        display_file_details(m_record->input_file(input), m_record->input_format(input),
                             m_record->input_resource_table(input));
    };
    switch (m_record->type()) {
    case sdbTranslationBatch:
        increment_depth(sglResourceString(domain, 1274, index + 1));
        display_input(index);
        break;
    case sdbTranslationMerge:
        increment_depth(sglResourceString(domain, 1057));
        for (int k = 0; k < m_record->num_input_files(); ++k) {
            increment_depth(sglResourceString(domain, 1058, k + 1));
            display_input(k);
            decrement_depth();
        }
        break;
    default:
        increment_depth(sglResourceString(domain, 1056));
        for (int k = 0; k < m_record->num_input_files(); ++k)
            display_input(k);
    }
    decrement_depth();
}

void sglTranslationDataDisplayer::display_output(int index)
{
    increment_depth(m_record->type() == sdbTranslationBatch ? sglResourceString(domain, 1275, index + 1)
                                                            : sglResourceString(domain, 1059));
    display_file_details(m_record->output_file(index), m_record->output_format(index),
                         m_record->output_resource_table(index));
    decrement_depth();
}

void sglTranslationDataDisplayer::display_file_details(utString const & file, utString const & format,
                                                       vmrTableInstance const & table)
{
    display_text(sglResourceString(domain, 1067, file));
    display_text(sglResourceString(domain, 1068, format));
    increment_depth(sglResourceString(domain, 1069, table.resource_file()));
    display_resource_overrides(table);
    decrement_depth();
}

void sglTranslationDataDisplayer::display_messages(utString const & messages, unsigned int header_id)
{
    static utString const separator("\r\n");
    if (messages.empty())
        return;
    increment_depth(sglResourceString(domain, header_id));
    int from = 0;
    utString piece;
    while (next_piece(messages, separator, from, piece))
        display_text(piece);
    decrement_depth();
}

void sglTranslationDataDisplayer::display_verification(sdbVerdict verdict, sdbFindings const & findings)
{
    if (verdict == sdbVerdictNone && findings.empty())
        return;
    increment_depth(sgl_verification_heading(verdict));
    for (auto const & finding : findings.kept())
        display_text(sgl_finding_line(finding));
    if (findings.left_out() != 0)
        display_text(sgl_findings_left_out_line(findings.left_out()));
    decrement_depth();
}

void sglTranslationDataDisplayer::display_resource_overrides(vmrTableInstance const & table)
{
    coResourceTable const * const defaults = table.default_table();
    bool header_shown = false;
    coResourceIterator resource(table.table());
    while (++resource) {
        auto const * const standard = defaults ? defaults->lookup_resource(resource()->key) : nullptr;
        if (!standard || standard->value_text().compare(resource()->value_text()) == 0)
            continue;
        if (!header_shown)
            increment_depth(sglResourceString(domain, 1070));
        header_shown = true;
        utString const & name = resource()->key->name;
        display_text(name + " " + sglResourceHandler(name).display(resource()));
    }
    if (header_shown)
        decrement_depth();
}
