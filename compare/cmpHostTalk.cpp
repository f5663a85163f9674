#include "compare/cmpHostTalk.h"

#include "compare/cmpTexts.h"

using nlohmann::json;

void cmpHostTalk::take(std::string_view line)
{
    auto const event = s2s_parse_host_event(line);
    if (auto const * const file = std::get_if<s2sHostFile>(&event)) {
        m_file = file->path.str();
        ++m_files;
    } else if (auto const * const message = std::get_if<s2sHostMessage>(&event)) {
        if (message->error)
            m_error = m_texts.of(message->domain, message->key, message->arguments);
    } else if (auto const * const finding = std::get_if<s2sHostFinding>(&event)) {
        take_finding(*finding);
    } else if (auto const * const verdict = std::get_if<s2sHostVerdict>(&event)) {
        m_report.verdict = verdict->verdict;
    } else if (auto const * const end = std::get_if<s2sHostEnd>(&event)) {
        m_end = *end;
    } else {
        take_record(line);
    }
}

void cmpHostTalk::take_finding(s2sHostFinding const & event)
{
    auto & findings = m_read ? m_report.findings : m_files > 1 ? m_report.b.findings : m_report.a.findings;
    findings.push_back({event.weight, event.kind.str(), event.part.str(), event.place.str(), event.source,
                        event.output, m_texts.of(event.domain, event.key, event.arguments)});
}

bool cmpHostTalk::take_record(std::string_view line)
{
    auto value = json::parse(line, nullptr, false);
    if (!value.is_object())
        return false;
    auto const kind = value.value("event", "");
    value.erase("event");
    if (kind == "inventory") {
        bool const second = value.value("side", "") == "b";
        value.erase("side");
        (second ? m_report.b : m_report.a).inventory = std::move(value);
        m_read = second;
    } else if (kind == "pair") {
        m_report.pairs.push_back(std::move(value));
    }
    return true;
}
