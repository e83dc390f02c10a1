// The class `WKSColorUtils`: reduces a picture to a few pixels and lets the palette be picked from them.
#include "WKSPalette/WKSColorUtils.hpp"

#include "Platform/Foundation/CFBase.hpp"
#include "Platform/ObjC/Method.hpp"
#include "WKSPalette/PalettePick.hpp"

#include <algorithm>
#include <array>

namespace LYR {

namespace {

constexpr std::size_t reducedEdge = 25;
constexpr double averageSaturation = 0.15;

using ColorSpace = CF::Owned<CGColorSpaceRef, &CGColorSpaceRelease>;
using Context = CF::Owned<CGContextRef, &CGContextRelease>;

/// Draws the whole picture into so many pixels. What cannot be drawn leaves them transparent.
void draw(CGImageRef image, std::span<WKSColor> pixels, std::size_t width, std::size_t height)
{
    ColorSpace space(CGColorSpaceCreateDeviceRGB());
    Context context(CGBitmapContextCreate(pixels.data(), width, height, 8, width * sizeof(WKSColor), space.get(),
        kCGImageAlphaPremultipliedLast | kCGBitmapByteOrder32Big));
    if (context)
        CGContextDrawImage(
            context.get(), CGRectMake(0, 0, static_cast<CGFloat>(width), static_cast<CGFloat>(height)), image);
}

/// The length of an edge once the longer one is the reduced edge: never enlarged, at least one pixel.
std::size_t reduced(std::size_t edge, std::size_t longerEdge)
{
    std::size_t length = longerEdge > reducedEdge ? edge * reducedEdge / longerEdge : edge;
    return std::max<std::size_t>(length, 1);
}

WKSPalette makePalette(const PickedColours& colors, double alpha)
{
    WKSPalette palette = WKSPalette::make();
    palette.setBackground(colors.background.uicolorWithAlpha(alpha));
    palette.setPrimary(colors.primary.uicolorWithAlpha(alpha));
    palette.setSecondary(colors.secondary.uicolorWithAlpha(alpha));
    palette.setDetail(colors.detail.uicolorWithAlpha(alpha));
    return palette;
}

WKSPalette averageColors(ObjC::Object, SEL, ObjC::Object picture, double alpha)
{
    UI::Image image = picture.as<UI::Image>();
    CGImageRef bitmap = image.CGImage();
    if (!bitmap)
        return {};
    std::size_t longerEdge = std::max(CGImageGetWidth(bitmap), CGImageGetHeight(bitmap));
    if (longerEdge == 0)
        return {};

    std::size_t width = reduced(CGImageGetWidth(bitmap), longerEdge);
    std::size_t height = reduced(CGImageGetHeight(bitmap), longerEdge);
    std::array<WKSColor, reducedEdge * reducedEdge> buffer{};
    std::span<WKSColor> pixels = std::span(buffer).first(width * height);
    draw(bitmap, pixels, width, height);
    return makePalette(pickPalette(pixels), alpha);
}

UI::Color averageColorNew(ObjC::Object, SEL, ObjC::Object picture, double alpha)
{
    return WKSColorUtils::averageColors(picture.as<UI::Image>(), alpha).background();
}

UI::Color averageColor(ObjC::Object, SEL, ObjC::Object picture, double alpha)
{
    UI::Image image = picture.as<UI::Image>();
    CGImageRef bitmap = image.CGImage();
    if (!bitmap)
        return {};
    std::array<WKSColor, 1> pixel{};
    draw(bitmap, pixel, 1, 1);
    if (pixel[0].a == 0)
        return UI::Color::clearColor();
    return WKSColorUtils::colorWithMinimumSaturation(pixel[0].uicolorWithAlpha(alpha), averageSaturation);
}

UI::Color colorWithMinimumSaturation(ObjC::Object, SEL, ObjC::Object color, double saturation)
{
    return raisingSaturation(color.as<UI::Color>(), saturation);
}

/// From 0 to 255; 0 for a colour that is neither grey nor of red, green and blue.
double brightness(CGColorRef color)
{
    std::size_t count = color ? CGColorGetNumberOfComponents(color) : 0;
    if (count != 2 && count != 4)
        return 0;
    const CGFloat* components = CGColorGetComponents(color);
    double red = components[0] * 255;
    double green = (count == 4 ? components[1] : components[0]) * 255;
    double blue = (count == 4 ? components[2] : components[0]) * 255;
    return (red * 299 + green * 587 + blue * 114) / 1000;
}

bool isDark(ObjC::Object, SEL, ObjC::Object color)
{
    return brightness(color.as<UI::Color>().CGColor()) < 125;
}

}

void registerWKSPalette()
{
    registerWKSColor();
    registerPaletteClass();
    ObjC::ClassBuilder::of<WKSColorUtils>(NS::Object::type())
        .classMethod<"averageColors:withAlpha:", &averageColors>()
        .classMethod<"averageColorNew:withAlpha:", &averageColorNew>()
        .classMethod<"averageColor:withAlpha:", &averageColor>()
        .classMethod<"colorWithMinimumSaturation:withSaturation:", &colorWithMinimumSaturation>()
        .classMethod<"isDark:", &isDark>()
        .build();
}

}
