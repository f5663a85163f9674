#pragma once

#include "sdb/sdbTranslationData.h"

/// A record of a finished translation, filled in a few words.
struct kitRecord {
    sdbTranslationData data;

    explicit kitRecord(sdbTranslationType type = sdbTranslationSingle) { data.set_type(type); }

    kitRecord & input(utString const & file, utString const & format, vmrTableInstance const & table = {})
    {
        data.set_input_file(file);
        data.set_input_format(format);
        data.set_input_resource_table(table);
        return *this;
    }
    kitRecord & output(utString const & file, utString const & format, vmrTableInstance const & table = {})
    {
        data.set_output_file(file);
        data.set_output_format(format);
        data.set_output_resource_table(table);
        return *this;
    }
    kitRecord & ended(sdbProgressFinish status, utString const & output_text = "",
                      utString const & error_text = "")
    {
        data.set_translation_status(status);
        data.set_output_messages(output_text);
        data.set_error_messages(error_text);
        return *this;
    }
    kitRecord & verified(sdbVerdict verdict, std::vector<sdbFinding> const & findings = {})
    {
        sdbFindings all;
        for (auto const & finding : findings)
            all.add(finding);
        data.set_verdict(verdict);
        data.set_findings(all);
        return *this;
    }
};
