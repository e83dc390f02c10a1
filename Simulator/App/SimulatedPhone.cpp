// Boots in the order of a real phone: disk, clock and region, frameworks, extensions, lock screen.
#include "Simulator/App/SimulatedPhone.hpp"

#include "Simulator/App/FactoryContent.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Control/Domains/PhoneContext.hpp"
#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Foundation/SystemLog.hpp"
#include "Simulator/Loader/ExtensionLoader.hpp"
#include "Simulator/Loader/LackingParts.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/System.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/SpringBoard.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

#include <chrono>

namespace Simulator::App {

using Control::Json;

namespace {

constexpr double referenceDateSinceEpoch = 978307200;

double hostNow()
{
    using namespace std::chrono;
    return duration<double>(system_clock::now().time_since_epoch()).count() - referenceDateSinceEpoch;
}

class SimulatedPhone : public Control::Shell {
public:
    explicit SimulatedPhone(const ShellOptions& options)
        : m_extension(options.extension)
    {
        SystemLog::shared().isOnStandardError = options.isVerbose;
    }

    void addMethods(Control::Dispatcher& dispatcher) override
    {
        m_context = std::make_unique<Control::PhoneContext>(m_shell, dispatcher);
        for (auto add :
            {Control::addPhoneMethods, Control::addClockMethods, Control::addDeviceMethods, Control::addSettingsMethods,
                Control::addFileMethods, Control::addTouchMethods, Control::addControlMethods, Control::addViewMethods,
                Control::addRuntimeMethods, Control::addLogMethods, Control::addScreenMethods})
            add(*m_context);
    }

    void start(const Control::ShellStart& start) override
    {
        ObjC::AutoreleasePool pool;
        PhoneFiles::shared().setRoot(start.root);
        installFactoryContent(start, m_extension);
        restoreOwners(start);
        setUpDevice(start);
        setUpClock(start);
        setUpSymbols(symbolFolder());
        PhoneFiles::shared().runAsMobile();
        PhoneFiles::shared().setUnlockedOnce(start.parameters.value("firstUnlock", true));
        m_phone.start();
        relaunchRequested() = [this] { m_wantsRelaunch = true; };
        if (!start.isSafeMode && start.parameters.value("extension", true))
            loadExtensions();
        const std::string homeScreen = start.parameters.value("homeScreen", "");
        m_shell.start(homeScreen == "before" ? HomeScreenAtStart::before
                : homeScreen == "after"      ? HomeScreenAtStart::after
                                             : HomeScreenAtStart::later);
        m_shell.commit();
        m_isStarted = true;
    }

    Json state() const override
    {
        Json state{{"now", Loop::shared().now()}, {"uptime", uptime()}, {"device", Control::describeDevice()},
            {"isLit", m_shell.isLit()}, {"isLocked", m_shell.isLocked()}};
        for (const auto& [path, owner] : PhoneFiles::shared().rights().given())
            state["owners"][path] = owner == FileOwner::mobile ? "mobile" : "root";
        if (m_wantsRelaunch)
            state["log"] = ActivityLog::shared().handOver();
        return state;
    }

    bool wantsRelaunch() const override { return m_wantsRelaunch; }
    std::optional<double> nextDue() const override
    {
        return Loop::shared().clockKind() == ClockKind::realTime ? Loop::shared().nextDue() : std::nullopt;
    }

    void runDue() override
    {
        // A long request arrives in pieces, the first one too.
        if (!m_isStarted)
            return;
        ObjC::AutoreleasePool pool;
        Loop::shared().runDue();
        m_shell.commit();
    }

private:
    double uptime() const { return m_earlierUptime + Loop::shared().uptime(); }

    /// A restart of the shell leaves the files with whoever has them.
    static void restoreOwners(const Control::ShellStart& start)
    {
        if (!start.state.is_object() || !start.state.contains("owners"))
            return;
        for (const auto& [path, owner] : start.state.at("owners").items())
            PhoneFiles::shared().give(path, ownerNamed(owner.get<std::string>()));
    }

    void setUpDevice(const Control::ShellStart& start)
    {
        Control::applyDevice(start.parameters);
        if (start.state.is_object())
            Control::applyDevice(start.state.at("device"));
        DeviceState& device = DeviceState::shared();
        device.installed = start.parameters.value("installed", std::set<std::string>());
        System::current().choose(start.parameters.value("system", std::string(usualSystem)));
        setLackingParts(start.parameters.value("lacking", std::set<std::string>()));
        if (start.parameters.contains("screen")) {
            const Json& given = start.parameters.at("screen");
            device.screen.size = {given.at("width"), given.at("height")};
            device.screen.scale = given.at("scale");
        }
    }

    /// A new phone starts at the given time, or now; a restarted shell goes on where the last one ended.
    void setUpClock(const Control::ShellStart& start)
    {
        double now = hostNow();
        if (start.parameters.contains("time"))
            now = momentOfLocalTime(start.parameters.at("time")).value_or(now);
        if (start.state.is_object()) {
            now = start.state.at("now");
            m_earlierUptime = start.state.at("uptime");
            if (start.state.contains("log"))
                ActivityLog::shared().restore(start.state.at("log"));
        }
        Loop::shared().reset(
            now, start.parameters.at("clock") == "real" ? ClockKind::realTime : ClockKind::virtualTime);
        ActivityLog::shared().setClock([this] { return uptime(); });
    }

    /// A broken library is left out, as on a phone; but one that was asked for must be there.
    void loadExtensions()
    {
        const auto refuse = [this](const std::string&, const LoadError& error) {
            throw std::runtime_error(m_extension + ": cannot be loaded: " + error.what());
        };
        ExtensionLoader::shared().loadAll(
            m_extension.empty() ? ExtensionLoader::reportOnStandardError : ExtensionLoader::Report(refuse));
    }

    Phone m_phone;
    std::string m_extension;
    Simulator::Shell m_shell;
    std::unique_ptr<Control::PhoneContext> m_context;
    double m_earlierUptime = 0;
    bool m_isStarted = false;
    bool m_wantsRelaunch = false;
};

}

std::unique_ptr<Control::Shell> makeSimulatedPhone(const ShellOptions& options)
{
    return std::make_unique<SimulatedPhone>(options);
}

void checkExtension(const std::string& hostPath)
{
    ExtensionLoader::check(hostPath);
}

}
