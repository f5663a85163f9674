#include "translators/kit/kitTrip.h"

#include <algorithm>
#include <stdexcept>

void kitReporter::message(sdkStream stream, sdkText const & text)
{
    (stream == sdkStream::output ? outputs : errors).push_back(text.formatted());
    if (!text.fits()) {
        misfits.push_back(text.key());
    }
}

bool kitReporter::says(std::string const & text) const
{
    auto const contains = [&](std::string const & message) {
        return message.find(text) != std::string::npos;
    };
    return std::any_of(outputs.begin(), outputs.end(), contains) ||
           std::any_of(errors.begin(), errors.end(), contains);
}

kitSide::kitSide(std::string const & manifest, std::string const & format, Values const & values,
                 std::string const & file)
{
    sdkManifest declared;
    if (auto const problem = declared.load(manifest); !problem.empty()) {
        throw std::runtime_error(problem);
    }
    std::vector<sdkText> problems;
    m_options.emplace(declared.format(format)->resources, values, problems);
    if (!problems.empty()) {
        throw std::runtime_error(problems.front().formatted());
    }
    m_context.emplace(*m_options, m_reporter, file);
}

sdkResult kit_read(sdkReader & reader, std::string const & path, sdkDocument & document)
{
    auto result = reader.parse(path, {});
    return result ? reader.transfer(document, {}) : result;
}

sdkResult kit_write(sdkWriter & writer, sdkDocument & document, kitReporter const & reporter,
                    std::string const & path)
{
    auto result = writer.transfer(document, {});
    return result && reporter.processed() > 0 ? writer.write(path, {}) : result;
}

bool kit_contains(std::string const & text, std::string const & part)
{
    return text.find(part) != std::string::npos;
}
