#include "host/hostTranslation.h"

#include "host/hostGuard.h"
#include "host/hostMemory.h"
#include "host/hostMerge.h"
#include "host/hostModule.h"
#include "host/hostProgress.h"
#include "host/hostReading.h"
#include "sdk/sdkAnnotations.h"
#include "sdk/sdkFiles.h"

#include <Message_ProgressScope.hxx>

#include <algorithm>
#include <filesystem>
#include <malloc.h>
#include <optional>
#include <utility>

namespace {

// Shares of the whole, from translations between B-rep formats.
constexpr double read_share = 60;
constexpr double write_transfer_share = 30;
constexpr double write_share = 10;
constexpr double verification_share = 25;

} // namespace

hostTranslation::hostTranslation(hostJob const & job, hostEvents & events,
                                 std::atomic<bool> const & cancelled, hostProcessThread & thread)
    : m_job(job), m_events(events), m_cancelled(cancelled), m_reporter(events),
      m_findings(events, m_reporter), m_verification(job, events, cancelled, thread)
{
}

sdkResult hostTranslation::run()
{
    auto result = host_guard([this] { return translate(); },
                             [this] {
                                 return hostSubject{m_file, m_writing};
                             });
    if (!result && result.status() != sdkStatus::cancelled && host_memory_ran_out()) {
        result = host_out_of_memory(m_file);
    }
    if (!result && m_output_begun) {
        std::error_code ignored;
        std::filesystem::remove(m_job.output.file, ignored);
    }
    if (!result.text().empty()) {
        m_reporter.message(sdkStream::error, result.text());
    }
    m_findings.tell(std::exchange(m_annotations, {}));
    if (!result || m_reporter.processed() == 0) {
        m_verification.conclude_without_output(result.status(), m_findings, m_reporter);
    }
    return result;
}

sdkResult hostTranslation::translate()
{
    Handle(hostProgress) const progress = new hostProgress(m_events, m_cancelled);
    auto const inputs = static_cast<double>(m_job.inputs.size());
    double const writing =
        write_transfer_share + write_share + (m_verification.wanted() ? verification_share : 0);
    Message_ProgressScope scope(progress->Start(), nullptr, read_share + writing);

    sdkDocument document;
    std::optional<hostMerge> merge;
    if (m_job.inputs.size() > 1) {
        merge.emplace(document, m_job.final_name);
    }
    for (auto const & input : m_job.inputs) {
        auto const before = document.free_shapes();
        if (auto result = read(input, document, scope.Next(read_share / inputs)); !result) {
            return result;
        }
        if (merge) {
            merge->add(document.free_shapes_since(before), input.file);
        }
    }
    if (merge) {
        merge->finish();
    }
    return write(document, scope.Next(writing));
}

// Both sides may have the same wrong value of a general option.
void hostTranslation::tell(std::vector<sdkText> const & problems)
{
    for (auto const & problem : problems) {
        if (m_told.insert(problem.formatted()).second) {
            m_reporter.message(sdkStream::error, problem);
        }
    }
}

sdkResult hostTranslation::read(hostFile const & input, sdkDocument & document,
                                Message_ProgressRange const & range)
{
    m_file = input.file;
    m_events.file(input.file, "reading");
    hostReading reading(input, m_reporter);
    auto const annotations = sdk_annotations(document).size();
    auto result = reading.read(document, range, [this](auto const & problems) { tell(problems); });
    if (reading.contents()) {
        m_findings.record(*reading.contents());
    }
    auto findings = reading.findings();
    if (sdk_annotations(document).size() > annotations) {
        // The writer may keep what it has been given.
        auto const lost = std::stable_partition(findings.begin(), findings.end(), [](auto const & finding) {
            return finding.kind != "annotation";
        });
        m_annotations.insert(m_annotations.end(), lost, findings.end());
        findings.erase(lost, findings.end());
    }
    m_findings.tell(findings);
    return result;
}

sdkResult hostTranslation::write(sdkDocument & document, Message_ProgressRange const & range)
{
    m_file = m_job.final_name;
    m_writing = true;
    m_events.file(m_job.final_name, "writing");
    Message_ProgressScope scope(range, nullptr,
                                write_transfer_share + write_share +
                                    (m_verification.wanted() ? verification_share : 0));

    sdkText failure;
    auto const module = hostModule::load(m_job.output.module, m_job.output.format, false, failure);
    if (!module) {
        return sdkResult::write_error(failure);
    }
    std::vector<sdkText> problems;
    sdkOptions const options(module->resources(), m_job.output.options, problems, m_job.output.refused);
    tell(problems);
    sdkContext context(options, m_reporter, m_job.final_name);
    m_verification.begin(document, options, module->can_read());
    auto const result = host_guard([&] { return write_file(*module, context, document, scope); },
                                   [this] {
                                       return hostSubject{m_file, m_writing};
                                   });
    // What the writer holds is not needed while the output is read back, and its memory is.
    ::malloc_trim(0);
    auto const annotations = std::exchange(m_annotations, {});
    if (!context.promise().annotations) {
        m_findings.tell(annotations);
    }
    m_findings.tell(context.account().findings());
    // Libraries hide that they got no memory, and what is missing then is no fault of the file.
    if (result && m_reporter.failed() > 0 && host_memory_ran_out()) {
        return host_out_of_memory(m_file);
    }
    if (!result || m_reporter.processed() == 0) {
        return result;
    }
    return m_verification.conclude(context, m_findings, scope.Next(verification_share));
}

sdkResult hostTranslation::write_file(hostModule const & module, sdkContext & context, sdkDocument & document,
                                      Message_ProgressScope & scope)
{
    auto const writer = module.make_writer(context);
    if (auto result = writer->transfer(document, scope.Next(write_transfer_share)); !result) {
        return result;
    }
    // Nothing was converted: the writer has said why, and an empty file helps nobody.
    if (m_reporter.processed() == 0) {
        return sdkResult::completed();
    }
    m_output_begun = true;
    if (auto result = writer->write(m_job.output.file, scope.Next(write_share)); !result) {
        return result;
    }
    auto result = sdk_check_written(m_job.output.file, m_job.final_name);
    if (result) {
        m_verification.ask(context);
    }
    return result;
}
