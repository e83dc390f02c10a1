// Timers on the main run loop.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace NS {

class Timer : public ObjC::Class_<Timer, Object, "NSTimer"> {
public:
    using Class_::Class_;

    /// A timer that sends `action` to `target`; it keeps the target until it is invalidated.
    static Timer scheduled(double seconds, const ObjC::Object& target, SEL action, bool repeats)
    {
        return sendClass<Timer, "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:">(
            seconds, target, action, ObjC::Object(), repeats);
    }
    bool isValid() const { return send<bool, "isValid">(); }
    void invalidate() const { send<void, "invalidate">(); }
    void fire() const { send<void, "fire">(); }
};

}
