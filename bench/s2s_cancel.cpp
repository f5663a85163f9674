// How long a running translation goes on after the user has cancelled it: bench_s2s_cancel FILE.step

#include <atomic>
#include <chrono>
#include <thread>

#include <benchmark/benchmark.h>

#include "kit/benchSilence.h"
#include "kit/kitTempFolder.h"
#include "s2s/s2sHostProgram.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sVmr2vmr.h"
#include "s2s/s2sWrapper.h"
#include "vmr/vmrabsAppInfo.h"

namespace {

using Clock = std::chrono::steady_clock;

std::string file;

/// Cancels when the progress has come to a value.
void cancel(benchmark::State & state)
{
    kitTempFolder const folder;
    vmrabsAppInfo info{"bench", "", "", "", ""};
    info.set_info(s2sHOSTPROGRAM, REAL_HOST);
    std::string const modules = REAL_MODULES;
    s2sTranslationElements const elements(
        {{file, nullptr, modules + "/step.so", 0, "STEP"}},
        {folder / "out.igs", nullptr, modules + "/iges.so", nullptr, 0, "IGES"});
    double longest = 0;
    for (auto _ : state) {
        s2sVmr2vmr context;
        s2sThreadComm comm(nullptr);
        benchSilence output, error;
        s2sWrapper const translation(context, info, comm, nullptr, &output, &error, elements);
        std::thread worker([&] { translation.run(); });
        while (comm.progress() < state.range(0) && !comm.threadHasDied())
            std::this_thread::yield();
        auto const begin = Clock::now();
        comm.requestTermination();
        worker.join();
        double const seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds);
        if (comm.current_translation_details().status() != s2sThreadCancelled)
            state.SkipWithError("the translation was over before it was cancelled");
    }
    state.counters["longest_ms"] = 1000 * longest;
}
BENCHMARK(cancel)->Arg(1)->Arg(20)->Arg(45)->Arg(60)->Iterations(5)->UseManualTime()->Unit(
    benchmark::kMillisecond);

} // namespace

int main(int argc, char ** argv)
{
    if (argc < 2)
        return 2;
    file = argv[1];
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
