// What a batch gains from running its entries at the same time: bench_s2s_batch [FILE.step ...]
//
// Forty entries, the files given in turn, without any those of the package occt-misc, are translated to IGES:
// one by one, as a batch with one host, and as a batch with a host for each processor. On two processors the
// last takes at most 0.6 times as long as the first.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>

#include "kit/benchSilence.h"
#include "kit/kitTempFolder.h"
#include "s2s/s2sBatchWrapper.h"
#include "s2s/s2sHostProgram.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sVmr2vmr.h"
#include "s2s/s2sWrapper.h"
#include "vmr/vmrabsAppInfo.h"

namespace fs = std::filesystem;

namespace {

constexpr int entries = 40;

std::vector<std::string> files_of(int argc, char ** argv)
{
    std::vector<std::string> files(argv + 1, argv + argc);
    std::error_code error;
    if (files.empty())
        for (auto const & entry : fs::directory_iterator("/usr/share/opencascade/data/step", error))
            files.push_back(entry.path().native());
    std::sort(files.begin(), files.end());
    return files;
}

double seconds_of(std::function<void()> const & work)
{
    auto const begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace

int main(int argc, char ** argv)
{
    auto const files = files_of(argc, argv);
    if (files.empty())
        return 2;
    kitTempFolder const folder;
    vmrabsAppInfo info{"bench", "", "", "", ""};
    info.set_info(s2sHOSTPROGRAM, REAL_HOST);
    std::string const modules = REAL_MODULES;
    s2sTranslationElementscoPageArr translations;
    for (int i = 0; i < entries; ++i)
        translations.append(
            {{{files[static_cast<std::size_t>(i) % files.size()], nullptr, modules + "/step.so", 0, "STEP"}},
             {folder / (std::to_string(i) + ".igs"), nullptr, modules + "/iges.so", nullptr, 0, "IGES"}});

    s2sVmr2vmr context;
    s2sThreadComm comm(nullptr);
    benchSilence silence;
    int failed = 0;
    auto const one = [&](s2sTranslationElements const & translation) {
        comm.reset();
        failed += s2sWrapper(context, info, comm, nullptr, &silence, &silence, translation).run() <= 0;
    };
    auto const batch = [&](int hosts) {
        context.set_hosts(hosts);
        comm.reset();
        failed += s2sBatchWrapper(context, info, comm, nullptr, &silence, &silence, translations).run() <= 0;
    };
    int const processors = context.hosts();

    one(translations[0]); // so that the first measure has all the libraries in memory as well
    double const singly = seconds_of([&] {
        for (auto const & translation : translations)
            one(translation);
    });
    double const in_turn = seconds_of([&] { batch(1); });
    double const together = seconds_of([&] { batch(processors); });
    std::printf("%d translations: one by one %.2f s, as a batch with one host %.2f s (%.2f times), with %d "
                "hosts %.2f s "
                "(%.2f times)\n",
                entries, singly, in_turn, in_turn / singly, processors, together, together / singly);
    return failed > 0 ? 1 : 0;
}
