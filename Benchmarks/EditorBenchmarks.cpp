// How long the wheel of fonts takes to open, beside the bare making of its rows.
#include "Benchmarks/EditorBenchmarks.hpp"

#include "Benchmarks/Comparison.hpp"
#include "Benchmarks/FontFolder.hpp"
#include "Benchmarks/OwnProcess.hpp"

#include "Platform/UIKit/UIPickerView.hpp"
#include "Simulator/App/SimulatedPhone.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/UIKit/Finger.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

#include <algorithm>
#include <cstdio>

namespace Benchmarks {

namespace {

constexpr double frame = 1.0 / 60;
constexpr int requests = 9;

/// The wheel, once a long press has put the editor onto the lock screen.
NS::Object fontWheel(Simulator::Shell& shell)
{
    Simulator::Loop::shared().settle(10);
    Simulator::Finger::shared().down(shell.window(), {160, 300});
    Simulator::Loop::shared().advance(0.6);
    Simulator::Finger::shared().up({160, 300});
    Simulator::UIView* wheel = Simulator::findView(shell.window(), "_pickerView1");
    return wheel ? NS::Object(wheel->object()) : NS::Object();
}

}

int measureFontRows(const char* root)
{
    Simulator::Control::ShellStart start;
    start.parameters = {{"clock", "virtual"}};
    start.root = root;
    auto phone = Simulator::App::makeSimulatedPhone();
    phone->start(start);
    ObjC::AutoreleasePool pool;
    auto& shell = *Simulator::Shell::current();
    auto wheel = fontWheel(shell);
    auto editor = shell.instance("CSCoverSheetViewController");
    long rows = 0;
    auto work = [&] { rows = editor.send<long, "pickerView:numberOfRowsInComponent:">(wheel, 0L); };
    std::vector<double> times;
    for (int i = 0; i < requests; ++i)
        times.push_back(seconds(work));
    std::nth_element(times.begin(), times.begin() + requests / 2, times.end());
    std::printf("%ld %.9f\n", rows, times[requests / 2]);
    return wheel ? 0 : 1;
}

namespace {

void fontPickerRows(benchmark::State& state)
{
    FontFolder fonts(static_cast<int>(state.range(0)));
    Limit limit(state, frame);
    for (auto unused : state) {
        (void)unused;
        long rows = 0;
        double time = 0;
        std::string output = outputOfOwnProcess({measureFontRowsOption, fonts.root()});
        if (std::sscanf(output.c_str(), "%ld %lf", &rows, &time) != 2 || rows < state.range(0)) {
            state.SkipWithError("the wheel has not a row for each font");
            return;
        }
        state.SetIterationTime(time);
        limit.add(time);
    }
    limit.report();
}

BENCHMARK(fontPickerRows)
    ->ArgName("fonts")
    ->Arg(0)
    ->Arg(500)
    ->Arg(2000)
    ->Iterations(5)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();

}

}
