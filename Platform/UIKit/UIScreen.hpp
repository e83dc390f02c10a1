// The phone's screen, and the traits of what it shows.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Platform/Foundation/NSObject.hpp"

namespace UI {

enum class UserInterfaceStyle : long { unspecified = 0, light = 1, dark = 2 };

class TraitCollection : public ObjC::Class_<TraitCollection, NS::Object, "UITraitCollection"> {
public:
    using Class_::Class_;

    UserInterfaceStyle userInterfaceStyle() const { return send<UserInterfaceStyle, "userInterfaceStyle">(); }
};

class Screen : public ObjC::Class_<Screen, NS::Object, "UIScreen"> {
public:
    using Class_::Class_;

    static Screen mainScreen() { return sendClass<Screen, "mainScreen">(); }
    /// In points.
    CGRect bounds() const { return send<CGRect, "bounds">(); }
    TraitCollection traitCollection() const { return send<TraitCollection, "traitCollection">(); }
    CGFloat scale() const { return send<CGFloat, "scale">(); }
};

}
