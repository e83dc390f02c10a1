// The conversions between a colour and the platform's, and the class `WKSColor`.
#include "WKSPalette/WKSColor.hpp"

#include "Platform/ObjC/Method.hpp"

namespace LYR {

namespace {

/// A component times 255, truncated, its low 8 bits. Wide colours reach beyond 0 and 1 and wrap around.
std::uint8_t channel(CGFloat component)
{
    double scaled = component * 255.0;
    bool fits = scaled > -2147483648.0 && scaled < 2147483648.0;
    return fits ? static_cast<std::uint8_t>(static_cast<int>(scaled)) : 0;
}

/// An object of the class: each channel in an instance variable of its own.
class ColorObject : public ObjC::Class_<ColorObject, NS::Object, "WKSColor"> {
public:
    using Class_::Class_;

    WKSColor value() const
    {
        return {channelVariable("_r").get(), channelVariable("_g").get(), channelVariable("_b").get(),
            channelVariable("_a").get()};
    }
    void setValue(WKSColor color) const
    {
        channelVariable("_r").set(color.r);
        channelVariable("_g").set(color.g);
        channelVariable("_b").set(color.b);
        channelVariable("_a").set(color.a);
    }
    static ColorObject holding(WKSColor color)
    {
        ColorObject object = make();
        object.setValue(color);
        return object;
    }

private:
    ObjC::InstanceVariable<std::uint8_t> channelVariable(const char* name) const
    {
        return variable<std::uint8_t>(name);
    }
};

template <std::uint8_t WKSColor::*channel>
std::uint8_t getChannel(ColorObject self, SEL)
{
    return self.value().*channel;
}

template <std::uint8_t WKSColor::*channel>
void setChannel(ColorObject self, SEL, std::uint8_t value)
{
    WKSColor color = self.value();
    color.*channel = value;
    self.setValue(color);
}

ColorObject colorFromLong(ObjC::Object, SEL, long value)
{
    return ColorObject::holding(WKSColor::fromLong(value));
}

ColorObject colorFromUIColor(ObjC::Object, SEL, ObjC::Object color)
{
    return ColorObject::holding(WKSColor::fromUIColor(color.as<UI::Color>()));
}

void setLong(ColorObject self, SEL, long value)
{
    self.setValue(WKSColor::fromLong(value));
}
long toLong(ColorObject self, SEL)
{
    return self.value().toLong();
}
UI::Color uicolor(ColorObject self, SEL)
{
    return self.value().uicolor();
}
UI::Color uicolorWithAlpha(ColorObject self, SEL, double alpha)
{
    return self.value().uicolorWithAlpha(alpha);
}
double lum(ColorObject self, SEL)
{
    return self.value().lum();
}
bool isDark(ColorObject self, SEL)
{
    return self.value().isDark();
}
bool isBlackOrWhite(ColorObject self, SEL)
{
    return self.value().isBlackOrWhite();
}

/// Whether a test of two colours holds; it never does beside something that is no colour.
template <bool (WKSColor::*test)(WKSColor) const>
bool compare(ColorObject self, SEL, ObjC::Object other)
{
    ColorObject color = other.as<ColorObject>();
    return color && (self.value().*test)(color.value());
}

ColorObject saturate(ColorObject self, SEL, double saturation)
{
    UI::Color before = self.value().uicolor();
    UI::Color after = raisingSaturation(before, saturation);
    return after == before ? self : ColorObject::holding(WKSColor::fromUIColor(after));
}

}

WKSColor WKSColor::fromUIColor(const UI::Color& color)
{
    CGFloat red = 0;
    CGFloat green = 0;
    CGFloat blue = 0;
    CGFloat alpha = 0;
    color.getRed(&red, &green, &blue, &alpha);
    return {channel(red), channel(green), channel(blue), channel(alpha)};
}

UI::Color WKSColor::uicolorWithAlpha(double alpha) const
{
    return UI::Color::colorWithRed(r / 255.0, g / 255.0, b / 255.0, alpha);
}

WKSColor WKSColor::saturate(double saturation) const
{
    UI::Color before = uicolor();
    UI::Color after = raisingSaturation(before, saturation);
    return after == before ? *this : fromUIColor(after);
}

UI::Color raisingSaturation(const UI::Color& color, double minimum)
{
    CGFloat hue = 0;
    CGFloat saturation = 0;
    CGFloat brightness = 0;
    CGFloat alpha = 0;
    if (!color.getHue(&hue, &saturation, &brightness, &alpha) || !(saturation < minimum))
        return color;
    return UI::Color::colorWithHue(hue, minimum, brightness, alpha);
}

void registerWKSColor()
{
    ObjC::ClassBuilder::of<ColorObject>(NS::Object::type())
        .ivar<std::uint8_t>("_r")
        .ivar<std::uint8_t>("_g")
        .ivar<std::uint8_t>("_b")
        .ivar<std::uint8_t>("_a")
        .classMethod<"fromLong:", &colorFromLong>()
        .classMethod<"fromUIColor:", &colorFromUIColor>()
        .method<"r", &getChannel<&WKSColor::r>>()
        .method<"setR:", &setChannel<&WKSColor::r>>()
        .method<"g", &getChannel<&WKSColor::g>>()
        .method<"setG:", &setChannel<&WKSColor::g>>()
        .method<"b", &getChannel<&WKSColor::b>>()
        .method<"setB:", &setChannel<&WKSColor::b>>()
        .method<"a", &getChannel<&WKSColor::a>>()
        .method<"setA:", &setChannel<&WKSColor::a>>()
        .method<"setLong:", &setLong>()
        .method<"toLong", &toLong>()
        .method<"uicolor", &uicolor>()
        .method<"uicolorWithAlpha:", &uicolorWithAlpha>()
        .method<"lum", &lum>()
        .method<"isDark", &isDark>()
        .method<"isBlackOrWhite", &isBlackOrWhite>()
        .method<"isDistinct:", &compare<&WKSColor::isDistinct>>()
        .method<"isContrasting:", &compare<&WKSColor::isContrasting>>()
        .method<"saturate:", &saturate>()
        .build();
}

}
