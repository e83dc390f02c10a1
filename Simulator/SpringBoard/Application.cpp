// The shell as an application: what opens links, hears of memory running out and of the app in front.
#include "Platform/Foundation/NSURL.hpp"
#include "Platform/SpringBoard/SpringBoard.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/Blocks.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/FrontApplication.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIResponder.hpp"

#include <algorithm>
#include <cctype>

namespace Simulator {

namespace {

constexpr const char* browser = "com.apple.mobilesafari";
constexpr const char* fileManager = "com.tigisoftware.Filza";

std::string addressOf(const NS::URL& url)
{
    return std::string(url.send<NS::String, "absoluteString">().utf8());
}

/// The app that opens links of that scheme; empty if there is none.
std::string appForAddress(const std::string& address)
{
    std::string scheme = address.substr(0, std::min(address.find(':'), address.size()));
    std::ranges::transform(scheme, scheme.begin(), [](unsigned char letter) { return std::tolower(letter); });
    if (scheme == "http" || scheme == "https")
        return browser;
    return scheme == "filza" && DeviceState::shared().installed.contains("Filza") ? fileManager : "";
}

/// Leaves the running callback first, as the phone's other processes do their part later.
void later(void (Shell::*action)())
{
    Loop::shared().schedule(
        0,
        [action] {
            if (Shell* shell = Shell::current())
                (shell->*action)();
        },
        WorkKind::mainQueue);
}

struct UIApplication : UIResponder {
    bool canOpenURL(const NS::URL& url)
    {
        const std::string address = addressOf(url);
        ActivityLog::shared().record("canOpenURL", {{"url", address}});
        return !appForAddress(address).empty();
    }

    void openURL(const NS::URL& url, const NS::Object&, void* completion)
    {
        const std::string address = addressOf(url);
        const std::string app = appForAddress(address);
        ActivityLog::shared().record("openURL", {{"url", address}, {"opened", !app.empty()}});
        Loop::shared().schedule(
            0, [opened = !app.empty(), block = KeptBlock<void(bool)>(completion)] { block(opened); },
            WorkKind::mainQueue);
        if (app.empty())
            return;
        Loop::shared().schedule(
            0,
            [app] {
                if (Shell* shell = Shell::current())
                    shell->openApp(app);
            },
            WorkKind::mainQueue);
    }

    void didReceiveMemoryWarning() { }
};

struct SpringBoard : UIApplication {
    void frontDisplayDidChange(const NS::Object& application) { frontDisplay = application; }

    void simulateHomeButtonPress() { simulateHomeButtonPressWithCompletion({}); }

    void simulateHomeButtonPressWithCompletion(ObjC::BlockArgument completion)
    {
        ActivityLog::shared().record("homeButton");
        later(&Shell::unlock);
        Loop::shared().schedule(
            0, [block = KeptBlock<void()>(completion.block)] { block(); }, WorkKind::mainQueue);
    }

    NS::Object frontDisplay;
};

}

NS::Object makeFrontApplication(const std::string& bundle)
{
    const NS::Object application = makeObject("SBApplication");
    standIn<SBApplication>(application.raw()).bundle = bundle;
    return application;
}

NS::String SBApplication::bundleIdentifier() const
{
    return NS::String::fromUTF8(bundle);
}

static const StandInClass uiApplication("UIApplication", "UIResponder", [](Binder<UIApplication>& binder) {
    binder.classMethod<"sharedApplication", &sharedObject<SB::SpringBoard>>()
        .def<"canOpenURL:", &UIApplication::canOpenURL>()
        .def<"openURL:options:completionHandler:", &UIApplication::openURL>()
        .def<"didReceiveMemoryWarning", &UIApplication::didReceiveMemoryWarning>()
        .add();
});

static const StandInClass uiSystemShellApplication(
    "UISystemShellApplication", "UIApplication", [](Binder<UIApplication>& binder) { binder.add(); });

static const StandInClass springBoard("SpringBoard", "UISystemShellApplication", [](Binder<SpringBoard>& binder) {
    binder.def<"didReceiveMemoryWarning", &SpringBoard::didReceiveMemoryWarning>()
        .def<"frontDisplayDidChange:", &SpringBoard::frontDisplayDidChange>()
        .def<"_simulateHomeButtonPress", &SpringBoard::simulateHomeButtonPress>()
        .def<"_simulateHomeButtonPressWithCompletion:", &SpringBoard::simulateHomeButtonPressWithCompletion>()
        .readonly<"_accessibilityFrontMostApplication", &SpringBoard::frontDisplay>()
        .add();
});

static const StandInClass sbApplication("SBApplication", "NSObject",
    [](Binder<SBApplication>& binder) { binder.def<"bundleIdentifier", &SBApplication::bundleIdentifier>().add(); });

}
