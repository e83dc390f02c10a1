// The refreshes of the clock, beside what they have to do in any case.
#include "Benchmarks/BenchmarkPhone.hpp"
#include "Benchmarks/CachedFormats.hpp"
#include "Benchmarks/Comparison.hpp"
#include "Benchmarks/FontFolder.hpp"
#include "Benchmarks/Pictures.hpp"

#include "Simulator/Files/PhoneFiles.hpp"

#include <cstddef>

namespace {

using namespace Benchmarks;

/// The delay after which it runs.
constexpr double quickRefreshDelay = 0.01;

/// The texts alone, set on the labels.
void clockTexts(benchmark::State& state)
{
    ObjC::Object view = phone().instance("SBFLockScreenDateView");
    CachedFormats formats;
    auto work = [&] {
        ObjC::AutoreleasePool pool;
        view.send<void, "_updateLabels">();
    };
    auto floor = [&] { benchmark::DoNotOptimize(formats.formatAll()); };
    Comparison(state, 2).run(work, floor, 1, forgetLog);
}

std::vector<std::byte> contentOf(const std::string& phonePath)
{
    const auto content = Simulator::PhoneFiles::shared().read(phonePath);
    const auto* first = reinterpret_cast<const std::byte*>(content.value.data());
    return {first, first + content.value.size()};
}

/// All of it, beside what each refresh has to look at anew: the texts, the wallpaper and the clock's fonts.
void fullRefresh(benchmark::State& state)
{
    CachedFormats formats;
    phone();
    auto fonts = builtInFonts();
    auto wallpaper = contentOf("/var/mobile/Library/SpringBoard/LockBackgroundThumbnail.jpg");
    std::vector<std::uint8_t> pixels;
    auto floor = [&] {
        benchmark::DoNotOptimize(formats.formatAll() + readNames(fonts));
        decodeAtAnEighth(wallpaper, pixels);
        benchmark::DoNotOptimize(pixels.data());
    };
    Comparison(state, 2).run(refreshFully, floor, 1, forgetLog);
}

/// All of it, beside the texts alone.
void fullRefreshBesideFormats(benchmark::State& state)
{
    CachedFormats formats;
    phone();
    auto floor = [&] { benchmark::DoNotOptimize(formats.formatAll()); };
    Comparison(state, 2).run(refreshFully, floor, 1, forgetLog);
}

/// The time alone, set on the label.
void quickRefresh(benchmark::State& state)
{
    ObjC::Object controller = phone().instance("SBFLockScreenDateViewController");
    CachedFormats formats;
    auto work = [&] {
        controller.send<void, "requestUpdateTime">();
        advance(quickRefreshDelay);
    };
    auto floor = [&] { benchmark::DoNotOptimize(formats.formatTime()); };
    Comparison(state).run(work, floor, 1, forgetLog);
}

BENCHMARK(clockTexts)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(fullRefresh)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(fullRefreshBesideFormats)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(quickRefresh)->Unit(benchmark::kMicrosecond)->UseManualTime();

}
