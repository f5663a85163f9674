#include "host/hostWitnessWork.h"

#include "host/hostModule.h"
#include "sdk/measure/sdkAnnotationComparison.h"
#include "sdk/measure/sdkComparison.h"
#include "sdk/measure/sdkMeshComparison.h"
#include "sdk/measure/sdkSourceFaults.h"
#include "sdk/measure/sdkTotalsComparison.h"

#include <Message_ProgressScope.hxx>
#include <Standard_Failure.hxx>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::string_view repair_option = "ReadHealing";

// Where the system has no thread to give, the work is done when its result is asked for.
constexpr auto where_there_is_a_thread = std::launch::async | std::launch::deferred;

// What a reader says while an output is read back interests nobody, but for the reason of a failure.
class Listener : public sdkReporter {
public:
    void message(sdkStream, sdkText const &) override {}
};

void send(int descriptor, std::string const & line)
{
    std::string_view rest = line;
    while (!rest.empty()) {
        auto const written = ::write(descriptor, rest.data(), rest.size());
        if (written < 0 && errno != EINTR) {
            return;
        }
        rest.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
}

class Progress : public Message_ProgressIndicator {
public:
    explicit Progress(int descriptor) : m_descriptor(descriptor) {}

protected:
    void Show(Message_ProgressScope const &, Standard_Boolean) override
    {
        int const percent = static_cast<int>(GetPosition() * 100);
        if (percent > m_percent) {
            m_percent = percent;
            send(m_descriptor, std::to_string(percent) + "\n");
        }
    }

private:
    int m_descriptor;
    int m_percent = 0;
};

// The option of a format that lets its reader repair shapes; empty when it has none.
std::string repair_option_of(std::vector<sdkResource> const & resources)
{
    auto const found = std::find_if(resources.begin(), resources.end(), [](sdkResource const & resource) {
        return resource.name.ends_with(repair_option) && resource.type == sdkResourceType::boolean;
    });
    return found == resources.end() ? std::string() : found->name;
}

int threads()
{
    return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, 4U));
}

} // namespace

// What a reader works with, and what it has read.
struct hostWitnessWork::Attempt {
    Attempt(hostModule const & module, std::map<std::string, std::string> const & values,
            std::string const & shown)
        : options(module.resources(), values, problems), context(options, listener, shown),
          reader(module.make_reader(context))
    {
        context.account().read_back(true);
    }

    std::vector<sdkText> problems; // there are none: the values are the modules' own
    Listener listener;
    sdkOptions options;
    sdkContext context;
    sdkDocument output;
    std::unique_ptr<sdkReader> reader;
};

hostWitnessWork::hostWitnessWork(sdkDocument const & document, hostEvidence const & evidence, int question,
                                 int answer)
    : m_document(document), m_evidence(evidence), m_question(question), m_answer(answer),
      m_progress(new Progress(answer))
{
}

hostWitnessWork::~hostWitnessWork() = default;

void hostWitnessWork::run()
{
    m_source = std::async(where_there_is_a_thread, [this] { return measure_source(); });
    auto const line = read_line();
    if (line.empty()) {
        return;
    }
    hostTestimony testimony;
    try {
        testimony = testify(host_read_question(line));
        auto const & faults = source().faults;
        testimony.findings.insert(testimony.findings.begin(), faults.begin(), faults.end());
    } catch (Standard_Failure const & failure) {
        testimony.reason =
            sdkText("host::Measuring source and output failed: %s", failure.GetMessageString());
    } catch (std::exception const & failure) {
        testimony.reason = sdkText("host::Measuring source and output failed: %s", failure.what());
    }
    send(m_answer, host_write_testimony(testimony) + "\n");
}

hostWitnessWork::Source hostWitnessWork::measure_source() const
{
    Source source;
    source.inventory = sdk_take_inventory(
        m_document,
        {.level = m_evidence.level, .surfaces = m_evidence.surfaces, .wireframe = m_evidence.wireframe});
    if (m_evidence.level == sdkMeasureLevel::full) {
        source.faults = sdk_source_faults(m_document);
    }
    return source;
}

hostWitnessWork::Source const & hostWitnessWork::source() const
{
    return m_source.get();
}

