#include "host/hostJob.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <sstream>
#include <utility>

using nlohmann::json;

namespace {

constexpr int job_version = 1;

void from_json(json const & value, hostFile & file)
{
    value.at("file").get_to(file.file);
    value.at("module").get_to(file.module);
    value.at("format").get_to(file.format);
    if (auto const options = value.find("options"); options != value.end()) {
        options->get_to(file.options);
    }
    if (auto const refused = value.find("refused"); refused != value.end()) {
        refused->get_to(file.refused);
    }
}

void from_json(json const & value, hostComparisonJob & job)
{
    from_json(value.at("a"), job.a);
    from_json(value.at("b"), job.b);
    for (auto const & [name, number] : {std::pair{"relative", &job.relative},
                                        {"absolute", &job.absolute},
                                        {"deflection", &job.deflection}}) {
        *number = value.value(name, *number);
    }
    job.counts_only = value.value("level", std::string("full")) == "counts";
    for (auto const & [name, wanted] : {std::pair{"names", &job.names},
                                        {"colours", &job.colours},
                                        {"layers", &job.layers},
                                        {"structure", &job.structure}}) {
        if (auto const found = value.find(name); found != value.end()) {
            *wanted = found->get<bool>();
        }
    }
}

std::chrono::milliseconds milliseconds_of(json const & seconds)
{
    return std::chrono::milliseconds(std::llround(seconds.get<double>() * 1000));
}

void from_json(json const & value, hostJob & job)
{
    job.staging = value.value("staging", std::string());
    job.memory_limit = value.value("memory_limit", std::uint64_t{0});
    job.file_size_limit = value.value("file_size_limit", std::uint64_t{0});
    if (auto const silence = value.find("silence"); silence != value.end()) {
        job.silence = milliseconds_of(*silence);
    }
    if (auto const comparison = value.find("compare"); comparison != value.end()) {
        from_json(*comparison, job.comparison.emplace());
        return;
    }
    for (auto const & input : value.at("inputs")) {
        from_json(input, job.inputs.emplace_back());
    }
    auto const & output = value.at("output");
    from_json(output, job.output);
    job.final_name = output.value("final", job.output.file);
    if (auto const patience = value.find("patience"); patience != value.end()) {
        job.least_patience = milliseconds_of(*patience);
    }
}

// The first value of a text that other lines may follow.
json first_value(std::string_view text)
{
    std::istringstream stream{std::string(text)};
    json value;
    stream >> value;
    return value;
}

} // namespace

hostJobState host_parse_job(std::string_view text, hostJob & job, std::string & problem)
{
    json value;
    try {
        value = first_value(text);
    } catch (json::parse_error const & failure) {
        problem = failure.what();
        return failure.byte > text.size() ? hostJobState::incomplete : hostJobState::invalid;
    }
    try {
        if (int const version = value.at("job").get<int>(); version != job_version) {
            problem =
                "the job has version " + std::to_string(version) + ", not " + std::to_string(job_version);
            return hostJobState::invalid;
        }
        job = hostJob();
        from_json(value, job);
    } catch (json::exception const & failure) {
        problem = failure.what();
        return hostJobState::invalid;
    }
    if (job.inputs.empty() && !job.comparison) {
        problem = "the job has no inputs";
        return hostJobState::invalid;
    }
    return hostJobState::complete;
}
