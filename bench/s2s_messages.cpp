// How fast messages of a translator host reach the streams of the engine, and what starting one costs. Each
// translation here is a process of its own that says what its script tells it.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

#include "kit/kitTempFolder.h"
#include "s2s/s2sHostProgram.h"
#include "s2s/s2sPutInPlace.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sVmr2vmr.h"
#include "s2s/s2sWrapper.h"
#include "vmr/vmrTableInstance.h"
#include "vmr/vmrabsAppInfo.h"
#include "vmr/vmrabsOutput.h"

namespace {

class Counter : public vmrabsOutput {
public:
    void write(char const *, char const *, utTextArguments const & arguments) override
    {
        auto const number = arguments.empty() ? -1 : std::get<std::int64_t>(arguments[0]);
        in_order = in_order && number > last;
        last = number;
        ++count;
    }
    utString text(char const *, char const * key, utTextArguments const &) const override { return key; }

    std::int64_t count = 0;
    std::int64_t last = -1;
    bool in_order = true;
};

class Translation {
public:
    explicit Translation(std::string const & script)
    {
        info.set_info(s2sHOSTPROGRAM, FAKE_HOST);
        vmrTableInstance options;
        options.initialise(folder.write("none.rsc", ""));
        options.add_resource("script", script);
        s2sTranslatorElementscoPageArr inputs;
        inputs.append({folder.write("in.cad", "input"), &options, "m.so", 0, "A"});
        elements = std::make_unique<s2sTranslationElements>(
            inputs, s2sOutputTranslatorElements(folder / "out.cad", nullptr, "m.so", nullptr, 0, "B"));
    }

    void run()
    {
        comm.reset();
        output = Counter();
        error = Counter();
        s2sWrapper(context, info, comm, nullptr, &output, &error, *elements).run();
    }

    kitTempFolder folder;
    vmrabsAppInfo info{"bench", "", "", "", ""};
    s2sVmr2vmr context;
    s2sThreadComm comm{nullptr};
    Counter output;
    Counter error;
    std::unique_ptr<s2sTranslationElements> elements;
};

void messages(benchmark::State & state)
{
    auto const wanted = state.range(0);
    Translation translation("flood " + std::to_string(wanted) + "\nend completed 0 0");
    for (auto _ : state) {
        translation.run();
        if (translation.output.count + translation.error.count != wanted || !translation.output.in_order ||
            !translation.error.in_order)
            state.SkipWithError("messages were lost or came out of order");
    }
    state.SetItemsProcessed(state.iterations() * wanted);
}
BENCHMARK(messages)->Arg(100000)->UseRealTime()->Unit(benchmark::kMillisecond);

void shortest_translation(benchmark::State & state)
{
    Translation translation("chief x\nend completed 1 0");
    for (auto _ : state)
        translation.run();
}
BENCHMARK(shortest_translation)->UseRealTime()->Unit(benchmark::kMicrosecond);

void shortest_translation_in_a_large_program(benchmark::State & state)
{
    std::string const memory(1u << 30, 'x');
    benchmark::DoNotOptimize(memory.data());
    Translation translation("chief x\nend completed 1 0");
    for (auto _ : state)
        translation.run();
}
BENCHMARK(shortest_translation_in_a_large_program)->UseRealTime()->Unit(benchmark::kMicrosecond);

void replacing_an_output(benchmark::State & state)
{
    kitTempFolder const folder;
    std::string const content(static_cast<std::size_t>(state.range(0)) << 20, 'x');
    folder.write("out.cad", content);
    s2sStagingFolder staging;
    staging.create(folder / "out.cad");
    for (auto _ : state) {
        state.PauseTiming();
        std::ofstream(staging.path() / "out.cad") << content;
        state.ResumeTiming();
        s2s_put_in_place(staging, folder / "out.cad", {});
    }
}
BENCHMARK(replacing_an_output)->Arg(1)->Arg(100)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
