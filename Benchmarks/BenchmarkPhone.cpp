// The measured phone: started once, moved on by its clock, refreshed by messages.
#include "Benchmarks/BenchmarkPhone.hpp"

#include "Simulator/App/SimulatedPhone.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace Benchmarks {

using Simulator::Control::Json;

namespace {

constexpr double settlingSeconds = 10;

class Phone {
public:
    Phone()
    {
        Simulator::Control::ShellStart start;
        start.parameters = Json::parse(R"({
            "clock": "virtual", "time": "2020-11-15T21:41:00",
            "screen": {"width": 390, "height": 844, "scale": 3},
            "alarm": "2020-11-16T06:30:00",
            "weather": {"temperature": "21°", "high": "24°", "low": "15°", "conditions": "Partly Cloudy",
                "location": "Haifa", "sunrise": "6:12", "sunset": "16:41"}})");
        m_root.fill(start.parameters);
        start.root = m_root.path();
        m_shell->start(start);
        Simulator::Loop::shared().settle(settlingSeconds);
        Simulator::Shell::current()->commit();
    }

private:
    Simulator::Control::RootFolder m_root;
    std::unique_ptr<Simulator::Control::Shell> m_shell = Simulator::App::makeSimulatedPhone();
};

}

Simulator::Shell& phone()
{
    static Phone phone;
    Simulator::Shell* shell = Simulator::Shell::current();
    if (!shell || !shell->instance("SBFLockScreenDateViewController")) {
        std::fputs("the phone has no lock screen\n", stderr);
        std::exit(1);
    }
    return *shell;
}

void advance(double seconds)
{
    ObjC::AutoreleasePool pool;
    Simulator::Loop::shared().advance(seconds);
}

void refreshFully()
{
    constexpr double delay = 0.1;
    phone().instance("SBFLockScreenDateViewController").send<void, "updateTime">();
    advance(delay);
}

void forgetLog()
{
    Simulator::ActivityLog::shared().take();
}

WithoutWallpaper::WithoutWallpaper()
{
    Simulator::PhoneFiles::shared().setFault(Simulator::Control::wallpaperPath, Simulator::FileOperation::read, EACCES);
}

WithoutWallpaper::~WithoutWallpaper()
{
    Simulator::PhoneFiles::shared().clearFaults();
}

std::vector<std::filesystem::path> builtInFonts()
{
    std::vector<std::filesystem::path> fonts;
    for (const char* name : {"time1", "time2", "time3", "time4", "date"})
        fonts.push_back(Simulator::PhoneFiles::shared().hostPath(
            std::string("/Library/Application Support/lyr.bundle/") + name + ".ttf"));
    return fonts;
}

}
