#include "host/hostComparison.h"

#include "host/hostGuard.h"
#include "host/hostMemory.h"
#include "host/hostProgress.h"
#include "host/hostReading.h"
#include "sdk/measure/sdkModelComparison.h"
#include "sdk/measure/sdkModelExtent.h"
#include "sdk/measure/sdkTriangleComparison.h"
#include "sdk/sdkFiles.h"

#include <Message_ProgressScope.hxx>

#include <algorithm>
#include <optional>
#include <thread>

namespace {

constexpr double read_share = 30;
constexpr double measure_share = 15;
constexpr double compare_share = 10;

int threads()
{
    return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, 4U));
}

struct Held {
    bool names = false;
    bool colours = false;
    bool layers = false;
    bool hidden = false;
};

Held held_by(sdkInventory const & inventory, std::string const & file)
{
    Held held;
    for (auto const & body : inventory.bodies) {
        held.names = held.names || (!body.part.empty() && body.part != file);
        held.layers = held.layers || !body.layers.empty();
        held.hidden = held.hidden || body.hidden;
        for (auto const & [colour, share] : body.colours) {
            held.colours = held.colours || !colour.empty();
        }
    }
    return held;
}

bool has_surfaces(sdkInventory const & inventory)
{
    return inventory.count(sdkBodyKind::solid) + inventory.count(sdkBodyKind::shell) +
               inventory.count(sdkBodyKind::face) >
           0;
}

} // namespace

hostComparison::hostComparison(hostJob const & job, hostEvents & events, std::atomic<bool> const & cancelled)
    : m_job(job), m_comparison(*job.comparison), m_events(events), m_cancelled(cancelled),
      m_reporter(events), m_a{'a', m_comparison.a}, m_b{'b', m_comparison.b}
{
}

sdkResult hostComparison::run()
{
    auto result = host_guard([this] { return compare(); }, [this] { return hostSubject{m_file, false}; });
    if (!result && result.status() != sdkStatus::cancelled && host_memory_ran_out()) {
        result = host_out_of_memory(m_file);
    }
    if (!result.text().empty()) {
        m_reporter.message(sdkStream::error, result.text());
    }
    return result;
}

sdkResult hostComparison::compare()
{
    Handle(hostProgress) const progress = new hostProgress(m_events, m_cancelled);
    Message_ProgressScope scope(progress->Start(), nullptr, 2 * (read_share + measure_share) + compare_share);
    for (auto * model : {&m_a, &m_b}) {
        if (auto result = take(*model, scope.Next(read_share + measure_share)); !result) {
            return result;
        }
        if (m_cancelled) {
            return sdkResult::cancelled();
        }
    }
    judge();
    return m_cancelled ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult hostComparison::take(Model & model, Message_ProgressRange const & range)
{
    m_file = model.file.file;
    m_events.file(m_file, "reading");
    Message_ProgressScope scope(range, nullptr, read_share + measure_share);
    hostReading reading(model.file, m_reporter);
    auto result = reading.read(model.document, scope.Next(read_share), [this](auto const & problems) {
        for (auto const & problem : problems) {
            m_reporter.message(sdkStream::error, problem);
        }
    });
    m_lost += reading.lost();
    for (auto const & finding : reading.findings()) {
        m_events.finding(finding);
    }
    if (!result) {
        return result;
    }
    model.inventory = sdk_take_inventory(
        model.document,
        {.level = m_comparison.counts_only ? sdkMeasureLevel::counts : sdkMeasureLevel::full,
         .threads = threads()},
        scope.Next(measure_share));
    m_events.inventory(model.side, model.inventory,
                       m_comparison.counts_only ? Bnd_Box()
                                                : sdk_model_extent(model.document, model.inventory));
    return result;
}

void hostComparison::judge()
{
    auto const & a = m_a.inventory;
    auto const & b = m_b.inventory;
    if (a.bodies.empty() && b.bodies.empty()) {
        end_undecided(sdkText("host::Neither file holds any geometry"));
        return;
    }
    bool const unlike = sdk_triangles_against_surfaces(a, b);
    if (unlike && m_comparison.counts_only) {
        end_undecided(sdkText("host::One file has triangles and the other surfaces: counts say nothing of "
                              "them, compare them in full"));
        return;
    }
    auto const file_a = sdk_file_stem(m_a.file.file);
    auto const file_b = sdk_file_stem(m_b.file.file);
    auto const in_a = held_by(a, file_a);
    auto const in_b = held_by(b, file_b);
    bool const same_format = m_a.file.format == m_b.file.format;
    // What one side lacks altogether its format may not hold, unless the formats are the same. The names of
    // meshes depend on the form of the file.
    auto const compared = [](std::optional<bool> asked, bool has_a, bool has_b, bool same) {
        return asked.value_or(same ? has_a || has_b : has_a && has_b);
    };
    bool const exact = has_surfaces(a) && has_surfaces(b);
    sdkModelAttributes const attributes{
        .names = compared(m_comparison.names, in_a.names, in_b.names, same_format && exact),
        .colours = compared(m_comparison.colours, in_a.colours, in_b.colours, same_format),
        .layers = compared(m_comparison.layers, in_a.layers, in_b.layers, same_format),
        .visibility = compared({}, in_a.hidden, in_b.hidden, same_format),
        .structure = compared(m_comparison.structure, a.assemblies > 0, b.assemblies > 0, same_format),
        .same_format = same_format,
        .file_a = file_a,
        .file_b = file_b};
    sdkTolerances const tolerances{m_comparison.relative, m_comparison.absolute};
    auto const comparison = sdk_compare_models(a, b, tolerances, attributes);
    for (auto const & pair : comparison.bodies) {
        m_events.pair(pair);
    }
    tell(comparison.findings);
    if (unlike) {
        tell(sdk_compare_triangles({m_a.document, a}, {m_b.document, b}, m_comparison.deflection));
    }
    if (m_differences > 0) {
        m_events.verdict("differs");
    } else if (m_lost > 0) {
        end_undecided(
            sdkText("host::%d things in the files could not be read; what could be read agrees", m_lost));
    } else {
        m_events.verdict("verified");
    }
}

void hostComparison::tell(std::vector<sdkFinding> const & findings)
{
    for (auto const & finding : findings) {
        m_differences += finding.weight == sdkWeight::note ? 0 : 1;
        m_events.finding(finding);
    }
}

void hostComparison::end_undecided(sdkText const & reason)
{
    m_reporter.message(sdkStream::error, reason);
    m_events.verdict("not_verified");
}
