// The shell's managers of lock and light.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace SB {

class LockScreenManager : public ObjC::PrivateClass_<LockScreenManager, NS::Object, "SBLockScreenManager"> {
public:
    using PrivateClass_::PrivateClass_;
    static LockScreenManager sharedInstance() { return sendClass<LockScreenManager, "sharedInstance">(); }
    bool isLockScreenVisible() const { return send<bool, "isLockScreenVisible">(); }
};

class BacklightController : public ObjC::PrivateClass_<BacklightController, NS::Object, "SBBacklightController"> {
public:
    using PrivateClass_::PrivateClass_;
};

}
