// Frames of the lock screen at 1170 by 2532 pixels.
#include "Benchmarks/BareScreen.hpp"
#include "Benchmarks/BenchmarkPhone.hpp"
#include "Benchmarks/Comparison.hpp"

#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/Loader/ExtensionLoader.hpp"
#include "Simulator/UIKit/LayerTree.hpp"
#include "Simulator/UIKit/ScreenRenderer.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

#include "Platform/UIKit/UILabel.hpp"

#include <cstdio>

namespace {

using namespace Benchmarks;
using namespace Simulator;

/// Beyond this, the bare calls draw something else. Edges and letters differ by fractions of a pixel.
constexpr double mostDistance = 0.1;

std::vector<std::filesystem::path> fontFiles()
{
    auto files = Graphics::installedSystemFonts();
    for (const auto& file : builtInFonts())
        files.push_back(file);
    return files;
}

Graphics::Layer screenLayer()
{
    const ScreenSettings& screen = screenSettings();
    Graphics::Layer layer = Graphics::Layer::withFrame({0, 0, screen.size.width, screen.size.height});
    layer.children.push_back(buildLayer(phone().window()));
    return layer;
}

/// The whole screen, with nothing new to decode, to set or to blur on either side.
void fullFrame(benchmark::State& state)
{
    ObjC::AutoreleasePool pool;
    UIWindow& window = phone().window();
    ScreenRenderer renderer;
    renderer.render(window);
    BareScreen bare(screenLayer(), fontCatalogue(), fontFiles(), screenSettings().scale);
    bare.draw();
    if (double distance = bare.distanceFrom(renderer.compositor().pixels()); distance > mostDistance) {
        state.SkipWithError(("the bare calls draw another picture: " + std::to_string(distance)).c_str());
        return;
    }
    auto work = [&] {
        renderer.compositor().invalidate();
        renderer.render(window);
    };
    Comparison(state, 1.2).run(work, [&] { bare.draw(); });
}

/// A frame in which only the time is another, beside a full one with the same change.
void frameWithAnotherTime(benchmark::State& state)
{
    ObjC::AutoreleasePool pool;
    UIWindow& window = phone().window();
    auto* variable = static_cast<id*>(ExtensionLoader::shared().variable("_timeLabel")->address);
    if (!variable || !*variable) {
        state.SkipWithError("there is no time label");
        return;
    }
    UI::Label label(*variable);
    ScreenRenderer renderer;
    renderer.render(window);
    int minute = 0;
    auto showNextMinute = [&] {
        ObjC::AutoreleasePool inner;
        char text[8];
        ++minute;
        std::snprintf(text, sizeof text, "%02d.%02d", minute / 60 % 12 + 1, minute % 60);
        label.setText(NS::String::fromUTF8(text));
    };
    auto work = [&] {
        showNextMinute();
        renderer.render(window);
    };
    auto full = [&] {
        showNextMinute();
        renderer.compositor().invalidate();
        renderer.render(window);
    };
    Comparison(state, 1.0 / 3).run(work, full);
}

BENCHMARK(fullFrame)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(frameWithAnotherTime)->Unit(benchmark::kMicrosecond)->UseManualTime();

}
