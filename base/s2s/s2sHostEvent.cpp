#include "s2s/s2sHostEvent.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <optional>
#include <utility>

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

/// The fields that lines of the host have, each as far as it was there and of its type.
struct Fields {
    std::optional<std::string> event;
    std::optional<std::string> path;
    std::optional<std::string> direction;
    std::optional<std::string> stream;
    std::optional<std::string> domain;
    std::optional<std::string> key;
    std::optional<std::string> status;
    std::optional<std::string> weight;
    std::optional<std::string> kind;
    std::optional<std::string> part;
    std::optional<std::string> place;
    std::optional<std::string> verdict;
    std::optional<double> source;
    std::optional<double> output;
    std::optional<double> percent;
    std::optional<double> processed;
    std::optional<double> failed;
    bool legal_arguments = true;
    utTextArguments arguments;
};

using TextField = std::optional<std::string> Fields::*;
using NumberField = std::optional<double> Fields::*;

constexpr std::pair<std::string_view, TextField> text_fields[] = {
    {"event", &Fields::event},         {"stream", &Fields::stream},
    {"domain", &Fields::domain},       {"key", &Fields::key},
    {"status", &Fields::status},       {"path", &Fields::path},
    {"direction", &Fields::direction}, {"weight", &Fields::weight},
    {"kind", &Fields::kind},           {"part", &Fields::part},
    {"place", &Fields::place},         {"verdict", &Fields::verdict}};
constexpr std::pair<std::string_view, NumberField> number_fields[] = {{"percent", &Fields::percent},
                                                                      {"processed", &Fields::processed},
                                                                      {"failed", &Fields::failed},
                                                                      {"source", &Fields::source},
                                                                      {"output", &Fields::output}};

constexpr std::pair<std::string_view, sdbWeight> weights[] = {
    {"note", sdbWeightNote}, {"difference", sdbWeightDifference}, {"loss", sdbWeightLoss}};
constexpr std::pair<std::string_view, sdbVerdict> verdicts[] = {{"verified", sdbVerdictVerified},
                                                                {"differs", sdbVerdictDiffers},
                                                                {"losses", sdbVerdictLosses},
                                                                {"not_verified", sdbVerdictNotVerified}};

template <class Value, std::size_t size>
std::optional<Value> value_named(std::pair<std::string_view, Value> const (&table)[size],
                                 std::optional<std::string> const & name)
{
    for (auto const & [value_name, value] : table)
        if (name == value_name)
            return value;
    return std::nullopt;
}

template <class Table>
auto field_named(Table const & table, std::string_view name) -> decltype(table[0].second)
{
    for (auto const & [field_name, field] : table)
        if (field_name == name)
            return field;
    return nullptr;
}

/// Takes the fields straight from the parser, without a tree of values in between: a translation may have
/// hundreds of thousands of messages.
class FieldReader : public nlohmann::json_sax<json> {
public:
    explicit FieldReader(Fields & fields) : m_fields(fields) {}

    bool null() override { return refuse_argument(); }
    bool boolean(bool) override { return refuse_argument(); }
    bool number_integer(std::int64_t value) override { return number(value, static_cast<double>(value)); }
    bool number_unsigned(std::uint64_t value) override
    {
        auto const real = static_cast<double>(value);
        return value > INT64_MAX ? number(real, real) : number(static_cast<std::int64_t>(value), real);
    }
    bool number_float(double value, std::string const &) override { return number(value, value); }
    bool string(std::string & value) override
    {
        if (m_in_arguments && m_depth == 2)
            m_fields.arguments.emplace_back(std::move(value));
        else if (auto const field = m_depth == 1 ? field_named(text_fields, m_key) : nullptr)
            m_fields.*field = std::move(value);
        else
            refuse_argument();
        return true;
    }
    bool binary(json::binary_t &) override { return false; }

