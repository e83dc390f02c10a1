// The switch of the system's low-power mode.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace CD {

class BatterySaver : public ObjC::Class_<BatterySaver, NS::Object, "_CDBatterySaver"> {
public:
    using Class_::Class_;
    static BatterySaver batterySaver() { return sendClass<BatterySaver, "batterySaver">(); }
    /// 1 on, 0 off.
    void setMode(int mode) const { send<void, "setMode:">(mode); }
};

}
