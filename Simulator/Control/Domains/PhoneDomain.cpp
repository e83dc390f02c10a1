// phone.*: what happens to a phone.
#include "Simulator/Control/Domains/PhoneContext.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Files/PhoneFiles.hpp"

#include "Platform/Foundation/NSString.hpp"

namespace Simulator::Control {

namespace {

/// Apps hear of the lock's keys by notification.
void postProtectedData(bool available)
{
    auto center = ObjC::sendMessage<NS::Object>(
        reinterpret_cast<id>(objc_getClass("NSNotificationCenter")), ObjC::selector<"defaultCenter">());
    center.send<void, "postNotificationName:object:">(available ? "UIApplicationProtectedDataDidBecomeAvailable"_ns
                                                                : "UIApplicationProtectedDataWillBecomeUnavailable"_ns,
        NS::Object());
}

/// From now on the user's files can be read, also after the next lock.
void unlockFirst()
{
    PhoneFiles::shared().setUnlockedOnce(true);
    postProtectedData(true);
}

void unlock(Simulator::Shell& shell, const Json&)
{
    if (!PhoneFiles::shared().isUnlockedOnce())
        unlockFirst();
    shell.unlock();
}

}

void addPhoneMethods(PhoneContext& context)
{
    using Action = void (*)(Simulator::Shell&, const Json&);
    const std::pair<const char*, Action> actions[] = {
        {"phone.lock",
            [](Simulator::Shell& shell, const Json& with) {
                DeviceState::shared().locksByLongForm = with.value("endsIn", "long") == "long";
                shell.lock(with.value("form", "short") == "long");
            }},
        {"phone.home", unlock},
        {"phone.passcode", [](Simulator::Shell& shell, const Json& with) { shell.showPasscode(with.at("shown")); }},
        {"phone.firstUnlock", [](Simulator::Shell&, const Json&) { unlockFirst(); }},
        {"phone.wake", [](Simulator::Shell& shell, const Json&) { shell.wake(); }},
        {"phone.unlock", unlock},
        {"phone.coverSheet", [](Simulator::Shell& shell, const Json&) { shell.coverSheet(); }},
        {"phone.openApp", [](Simulator::Shell& shell, const Json& with) { shell.openApp(with.at("bundle")); }},
        {"phone.memoryWarning", [](Simulator::Shell& shell, const Json&) { shell.memoryWarning(); }},
        {"phone.protectedData", [](Simulator::Shell&, const Json& with) { postProtectedData(with.at("available")); }},
        {"phone.charge", [](Simulator::Shell& shell, const Json& with) { shell.charge(with.at("charging")); }},
        {"phone.subtitle", [](Simulator::Shell& shell, const Json& with) { shell.subtitle(with.at("text")); }},
        {"phone.timer", [](Simulator::Shell& shell, const Json& with) { shell.timer(with.at("seconds")); }},
        {"phone.rotate", [](Simulator::Shell& shell, const Json& with) { shell.rotate(with.at("landscape")); }},
    };
    for (const auto& [name, action] : actions)
        context.add(name, [&context, action = action](const Json& parameters) {
            action(context.shell, parameters);
            return Json::object();
        });
    context.add("phone.info", [](const Json&) {
        return Json{{"time", localTimeText(Loop::shared().now())}, {"screen", describeScreen()}};
    });
}

}
