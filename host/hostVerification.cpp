#include "host/hostVerification.h"

#include "sdk/sdkFiles.h"

#include <Message_ProgressScope.hxx>

#include <algorithm>
#include <unistd.h>

namespace {

constexpr char const * option = "vmrOptVerify";

// Reading back may take so many times as long as writing.
constexpr int patience = 10;

bool processes(sdkOptions const & options, char const * kind)
{
    return !options.declares(kind) || options.boolean(kind);
}

} // namespace

hostVerificationLevel host_verification_level(hostJob const & job)
{
    auto const found = job.output.options.find(option);
    if (found == job.output.options.end()) {
        return hostVerificationLevel::full;
    }
    return found->second == "none"     ? hostVerificationLevel::none
           : found->second == "counts" ? hostVerificationLevel::counts
                                       : hostVerificationLevel::full;
}

hostVerification::hostVerification(hostJob const & job, hostEvents & events,
                                   std::atomic<bool> const & cancelled, hostProcessThread & thread)
    : m_job(job), m_events(events), m_cancelled(cancelled), m_thread(thread),
      m_level(host_verification_level(job))
{
}

void hostVerification::begin(sdkDocument const & document, sdkOptions const & options, bool readable)
{
    m_begun = std::chrono::steady_clock::now();
    m_readable = readable;
    if (!wanted() || !readable) {
        return;
    }
    hostEvidence const evidence{.module = m_job.output.module,
                                .format = m_job.output.format,
                                .level = m_level == hostVerificationLevel::counts ? sdkMeasureLevel::counts
                                                                                  : sdkMeasureLevel::full,
                                .surfaces = processes(options, "vmrOptProcessSurfaces"),
                                .wireframe = processes(options, "vmrOptProcessWireframe")};
    // The engine takes a socket that stays open for a host that lives.
    m_witness = std::make_unique<hostWitness>(
        document, evidence, std::vector<int>{STDIN_FILENO, m_events.descriptor()}, m_thread);
}

std::chrono::milliseconds hostVerification::limit() const
{
    auto const writing = std::chrono::steady_clock::now() - m_begun;
    return std::chrono::ceil<std::chrono::milliseconds>(
        std::max<std::chrono::steady_clock::duration>(patience * writing, m_job.least_patience));
}

// The output is written and good; it must not be lost because its witness is slow.
bool hostVerification::engine_grows_impatient() const
{
    return m_job.silence && m_events.silent_for() >= *m_job.silence * 9 / 10;
}

void hostVerification::ask(sdkContext const & writer)
{
    if (m_witness) {
        m_limit = limit();
        m_witness->ask({m_job.output.file, m_job.final_name, writer.promise()});
    }
}

sdkResult hostVerification::conclude(sdkContext & writer, hostFindings & findings,
                                     Message_ProgressRange const & range)
{
    if (!wanted()) {
        return sdkResult::completed();
    }
    hostTestimony testimony;
    if (m_readable) {
        Message_ProgressScope scope(range, nullptr, 100);
        testimony = m_witness->answer(
            m_limit, m_cancelled, [&](int percent) { scope.Next(std::max(0.0, percent - scope.Value())); },
            [this] { return engine_grows_impatient(); });
        m_witness.reset();
        if (m_cancelled) {
            return sdkResult::cancelled();
        }
    } else {
        testimony.reason =
            sdkText("host::The translator of %s cannot read what it has written", m_job.output.format);
    }
    findings.tell(testimony.findings);
    auto & reporter = writer.reporter();
    if (!testimony.read_back) {
        findings.tell(
            {{sdkWeight::note, "not-read-back", {}, {}, std::nullopt, std::nullopt, testimony.reason}});
        m_reason_told = true;
        // A file that neither its reader nor its writer can vouch for helps nobody.
        if (m_readable && !writer.promise().checked) {
            return sdkResult::write_error(
                sdkText("host::%s cannot be read back and is not kept; try other options, or another format",
                        m_job.final_name));
        }
    }
    auto const verdict = host_verdict(testimony, findings, reporter.failed());
    m_events.verdict(host_verdict_name(verdict));
    reporter.message(sdkStream::output, host_verdict_text(verdict, findings, reporter.failed(),
                                                          m_level == hostVerificationLevel::counts,
                                                          sdk_file_name(m_job.final_name)));
    return sdkResult::completed();
}

void hostVerification::conclude_without_output(sdkStatus status, hostFindings & findings,
                                               sdkReporter & reporter)
{
    if (!wanted() || status == sdkStatus::cancelled) {
        return;
    }
    auto const output = sdk_file_name(m_job.final_name);
    auto const verdict = host_verdict_without_output(status, findings, reporter.failed());
    // For records only: the user has heard already that there is no output.
    if (verdict == hostVerdict::not_verified && !m_reason_told) {
        findings.record({.weight = sdkWeight::note,
                         .kind = "no-output",
                         .part = {},
                         .place = {},
                         .text = sdkText("host::%s was not written", output)});
    }
    m_events.verdict(host_verdict_name(verdict));
    reporter.message(sdkStream::output,
                     host_verdict_text_without_output(verdict, findings, reporter.failed(), output));
}
