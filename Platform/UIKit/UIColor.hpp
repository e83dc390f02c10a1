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
    static Color grayColor() { return sendClass<Color, "grayColor">(); }
    static Color clearColor() { return sendClass<Color, "clearColor">(); }
    static Color systemYellowColor() { return sendClass<Color, "systemYellowColor">(); }
    /// Colours of the system, which follow the light or dark style.
    static Color labelColor() { return sendClass<Color, "labelColor">(); }
    static Color secondaryLabelColor() { return sendClass<Color, "secondaryLabelColor">(); }
    static Color systemBlueColor() { return sendClass<Color, "systemBlueColor">(); }
    static Color systemGrayColor() { return sendClass<Color, "systemGrayColor">(); }
    static Color systemFillColor() { return sendClass<Color, "systemFillColor">(); }
    static Color systemBackgroundColor() { return sendClass<Color, "systemBackgroundColor">(); }
    static Color separatorColor() { return sendClass<Color, "separatorColor">(); }
    static Color colorWithWhite(CGFloat white, CGFloat alpha)
    {
        return sendClass<Color, "colorWithWhite:alpha:">(white, alpha);
    }
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
    Color colorWithAlphaComponent(CGFloat alpha) const { return send<Color, "colorWithAlphaComponent:">(alpha); }
    CGColorRef CGColor() const { return send<CGColorRef, "CGColor">(); }
};

}
