// Colours from the wallpaper: the palette and the average from JPEG bytes, and the pick from pixels alone.
#include "Benchmarks/BenchmarkPhone.hpp"
#include "Benchmarks/Comparison.hpp"
#include "Benchmarks/Pictures.hpp"

#include "Platform/Foundation/NSData.hpp"
#include "WKSPalette/PalettePick.hpp"
#include "WKSPalette/WKSColorUtils.hpp"

#include <random>

namespace {

template <class Colors>
void fromJpeg(benchmark::State& state, Colors colors)
{
    Benchmarks::phone();
    ObjC::AutoreleasePool pool;
    auto jpeg = Benchmarks::photographJpeg(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    NS::Data data = NS::Data::dataWithBytes(jpeg.data(), jpeg.size());
    if (!colors(UI::Image::imageWithData(data))) {
        state.SkipWithError("the picture gave no colours");
        return;
    }
    std::vector<std::uint8_t> pixels;
    auto work = [&] {
        ObjC::AutoreleasePool inner;
        benchmark::DoNotOptimize(colors(UI::Image::imageWithData(data)).raw());
    };
    auto floor = [&] {
        Benchmarks::decodeAtAnEighth(jpeg, pixels);
        benchmark::DoNotOptimize(pixels.data());
    };
    Benchmarks::Comparison(state, 1.1).run(work, floor);
}

void paletteFromJpeg(benchmark::State& state)
{
    fromJpeg(state, [](const UI::Image& image) { return LYR::WKSColorUtils::averageColors(image, 1); });
}

void averageColorFromJpeg(benchmark::State& state)
{
    fromJpeg(state, [](const UI::Image& image) { return LYR::WKSColorUtils::averageColor(image, 1); });
}

/// Pixels in so many different colours; as many as pixels is the worst case.
void pickPalette(benchmark::State& state)
{
    std::mt19937 random(941);
    std::vector<LYR::WKSColor> colors;
    for (long i = 0; i < state.range(0); ++i)
        colors.push_back(LYR::WKSColor::fromLong(0xFF000000 | (random() & 0xFFFFFF)));
    std::vector<LYR::WKSColor> pixels;
    for (std::size_t i = 0; i < 25 * 54; ++i)
        pixels.push_back(colors[i % colors.size()]);
    Benchmarks::Limit(state, 16e-6).run([&] { benchmark::DoNotOptimize(LYR::pickPalette(pixels)); });
}

void wallpapers(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Args({400, 866})->Args({1170, 2532})->ArgNames({"width", "height"});
    benchmark->Unit(benchmark::kMicrosecond)->UseManualTime();
}

BENCHMARK(paletteFromJpeg)->Apply(wallpapers);
BENCHMARK(averageColorFromJpeg)->Apply(wallpapers);
BENCHMARK(pickPalette)->ArgName("colours")->Arg(1)->Arg(40)->Arg(1350)->Unit(benchmark::kMicrosecond)->UseManualTime();

}
