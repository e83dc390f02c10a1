// The strip of widgets: a refresh in which it is most of the work, beside what that has to do in any case.
#include "Benchmarks/BenchmarkPhone.hpp"
#include "Benchmarks/CachedFormats.hpp"
#include "Benchmarks/Comparison.hpp"
#include "Benchmarks/FontFolder.hpp"
#include "Benchmarks/Icons.hpp"

#include "Simulator/Files/PhoneFiles.hpp"

namespace {

using namespace Benchmarks;

/// What the strip shows on the phone that is measured.
constexpr const char* icons[] = {"HL16/13", "HL16/m", "SS16/up", "SS16/down", "Battery16/BG", "Battery16/Battery100",
    "Battery16/phone", "Battery16/Background", "Battery16/100"};

std::vector<std::vector<std::byte>> iconFiles()
{
    std::vector<std::vector<std::byte>> files;
    for (const char* icon : icons) {
        const auto content = Simulator::PhoneFiles::shared().read(
            std::string("/Library/Application Support/lyr.bundle/") + icon + ".png");
        const auto* first = reinterpret_cast<const std::byte*>(content.value.data());
        files.emplace_back(first, first + content.value.size());
    }
    return files;
}

/// A full refresh without a wallpaper, beside the icons by way of PNG, the fonts' names and the texts.
void stripRefresh(benchmark::State& state)
{
    phone();
    const WithoutWallpaper noWallpaper;
    const auto files = iconFiles();
    const auto fonts = builtInFonts();
    CachedFormats formats;
    auto floor = [&] {
        std::size_t bytes = 0;
        for (const auto& file : files)
            bytes += passThroughPng(file);
        benchmark::DoNotOptimize(bytes + formats.formatAll() + readNames(fonts));
    };
    Comparison(state).run(refreshFully, floor, 1, forgetLog);
}

BENCHMARK(stripRefresh)->Unit(benchmark::kMicrosecond)->UseManualTime();

}
