// The shell's service for the whole system: restarting the shell.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace FB {

class SystemService : public ObjC::Class_<SystemService, NS::Object, "FBSystemService"> {
public:
    using Class_::Class_;
    static SystemService sharedInstance() { return sendClass<SystemService, "sharedInstance">(); }
    void exitAndRelaunch(bool relaunch) const { send<void, "exitAndRelaunch:">(relaunch); }
};

}
