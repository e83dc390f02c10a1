// Colours: grey or RGB components as they were given; the system's own differ between light and dark.
#pragma once

#include "Platform/UIKit/UIColor.hpp"
#include "Simulator/CoreGraphics/CGColor.hpp"
#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <optional>

namespace Simulator {

struct UIColor : StandIn {
    using Root = UIColor;

    static UI::Color withRed(double red, double green, double blue, double alpha);
    static UI::Color withWhite(double white, double alpha);
    static UI::Color withHue(double hue, double saturation, double brightness, double alpha);
    static UI::Color withCGColor(CGColorRef color);
    static UI::Color withComponents(const ColorComponents& light, const ColorComponents& dark);

    void initWithRed(double red, double green, double blue, double alpha);
    void initWithWhite(double white, double alpha);
    void initWithHue(double hue, double saturation, double brightness, double alpha);

    bool getRed(double* red, double* green, double* blue, double* alpha) const;
    bool getHue(double* hue, double* saturation, double* brightness, double* alpha) const;
    bool getWhite(double* white, double* alpha) const;
    CGColorRef CGColor();
    UI::Color withAlpha(double alpha) const;
    bool isEqual(const ObjC::Object& other) const;
    unsigned long hash() const;
    NS::String description() const;
    /// Nothing in it ever changes.
    ObjC::Object sameForCopy(void*) const { return self(); }

    /// What the colour is under the appearance that the screen has now.
    const ColorComponents& current() const;

    ColorComponents light;
    ColorComponents dark;

private:
    ObjC::Object m_lightReference;
    ObjC::Object m_darkReference;
};

/// The colour as it is drawn; nothing for nil.
std::optional<Graphics::Color> resolvedColor(const ObjC::Object& color);

}
