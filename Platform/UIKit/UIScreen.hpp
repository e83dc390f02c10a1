// The phone's screen.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Platform/Foundation/NSObject.hpp"

namespace UI {

class Screen : public ObjC::Class_<Screen, NS::Object, "UIScreen"> {
public:
    using Class_::Class_;

    static Screen mainScreen() { return sendClass<Screen, "mainScreen">(); }
    /// In points.
    CGRect bounds() const { return send<CGRect, "bounds">(); }
    CGFloat scale() const { return send<CGFloat, "scale">(); }
};

}
