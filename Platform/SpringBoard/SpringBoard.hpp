// The shell as an application.
#pragma once

#include "Platform/ObjC/Block.hpp"
#include "Platform/UIKit/UIApplication.hpp"

namespace SB {

class SpringBoard : public ObjC::PrivateClass_<SpringBoard, UI::Application, "SpringBoard"> {
public:
    using PrivateClass_::PrivateClass_;
    static SpringBoard sharedApplication() { return sendClass<SpringBoard, "sharedApplication">(); }
    /// System 15 has only the second form, which all have.
    void simulateHomeButtonPress() const
    {
        if (respondsTo<"_simulateHomeButtonPress">())
            send<void, "_simulateHomeButtonPress">();
        else
            send<void, "_simulateHomeButtonPressWithCompletion:">(ObjC::BlockArgument{});
    }
};

}
