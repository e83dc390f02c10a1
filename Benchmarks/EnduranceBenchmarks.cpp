// A phone in use: appearing again and again, and nights in which it is refreshed every minute.
#include "Benchmarks/BenchmarkPhone.hpp"
#include "Benchmarks/Comparison.hpp"

#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Loader/ExtensionLoader.hpp"

#include <cmath>
#include <fstream>
#include <unistd.h>

namespace {

using namespace Benchmarks;

constexpr double settlingSeconds = 3;
constexpr int lastLookHours = 5;
constexpr int minutesOfAYear = 365 * 24 * 60;

/// The lock screen locks, lights up, goes and comes again, and what that has started is over.
void lockWakeAppear()
{
    auto& shell = phone();
    shell.lock();
    shell.wake();
    shell.unlock();
    shell.coverSheet();
    advance(settlingSeconds);
    shell.commit();
}

/// Locked and lit, as the other measurements want it.
void lieLocked()
{
    phone().lock();
    phone().wake();
    advance(settlingSeconds);
    phone().commit();
    forgetLog();
}

/// The process's memory that is resident.
double residentKilobytes()
{
    std::ifstream statistics("/proc/self/statm");
    long pages = 0;
    statistics >> pages >> pages;
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

/// A whole cycle, beside the one full refresh that is in it.
void appearance(benchmark::State& state)
{
    phone();
    Comparison(state).run(lockWakeAppear, refreshFully, 1, forgetLog);
    lieLocked();
}

void cycles(int count)
{
    for (int i = 0; i < count; ++i) {
        lockWakeAppear();
        forgetLog();
    }
}

/// Without a wallpaper, whose reading is most of a cycle otherwise.
void memoryOfTenThousandAppearances(benchmark::State& state)
{
    phone();
    const WithoutWallpaper noWallpaper;
    for (auto unused : state) {
        (void)unused;
        cycles(10);
        const double before = residentKilobytes();
        auto theRest = [] { cycles(10000 - 10); };
        state.SetIterationTime(seconds(theRest));
        const double after = residentKilobytes();
        state.counters["kB_after_10"] = before;
        state.counters["kB_after_10000"] = after;
        state.SetLabel(std::to_string(static_cast<long>(after - before)) + " kB more than after 10");
    }
    lieLocked();
}

/// The extension that keeps the lock screen on is there, and the strip is to be kept up to date under it.
class LastLook {
public:
    LastLook()
        : m_keepsWidgets(
            *static_cast<bool*>(Simulator::ExtensionLoader::shared().variable("_showWidgetLastLook")->address))
    {
        Simulator::PhoneFiles::shared().put(library, "LastLook");
        m_keepsWidgets = true;
    }
    ~LastLook()
    {
        Simulator::PhoneFiles::shared().remove(library);
        m_keepsWidgets = false;
    }

private:
    static constexpr const char* library = "/Library/MobileSubstrate/DynamicLibraries/LastLook.dylib";
    bool& m_keepsWidgets;
};

/// As long as a locked phone is refreshed every minute: five hours.
void nightUnderLastLook(benchmark::State& state)
{
    auto& shell = phone();
    const LastLook lastLook;
    double night = 0;
    for (auto unused : state) {
        (void)unused;
        cycles(1);
        shell.lock();
        auto sleep = [] {
            for (int hour = 0; hour < lastLookHours; ++hour) {
                advance(3600);
                forgetLog();
            }
        };
        night = seconds(sleep);
        state.SetIterationTime(night);
    }
    const double refresh = night / (lastLookHours * 60);
    state.counters["refresh_us"] = refresh * 1e6;
    state.SetLabel("a year of minutes would take " + std::to_string(std::lround(refresh * minutesOfAYear)) + " s");
    lieLocked();
}

BENCHMARK(appearance)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(memoryOfTenThousandAppearances)->Iterations(1)->Unit(benchmark::kSecond)->UseManualTime();
BENCHMARK(nightUnderLastLook)->Iterations(3)->Unit(benchmark::kSecond)->UseManualTime();

}
