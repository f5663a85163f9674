#include "host/hostReading.h"

#include "host/hostGuard.h"
#include "host/hostModule.h"
#include "sdk/geometry/sdkFinite.h"
#include "sdk/sdkFiles.h"

#include <Message_ProgressScope.hxx>

#include <algorithm>

namespace {

sdkFinding contents_of(sdkAccount const & account, std::string const & file)
{
    using enum sdkSourceKind;
    return {.weight = sdkWeight::note,
            .kind = "contents",
            .part = {},
            .place = {},
            .source = static_cast<double>(account.held(root)),
            .text =
                sdkText("host::Contents of %s, roots: %d, solids: %d, shells: %d, faces: %d, free curves: "
                        "%d, free points: %d",
                        sdk_file_name(file), account.held(root), account.held(solid), account.held(shell),
                        account.held(face), account.held(curve), account.held(point))};
}

} // namespace

sdkResult hostReading::read(sdkDocument & document, Message_ProgressRange const & range,
                            std::function<void(std::vector<sdkText> const &)> const & tell)
{
    // Parsing takes about as long as making shapes.
    Message_ProgressScope scope(range, nullptr, 2);
    sdkText failure;
    auto const module = hostModule::load(m_input.module, m_input.format, true, failure);
    if (!module) {
        return sdkResult::read_error(failure);
    }
    std::vector<sdkText> problems;
    sdkOptions const options(module->resources(), m_input.options, problems, m_input.refused);
    tell(problems);
    sdkContext context(options, m_reporter, m_input.file);
    auto const failed = m_reporter.failed();
    // What the reader has found out counts also when it gives up, or throws.
    auto const result = host_guard(
        [&] {
            auto const reader = module->make_reader(context);
            auto done = reader->parse(m_input.file, scope.Next());
            if (done) {
                done = reader->transfer(document, scope.Next());
            }
            // Before anything measures, meshes or writes it.
            if (done && sdk_drop_not_finite(document, context) > 0 && document.empty()) {
                return sdkResult::read_error(
                    sdkText("host::%s has no shape whose numbers are finite; export it again", m_input.file));
            }
            return done;
        },
        [this] { return hostSubject{m_input.file}; });
    m_findings = context.account().findings();
    if (context.account().kept()) {
        m_contents = contents_of(context.account(), m_input.file);
    }
    auto const losses = std::count_if(m_findings.begin(), m_findings.end(), [](sdkFinding const & finding) {
        return finding.weight == sdkWeight::loss && finding.kind != "annotation";
    });
    // Modules that keep no account only count.
    m_lost = context.account().kept() ? losses : std::max<std::int64_t>(losses, m_reporter.failed() - failed);
    return result;
}
