#include "s2s/s2sHostEvent.h"

#include <algorithm>
#include <climits>

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

json const * member(json const & object, char const * name)
{
    auto const found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

bool read_text(json const & object, char const * name, std::string & text)
{
    auto const value = member(object, name);
    if (!value || !value->is_string())
        return false;
    text = value->get_ref<std::string const &>();
    return true;
}

bool read_count(json const & object, char const * name, int & count)
{
    auto const value = member(object, name);
    if (!value || !value->is_number())
        return false;
    count = static_cast<int>(std::clamp(value->get<double>(), 0.0, static_cast<double>(INT_MAX)));
    return true;
}

bool read_arguments(json const & values, utTextArguments & arguments)
{
    for (auto const & value : values) {
        if (value.is_string())
            arguments.emplace_back(value.get_ref<std::string const &>());
        else if (value.is_number_float())
            arguments.emplace_back(value.get<double>());
        else if (value.is_number_integer())
            arguments.emplace_back(value.get<std::int64_t>());
        else
            return false;
    }
    return true;
}

s2sHostEvent read_file(json const & object)
{
    std::string path;
    std::string direction;
    if (!read_text(object, "path", path) || !read_text(object, "direction", direction))
        return {};
    if (direction != "reading" && direction != "writing")
        return {};
    return s2sHostFile{path, direction == "writing" ? s2sReadWriteWriting : s2sReadWriteReading};
}

s2sHostEvent read_progress(json const & object)
{
    s2sHostProgress progress;
    if (!read_count(object, "percent", progress.percent))
        return {};
    progress.percent = std::min(progress.percent, 100);
    return progress;
}

s2sHostEvent read_message(json const & object)
{
    s2sHostMessage message;
    std::string stream;
    std::string domain;
    std::string key;
    if (!read_text(object, "stream", stream) || !read_text(object, "domain", domain) ||
        !read_text(object, "key", key) || (stream != "output" && stream != "error"))
        return {};
    auto const arguments = member(object, "args");
    if (arguments && (!arguments->is_array() || !read_arguments(*arguments, message.arguments)))
        return {};
    message.error = stream == "error";
    message.domain = std::move(domain);
    message.key = std::move(key);
    return message;
}

s2sHostEvent read_end(json const & object)
{
    static constexpr std::pair<char const *, s2sThreadStatus> statuses[] = {
        {"completed", s2sThreadCompleted},
        {"read_error", s2sThreadReadError},
        {"write_error", s2sThreadWriteError},
        {"too_big", s2sThreadFileTooBig},
        {"cancelled", s2sThreadCancelled}};
    s2sHostEnd end;
    std::string status;
    if (!read_text(object, "status", status) || !read_count(object, "processed", end.processed) ||
        !read_count(object, "failed", end.failed))
        return {};
    auto const found = std::find_if(std::begin(statuses), std::end(statuses),
                                    [&](auto const & s) { return status == s.first; });
    if (found == std::end(statuses))
        return {};
    end.status = found->second;
    return end;
}

json parse(std::string_view line)
{
    auto value = json::parse(line, nullptr, false);
    return value.is_discarded() ? json::parse(s2s_repair_utf8(line), nullptr, false) : value;
}

} // namespace

s2sHostEvent s2s_parse_host_event(std::string_view line)
{
    auto const object = parse(line);
    std::string event;
    if (!object.is_object() || !read_text(object, "event", event))
        return {};
    if (event == "message")
        return read_message(object);
    if (event == "progress")
        return read_progress(object);
    if (event == "file")
        return read_file(object);
    if (event == "end")
        return read_end(object);
    return {};
}

std::string s2s_repair_utf8(std::string_view text)
{
    // The JSON writer replaces invalid bytes; reading its text back undoes the escapes.
    auto const repaired = json(text).dump(-1, ' ', false, json::error_handler_t::replace);
    return json::parse(repaired).get<std::string>();
}
