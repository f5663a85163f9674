#pragma once

#include "co/coPageArr.h"
#include "sdb/sdbFindings.h"
#include "sdb/sdbProgressFinish.h"
#include "sdb/sdbTranslationType.h"
#include "sdb/sdbVerdict.h"
#include "vmr/vmrTableInstance.h"

/// The record of one finished translation or batch. Its lists are filled in the order of the files, one call
/// for each; each list counts on its own. An index that a list does not have gives an invalid text, an
/// invalid table, the status sdbProgressUnknown, the verdict sdbVerdictNone and no findings.
class sdbTranslationData {
public:
    void set_type(sdbTranslationType type) { m_type = type; }
    sdbTranslationType type() const { return m_type; }

    void set_input_file(utString const & file) { m_input.files.append(file); }
    utString const & input_file(int index) const { return text(m_input.files, index); }
    int num_input_files() const { return m_input.files.count(); }
    void set_input_format(utString const & format) { m_input.formats.append(format); }
    utString const & input_format(int index) const { return text(m_input.formats, index); }
    void set_input_resource_table(vmrTableInstance const & table) { m_input.tables.append(table); }
    vmrTableInstance const & input_resource_table(int index) const { return table(m_input, index); }

    void set_output_file(utString const & file) { m_output.files.append(file); }
    utString const & output_file(int index) const { return text(m_output.files, index); }
    int num_output_files() const { return m_output.files.count(); }
    void set_output_format(utString const & format) { m_output.formats.append(format); }
    utString const & output_format(int index) const { return text(m_output.formats, index); }
    void set_output_resource_table(vmrTableInstance const & table) { m_output.tables.append(table); }
    vmrTableInstance const & output_resource_table(int index) const { return table(m_output, index); }

    void set_translation_status(sdbProgressFinish status) { m_status.append(status); }
    sdbProgressFinish status(int index) const;

    /// The whole text of a stream, one for each output.
    void set_output_messages(utString const & messages) { m_output_messages.append(messages); }
    utString const & output_messages(int index) const { return text(m_output_messages, index); }
    void set_error_messages(utString const & messages) { m_error_messages.append(messages); }
    utString const & error_messages(int index) const { return text(m_error_messages, index); }

    /// What came of comparing each output with its source.
    void set_verdict(sdbVerdict verdict) { m_verdicts.append(verdict); }
    sdbVerdict verdict(int index) const;
    void set_findings(sdbFindings const & findings) { m_findings.append(findings); }
    sdbFindings const & findings(int index) const;

private:
    struct Side {
        coPageArr<utString> files;
        coPageArr<utString> formats;
        coPageArr<vmrTableInstance> tables;
    };

    static utString const & text(coPageArr<utString> const & list, int index);
    static vmrTableInstance const & table(Side const & side, int index);

    sdbTranslationType m_type = sdbTranslationSingle;
    Side m_input;
    Side m_output;
    coPageArr<sdbProgressFinish> m_status;
    coPageArr<utString> m_output_messages;
    coPageArr<utString> m_error_messages;
    coPageArr<sdbVerdict> m_verdicts;
    coPageArr<sdbFindings> m_findings;
};
