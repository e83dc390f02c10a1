// Which touches may become the long press that opens the editor.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Platform/UIKit/UIGestureRecognizer.hpp"

namespace LYR {

/// Refuses the touches of controls and of what lies on the notifications' list: a long press there is theirs.
class PressDelegate : public ObjC::Class_<PressDelegate, NS::Object, "LYRPressDelegate"> {
public:
    using Class_::Class_;
    /// The one of the process.
    static PressDelegate shared();
};

}
