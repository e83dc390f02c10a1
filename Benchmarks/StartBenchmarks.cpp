// Start-up, with and without fonts, of the Linux library and of the phone's own.
#include "Benchmarks/StartBenchmarks.hpp"

#include "Benchmarks/Comparison.hpp"
#include "Benchmarks/FontFolder.hpp"
#include "Benchmarks/OwnProcess.hpp"

#include "Simulator/App/SimulatedPhone.hpp"
#include "Simulator/Loader/ExtensionLoader.hpp"

#include <cstdio>
#include <string>

namespace Benchmarks {

int measureStart(const char* root, const char* extension)
{
    Simulator::Control::ShellStart start;
    start.parameters = {{"clock", "virtual"}, {"extension", false}};
    start.root = root;
    auto shell = Simulator::App::makeSimulatedPhone({.extension = extension});
    shell->start(start);

    int loaded = 0;
    auto work = [&] { loaded = Simulator::ExtensionLoader::shared().loadAll(); };
    std::size_t names = 0;
    auto fonts = userFonts(root);
    auto floor = [&] { names = readNames(fonts); };
    double floorTime = seconds(floor);
    double workTime = seconds(work);
    std::printf("%d %zu %.9f %.9f\n", loaded, names, workTime, floorTime);
    return 0;
}

namespace {

struct Measurement {
    int loaded = 0;
    std::size_t names = 0;
    double work = 0;
    double floor = 0;
};

Measurement measureInNewProcess(const std::string& root, const std::string& extension = "")
{
    std::string output = outputOfOwnProcess({measureStartOption, root, extension});
    Measurement measurement;
    int read = std::sscanf(output.c_str(), "%d %zu %lf %lf", &measurement.loaded, &measurement.names, &measurement.work,
        &measurement.floor);
    return read == 4 ? measurement : Measurement();
}

void startUp(benchmark::State& state)
{
    FontFolder fonts(static_cast<int>(state.range(0)));
    Comparison comparison(state, 2);
    for (auto unused : state) {
        (void)unused;
        Measurement measurement = measureInNewProcess(fonts.root());
        if (measurement.loaded != 1 || measurement.names != 2 * static_cast<std::size_t>(state.range(0))) {
            state.SkipWithError("the extension was not loaded, or not all fonts were read");
            return;
        }
        state.SetIterationTime(measurement.work);
        comparison.add(measurement.work, measurement.floor);
    }
    comparison.report();
}

/// What does not depend on the fonts: loading the library, its interceptions and settings.
void startUpWithoutFonts(benchmark::State& state)
{
    FontFolder noFonts(0);
    for (auto unused : state) {
        (void)unused;
        Measurement measurement = measureInNewProcess(noFonts.root());
        if (measurement.loaded != 1) {
            state.SkipWithError("the extension was not loaded");
            return;
        }
        state.SetIterationTime(measurement.work);
    }
}

/// The package's own library, mapped and bound by the simulator, beside this build's: what the loader costs, and
/// whether the phone's compiler made code that is as fast.
void startUpOfThePhonesLibrary(benchmark::State& state)
{
    FontFolder fonts(static_cast<int>(state.range(0)));
    Comparison comparison(state);
    for (auto unused : state) {
        (void)unused;
        Measurement phones = measureInNewProcess(fonts.root(), LYR_PHONE_LIBRARY);
        Measurement builds = measureInNewProcess(fonts.root());
        if (phones.loaded != 1 || builds.loaded != 1) {
            state.SkipWithError("the extension was not loaded");
            return;
        }
        state.SetIterationTime(phones.work);
        comparison.add(phones.work, builds.work);
    }
    comparison.report();
}

BENCHMARK(startUpWithoutFonts)->Iterations(7)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(startUp)
    ->ArgName("fonts")
    ->Arg(5)
    ->Arg(100)
    ->Arg(1000)
    ->Iterations(7)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();
BENCHMARK(startUpOfThePhonesLibrary)
    ->ArgName("fonts")
    ->Arg(0)
    ->Arg(1000)
    ->Iterations(7)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();

}

}
