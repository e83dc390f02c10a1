// The switch of the system's low-power mode.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace CD {

class BatterySaver : public ObjC::PrivateClass_<BatterySaver, NS::Object, "_CDBatterySaver"> {
public:
    using PrivateClass_::PrivateClass_;
    static BatterySaver batterySaver() { return sendClass<BatterySaver, "batterySaver">(); }
    /// 1 on, 0 off.
    long setMode(long mode) const { return send<long, "setMode:">(mode); }
};

}

namespace PM {

/// What stands in its place from system 16 on.
class LowPowerMode : public ObjC::PrivateClass_<LowPowerMode, NS::Object, "_PMLowPowerMode"> {
public:
    using PrivateClass_::PrivateClass_;
    static LowPowerMode sharedInstance() { return sendClass<LowPowerMode, "sharedInstance">(); }
    /// 1 on, 0 off. `source` says to the system's statistics who asked.
    bool setPowerMode(long mode, const NS::String& source) const
    {
        return send<bool, "setPowerMode:fromSource:">(mode, source);
    }
};

}