sdkMeshSource const & hostWitnessWork::mesh_source(bool hidden)
{
    begin_mesh_source(hidden);
    return m_mesh_source.get();
}

void hostWitnessWork::begin_mesh_source(bool hidden)
{
    if (!m_mesh_source.valid()) {
        m_mesh_source = std::async(where_there_is_a_thread,
                                   [this, hidden] { return sdk_mesh_source(m_document, hidden); });
    }
}

hostTestimony hostWitnessWork::testify(hostQuestion const & question)
{
    hostTestimony testimony;
    auto strict = attempt(question, false, testimony.reason);
    if (strict && strict->empty()) {
        testimony.read_back = true;
        return testimony;
    }
    // Other programs repair what they read. What is right after a repair is right for their users.
    sdkText reason;
    auto repaired = attempt(question, true, reason);
    auto const weight = [](std::optional<std::vector<sdkFinding>> const & findings) {
        auto const number = [&](sdkWeight one) {
            return std::count_if(findings->begin(), findings->end(),
                                 [one](auto const & finding) { return finding.weight == one; });
        };
        return std::pair(number(sdkWeight::loss), number(sdkWeight::difference));
    };
    auto & best = repaired && (!strict || weight(repaired) <= weight(strict)) ? repaired : strict;
    if (!best) {
        return testimony;
    }
    testimony.read_back = true;
    testimony.reason = {};
    testimony.findings = std::move(*best);
    return testimony;
}

std::optional<std::vector<sdkFinding>> hostWitnessWork::attempt(hostQuestion const & question, bool repair,
                                                                sdkText & reason)
{
    auto const module = hostModule::load(m_evidence.module, m_evidence.format, true, reason);
    if (!module) {
        return std::nullopt;
    }
    auto values = question.promise.read_back;
    if (auto const option = repair_option_of(module->resources()); !option.empty()) {
        values.emplace(option, repair ? "true" : "false");
    } else if (repair) {
        return std::nullopt;
    }
    m_attempt = std::make_unique<Attempt>(*module, values, question.shown);
    auto & output = m_attempt->output;
    bool const full = m_evidence.level == sdkMeasureLevel::full;
    if (full && question.promise.deflection > 0) {
        begin_mesh_source(question.promise.hidden);
    }
    Message_ProgressScope scope(m_progress->Start(), nullptr, 10);
    auto result = m_attempt->reader->parse(question.written, scope.Next(4));
    if (result) {
        result = m_attempt->reader->transfer(output, scope.Next(4));
    }
    if (!result) {
        reason = result.text();
        return std::nullopt;
    }
    auto const measured = sdk_take_inventory(output,
                                             {.level = m_evidence.level,
                                              .surfaces = m_evidence.surfaces,
                                              .wireframe = m_evidence.wireframe,
                                              .threads = threads()},
                                             scope.Next(2));
    auto const & from = source().inventory;
    auto promise = question.promise;
    if (!promise.made) {
        // A module that promises nothing is held to its geometry.
        promise.holds = {.structure = false,
                         .names = false,
                         .colours = false,
                         .layers = false,
                         .curves = from.count(sdkBodyKind::curve) == measured.count(sdkBodyKind::curve),
                         .points = from.count(sdkBodyKind::point) == measured.count(sdkBodyKind::point),
                         .surfaces = measured.count(sdkBodyKind::mesh) == 0,
                         .visibility = false};
        promise.deflection = promise.holds.surfaces ? 0 : sdk_usual_deflection;
    }
    auto findings = sdk_compare(from, measured, {.tolerances = {}, .promise = promise});
    sdk_compare_annotations(m_document, output, promise, findings);
    if (m_evidence.surfaces) {
        sdk_compare_triangle_count(measured, promise, findings);
    }
    bool const triangles = promise.deflection > 0 || from.count(sdkBodyKind::mesh) > 0;
    if (full && triangles) {
        sdk_compare_mesh(mesh_source(promise.hidden), output, promise, findings, threads());
    }
    return findings;
}

std::string hostWitnessWork::read_line() const
{
    std::string line;
    char byte = 0;
    for (;;) {
        auto const count = ::read(m_question, &byte, 1);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0 || byte == '\n') {
            return count <= 0 ? std::string() : line;
        }
        line += byte;
    }
}
