#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "compare/cmpReport.h"

class cmpTexts;

/// Takes what the host says of a comparison into a report.
class cmpHostTalk {
public:
    cmpHostTalk(cmpReport & report, cmpTexts const & texts) : m_report(report), m_texts(texts) {}

    void take(std::string_view line);

    /// The host's last word; none as long as it has not said it.
    std::optional<s2sHostEnd> const & end() const { return m_end; }
    std::string const & file() const { return m_file; } ///< at which the host is
    bool both_read() const { return m_read; }
    std::string const & error() const { return m_error; } ///< the last message of an error

private:
    void take_finding(s2sHostFinding const & event);
    bool take_record(std::string_view line);

    cmpReport & m_report;
    cmpTexts const & m_texts;
    std::optional<s2sHostEnd> m_end;
    std::string m_file;
    std::string m_error;
    int m_files = 0; // that the host has begun to read
    bool m_read = false;
};
