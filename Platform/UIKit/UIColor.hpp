// Colours.
#pragma once

#include "Platform/CoreGraphics/CGColor.hpp"
#include "Platform/Foundation/NSObject.hpp"

namespace UI {

class Color : public ObjC::Class_<Color, NS::Object, "UIColor"> {
public:
    using Class_::Class_;

    static Color whiteColor() { return sendClass<Color, "whiteColor">(); }
    static Color blackColor() { return sendClass<Color, "blackColor">(); }
    static Color clearColor() { return sendClass<Color, "clearColor">(); }
    static Color systemYellowColor() { return sendClass<Color, "systemYellowColor">(); }
    /// Components from 0 to 1.
    static Color colorWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha)
    {
        return sendClass<Color, "colorWithRed:green:blue:alpha:">(red, green, blue, alpha);
    }
    static Color colorWithHue(CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha)
    {
        return sendClass<Color, "colorWithHue:saturation:brightness:alpha:">(hue, saturation, brightness, alpha);
    }
    /// False, and nothing written, if the colour cannot be expressed so.
    bool getRed(CGFloat* red, CGFloat* green, CGFloat* blue, CGFloat* alpha) const
    {
        return send<bool, "getRed:green:blue:alpha:">(red, green, blue, alpha);
    }
    bool getHue(CGFloat* hue, CGFloat* saturation, CGFloat* brightness, CGFloat* alpha) const
    {
        return send<bool, "getHue:saturation:brightness:alpha:">(hue, saturation, brightness, alpha);
    }
    CGColorRef CGColor() const { return send<CGColorRef, "CGColor">(); }
};

}