    bool key(std::string & name) override
    {
        if (m_depth == 1)
            m_key = std::move(name);
        return true;
    }
    bool start_object(std::size_t) override { return enter(true); }
    bool end_object() override { return leave(); }
    bool start_array(std::size_t) override { return enter(false); }
    bool end_array() override { return leave(); }
    bool parse_error(std::size_t, std::string const &, json::exception const &) override { return false; }

private:
    bool number(utTextArgument argument, double value)
    {
        if (m_in_arguments && m_depth == 2)
            m_fields.arguments.push_back(std::move(argument));
        else if (auto const field = m_depth == 1 ? field_named(number_fields, m_key) : nullptr)
            m_fields.*field = value;
        else
            refuse_argument();
        return true;
    }
    bool enter(bool object)
    {
        if (m_depth == 0 && !object)
            return false;
        if (m_depth == 1 && m_key == "args" && !object)
            m_in_arguments = true;
        else
            refuse_argument();
        ++m_depth;
        return true;
    }
    bool leave()
    {
        if (--m_depth == 1)
            m_in_arguments = false;
        return true;
    }
    bool refuse_argument()
    {
        if (m_depth >= 1 && m_key == "args")
            m_fields.legal_arguments = false;
        return true;
    }

    Fields & m_fields;
    std::string m_key;
    int m_depth = 0;
    bool m_in_arguments = false;
};

bool read_fields(std::string_view line, Fields & fields)
{
    FieldReader reader(fields);
    return json::sax_parse(line, &reader);
}

s2sHostEvent file_event(Fields & fields)
{
    if (!fields.path || (fields.direction != "reading" && fields.direction != "writing"))
        return {};
    return s2sHostFile{std::move(*fields.path),
                       fields.direction == "writing" ? s2sReadWriteWriting : s2sReadWriteReading};
}

s2sHostEvent progress_event(Fields const & fields)
{
    if (!fields.percent)
        return {};
    return s2sHostProgress{static_cast<int>(std::clamp(*fields.percent, 0.0, 100.0))};
}

s2sHostEvent message_event(Fields & fields)
{
    if (!fields.domain || !fields.key || !fields.legal_arguments ||
        (fields.stream != "output" && fields.stream != "error"))
        return {};
    return s2sHostMessage{fields.stream == "error", std::move(*fields.domain), std::move(*fields.key),
                          std::move(fields.arguments)};
}

s2sHostEvent finding_event(Fields & fields)
{
    auto const weight = value_named(weights, fields.weight);
    if (!weight || !fields.kind || !fields.domain || !fields.key || !fields.legal_arguments)
        return {};
    return s2sHostFinding{*weight,
                          std::move(*fields.kind),
                          fields.part.value_or(std::string()),
                          fields.place.value_or(std::string()),
                          fields.source,
                          fields.output,
                          std::move(*fields.domain),
                          std::move(*fields.key),
                          std::move(fields.arguments)};
}

s2sHostEvent verdict_event(Fields const & fields)
{
    auto const verdict = value_named(verdicts, fields.verdict);
    if (!verdict)
        return {};
    return s2sHostVerdict{*verdict};
}

int count_of(double number)
{
    return static_cast<int>(std::clamp(number, 0.0, static_cast<double>(INT_MAX)));
}

s2sHostEvent end_event(Fields const & fields)
{
    static constexpr std::pair<std::string_view, s2sThreadStatus> statuses[] = {
        {"completed", s2sThreadCompleted},
        {"read_error", s2sThreadReadError},
        {"write_error", s2sThreadWriteError},
        {"too_big", s2sThreadFileTooBig},
        {"cancelled", s2sThreadCancelled}};
    if (!fields.processed || !fields.failed)
        return {};
    for (auto const & [name, status] : statuses)
        if (fields.status == name)
            return s2sHostEnd{status, count_of(*fields.processed), count_of(*fields.failed)};
    return {};
}

} // namespace

s2sHostEvent s2s_parse_host_event(std::string_view line)
{
    Fields fields;
    if (!read_fields(line, fields)) {
        fields = {};
        if (!read_fields(s2s_repair_utf8(line), fields))
            return {};
    }
    if (fields.event == "message")
        return message_event(fields);
    if (fields.event == "progress")
        return progress_event(fields);
    if (fields.event == "finding")
        return finding_event(fields);
    if (fields.event == "verdict")
        return verdict_event(fields);
    if (fields.event == "file")
        return file_event(fields);
    if (fields.event == "end")
        return end_event(fields);
    return {};
}

std::string s2s_repair_utf8(std::string_view text)
{
    // The JSON writer replaces invalid bytes; reading its text back undoes the escapes.
    auto const repaired = json(text).dump(-1, ' ', false, json::error_handler_t::replace);
    return json::parse(repaired).get<std::string>();
}
