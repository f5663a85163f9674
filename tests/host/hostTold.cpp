#include "host/hostTold.h"

#include "sdk/sdkText.h"

#include <algorithm>
#include <cctype>

using nlohmann::json;

namespace {

std::string text_of(json const & event)
{
    std::vector<sdkArgument> arguments;
    for (auto const & argument : event["args"]) {
        if (argument.is_string()) {
            arguments.emplace_back(argument.get<std::string>());
        } else if (argument.is_number_integer()) {
            arguments.emplace_back(argument.get<std::int64_t>());
        } else {
            arguments.emplace_back(argument.get<double>());
        }
    }
    return sdkText::from(event["key"], std::move(arguments)).formatted();
}

} // namespace

HostTold::HostTold(HostJob const & job)
{
    HostRun host;
    host.send(job.line());
    for (auto const & event : host.rest()) {
        if (event["event"] == "verdict") {
            verdict = event["verdict"];
        } else if (event["event"] == "message") {
            texts += text_of(event);
        } else if (event["event"] == "end") {
            status = event["status"];
        }
    }
    ended_well = host.exits_with(0);
}

std::string host_module(std::string const & folder, std::string const & format)
{
    auto name = format;
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return std::tolower(letter); });
    return folder + "/" + name + ".so";
}

std::string host_format(std::string const & file)
{
    if (file.ends_with(".step")) {
        return "STEP";
    }
    return file.ends_with(".igs") || file.ends_with(".iges") ? "IGES" : "BREP";
}
