// What the protocol's domains share on the shell's side.
#pragma once

#include "Platform/ObjC/Object.hpp"
#include "Simulator/Control/Dispatcher.hpp"
#include "Simulator/Control/Domains/FrameFeed.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/UIKit/ScreenRenderer.hpp"

#include <map>
#include <string>

namespace Simulator::Control {

class PhoneContext {
public:
    PhoneContext(Simulator::Shell& shell, Dispatcher& dispatcher)
        : shell(shell)
        , m_dispatcher(dispatcher)
    {
    }

    /// Adds a method of the protocol. What autoreleased objects it leaves goes with it, and the screen is laid out
    /// after it, as at the end of each turn of the phone's run loop.
    void add(const std::string& method, Dispatcher::Handler handler);
    /// Likewise, a message between the supervisor and the shell process.
    void add(const Method& method, Dispatcher::Handler handler);

    /// The view on the screen's tree with that accessibility identifier; throws where there is none.
    UIView& viewWithId(const std::string& identifier) const;

    Simulator::Shell& shell;
    ScreenRenderer renderer;
    FrameFeed frameFeed;
    /// Objects that `objc.new` keeps.
    std::map<std::string, ObjC::Object> named;

private:
    Dispatcher::Handler asOneTurn(Dispatcher::Handler handler);

    Dispatcher& m_dispatcher;
};

[[noreturn]] void throwNotFound(const std::string& message);

void addPhoneMethods(PhoneContext&);
void addClockMethods(PhoneContext&);
void addDeviceMethods(PhoneContext&);
void addSettingsMethods(PhoneContext&);
void addFileMethods(PhoneContext&);
void addTouchMethods(PhoneContext&);
void addControlMethods(PhoneContext&);
void addViewMethods(PhoneContext&);
void addRuntimeMethods(PhoneContext&);
void addLogMethods(PhoneContext&);
void addScreenMethods(PhoneContext&);

/// Takes over what `device.set` and `phone.start` say of the device; the shell is to be told afterwards.
void applyDevice(const Json& parameters);
/// All of it, as `device.set` takes it.
Json describeDevice();

}
