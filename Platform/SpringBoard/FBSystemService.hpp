// The shell's service for the whole system: restarting the shell.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace FB {

class SystemService : public ObjC::PrivateClass_<SystemService, NS::Object, "FBSystemService"> {
public:
    using PrivateClass_::PrivateClass_;
    static SystemService sharedInstance() { return sendClass<SystemService, "sharedInstance">(); }
    void exitAndRelaunch(bool relaunch) const { send<void, "exitAndRelaunch:">(relaunch); }
};

}
