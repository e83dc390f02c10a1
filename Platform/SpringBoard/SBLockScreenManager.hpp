// The shell's managers of lock and light.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace SB {

class LockScreenManager : public ObjC::Class_<LockScreenManager, NS::Object, "SBLockScreenManager"> {
public:
    using Class_::Class_;
    static LockScreenManager sharedInstance() { return sendClass<LockScreenManager, "sharedInstance">(); }
    bool isLockScreenVisible() const { return send<bool, "isLockScreenVisible">(); }
};

class BacklightController : public ObjC::Class_<BacklightController, NS::Object, "SBBacklightController"> {
public:
    using Class_::Class_;
};

}
