#include "host/hostJob.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <sstream>

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
        for (auto const & input : value.at("inputs")) {
            from_json(input, job.inputs.emplace_back());
        }
        auto const & output = value.at("output");
        from_json(output, job.output);
        job.final_name = output.value("final", job.output.file);
        job.staging = value.value("staging", std::string());
        job.memory_limit = value.value("memory_limit", std::uint64_t{0});
        if (auto const patience = value.find("patience"); patience != value.end()) {
            job.least_patience = std::chrono::milliseconds(std::llround(patience->get<double>() * 1000));
        }
    } catch (json::exception const & failure) {
        problem = failure.what();
        return hostJobState::invalid;
    }
    if (job.inputs.empty()) {
        problem = "the job has no inputs";
        return hostJobState::invalid;
    }
    return hostJobState::complete;
}
