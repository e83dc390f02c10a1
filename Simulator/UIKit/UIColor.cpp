// Colour objects: how they are made, taken apart and compared.
#include "Simulator/UIKit/UIColor.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/NamedColors.hpp"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace Simulator {

namespace {

ColorComponents fromHue(double hue, double saturation, double brightness, double alpha)
{
    hue = std::clamp(hue, 0.0, 1.0) * 6;
    saturation = std::clamp(saturation, 0.0, 1.0);
    brightness = std::clamp(brightness, 0.0, 1.0);
    if (std::isnan(hue + saturation + brightness))
        return ColorComponents::rgb(0, 0, 0, alpha);
    const double sector = std::floor(hue);
    const double part = hue - sector;
    const double low = brightness * (1 - saturation);
    const double falling = brightness * (1 - saturation * part);
    const double rising = brightness * (1 - saturation * (1 - part));
    switch (static_cast<int>(sector)) {
    case 1:
        return ColorComponents::rgb(falling, brightness, low, alpha);
    case 2:
        return ColorComponents::rgb(low, brightness, rising, alpha);
    case 3:
        return ColorComponents::rgb(low, falling, brightness, alpha);
    case 4:
        return ColorComponents::rgb(rising, low, brightness, alpha);
    case 5:
        return ColorComponents::rgb(brightness, low, falling, alpha);
    default:
        return ColorComponents::rgb(brightness, rising, low, alpha);
    }
}

struct HueParts {
    double hue = 0;
    double saturation = 0;
    double brightness = 0;
};

HueParts toHue(const Graphics::Color& color)
{
    const double high = std::max({color.r, color.g, color.b});
    const double range = high - std::min({color.r, color.g, color.b});
    HueParts parts{0, high > 0 ? range / high : 0, high};
    if (!(range > 0))
        return parts;
    if (high == color.r)
        parts.hue = (color.g - color.b) / range / 6;
    else if (high == color.g)
        parts.hue = ((color.b - color.r) / range + 2) / 6;
    else
        parts.hue = ((color.r - color.g) / range + 4) / 6;
    if (parts.hue < 0)
        parts.hue += 1;
    return parts;
}

void store(double* destination, double value)
{
    if (destination)
        *destination = value;
}

UI::Color withSame(const ColorComponents& components)
{
    return UIColor::withComponents(components, components);
}

}

UI::Color UIColor::withComponents(const ColorComponents& light, const ColorComponents& dark)
{
    const ObjC::Object color = newInstance("UIColor");
    auto& standing = standIn<UIColor>(color.raw());
    standing.light = light;
    standing.dark = dark;
    return UI::Color(color.raw());
}

UI::Color UIColor::withRed(double red, double green, double blue, double alpha)
{
    return withSame(ColorComponents::rgb(red, green, blue, alpha));
}

UI::Color UIColor::withWhite(double white, double alpha)
{
    return withSame(ColorComponents::grey(white, alpha));
}

UI::Color UIColor::withHue(double hue, double saturation, double brightness, double alpha)
{
    return withSame(fromHue(hue, saturation, brightness, alpha));
}

UI::Color UIColor::withCGColor(CGColorRef color)
{
    const ColorComponents* components = componentsOf(color);
    return components ? withSame(*components) : UI::Color();
}

void UIColor::initWithRed(double red, double green, double blue, double alpha)
{
    light = dark = ColorComponents::rgb(red, green, blue, alpha);
}

void UIColor::initWithWhite(double white, double alpha)
{
    light = dark = ColorComponents::grey(white, alpha);
}

void UIColor::initWithHue(double hue, double saturation, double brightness, double alpha)
{
    light = dark = fromHue(hue, saturation, brightness, alpha);
}

const ColorComponents& UIColor::current() const
{
    return DeviceState::shared().style == InterfaceStyle::dark ? dark : light;
}

bool UIColor::getRed(double* red, double* green, double* blue, double* alpha) const
{
    const Graphics::Color color = current().color();
    store(red, color.r);
    store(green, color.g);
    store(blue, color.b);
    store(alpha, color.a);
    return true;
}

bool UIColor::getHue(double* hue, double* saturation, double* brightness, double* alpha) const
{
    const HueParts parts = toHue(current().color());
    store(hue, parts.hue);
    store(saturation, parts.saturation);
    store(brightness, parts.brightness);
    store(alpha, current().alpha());
    return true;
}

bool UIColor::getWhite(double* white, double* alpha) const
{
    const Graphics::Color color = current().color();
    if (color.r != color.g || color.g != color.b)
        return false;
    store(white, color.r);
    store(alpha, color.a);
    return true;
}

CGColorRef UIColor::CGColor()
{
    const bool isDark = &current() == &dark;
    ObjC::Object& reference = isDark ? m_darkReference : m_lightReference;
    if (!reference)
        reference = makeCGColor(current());
    return reinterpret_cast<CGColorRef>(reference.raw());
}

UI::Color UIColor::withAlpha(double alpha) const
{
    return withComponents(light.withAlpha(alpha), dark.withAlpha(alpha));
}

bool UIColor::isEqual(const ObjC::Object& other) const
{
    const auto* color = standInOrNull<UIColor>(other);
    return color && light == color->light && dark == color->dark;
}

unsigned long UIColor::hash() const
{
    unsigned long value = light.count;
    for (double component : light.values)
        value = value * 31 + std::hash<double>()(component);
    return value;
}

NS::String UIColor::description() const
{
    std::ostringstream text;
    const ColorComponents& components = current();
    text << (components.count == 2 ? "UIExtendedGrayColorSpace" : "UIExtendedSRGBColorSpace");
    for (std::size_t i = 0; i < components.count; ++i)
        text << ' ' << components.values[i];
    return NS::String::fromUTF8(text.str());
}

std::optional<Graphics::Color> resolvedColor(const ObjC::Object& color)
{
    const auto* standing = standInOrNull<UIColor>(color);
    return standing ? std::optional(standing->current().color()) : std::nullopt;
}

static const StandInClass uiColor("UIColor", "NSObject", [](Binder<UIColor>& binder) {
    const Class type = binder.classMethod<"colorWithRed:green:blue:alpha:", &UIColor::withRed>()
                           .classMethod<"colorWithWhite:alpha:", &UIColor::withWhite>()
                           .classMethod<"colorWithHue:saturation:brightness:alpha:", &UIColor::withHue>()
                           .classMethod<"colorWithCGColor:", &UIColor::withCGColor>()
                           .init<"initWithRed:green:blue:alpha:", &UIColor::initWithRed>()
                           .init<"initWithWhite:alpha:", &UIColor::initWithWhite>()
                           .init<"initWithHue:saturation:brightness:alpha:", &UIColor::initWithHue>()
                           .def<"getRed:green:blue:alpha:", &UIColor::getRed>()
                           .def<"getHue:saturation:brightness:alpha:", &UIColor::getHue>()
                           .def<"getWhite:alpha:", &UIColor::getWhite>()
                           .def<"CGColor", &UIColor::CGColor>()
                           .def<"colorWithAlphaComponent:", &UIColor::withAlpha>()
                           .def<"isEqual:", &UIColor::isEqual>()
                           .def<"hash", &UIColor::hash>()
                           .def<"description", &UIColor::description>()
                           .def<"copyWithZone:", &UIColor::sameForCopy>()
                           .add();
    registerNamedColors(type);
});

}
