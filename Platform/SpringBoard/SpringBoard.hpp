// The shell as an application.
#pragma once

#include "Platform/UIKit/UIApplication.hpp"

namespace SB {

class SpringBoard : public ObjC::Class_<SpringBoard, UI::Application, "SpringBoard"> {
public:
    using Class_::Class_;
    static SpringBoard sharedApplication() { return sendClass<SpringBoard, "sharedApplication">(); }
    void simulateHomeButtonPress() const { send<void, "_simulateHomeButtonPress">(); }
};

}
