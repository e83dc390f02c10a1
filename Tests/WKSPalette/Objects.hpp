// The classes as a caller by message sees them, and pictures to give to them.
#pragma once

#include "Platform/Foundation/NSData.hpp"
#include "Platform/UIKit/UIImage.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Tests/Support/PhoneTest.hpp"
#include "WKSPalette/WKSColorUtils.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace LYR {

class ColorObject : public ObjC::Class_<ColorObject, NS::Object, "WKSColor"> {
public:
    using Class_::Class_;
    static ColorObject fromLong(long value) { return sendClass<ColorObject, "fromLong:">(value); }
    long toLong() const { return send<long, "toLong">(); }
};

/// A test that may send messages.
class ObjectTest : public Simulator::PhoneTest {
protected:
    ObjectTest() { registerWKSPalette(); }
};

/// A PNG of the colours 0xAARRGGBB, alpha premultiplied.
inline UI::Image pictureOf(int width, int height, const std::vector<std::uint32_t>& colors)
{
    std::vector<std::uint8_t> bytes;
    for (std::uint32_t color : colors)
        for (int shift : {16, 8, 0, 24})
            bytes.push_back(static_cast<std::uint8_t>(color >> shift));
    auto png = Simulator::Graphics::Image::fromPixels(bytes.data(), width, height, width * 4)->encodePng();
    return UI::Image::imageWithData(NS::Data::dataWithBytes(png.data(), png.size()));
}

inline UI::Image pictureOf(int width, int height, std::uint32_t color)
{
    return pictureOf(width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width) * height, color));
}

struct Components {
    double red = -1;
    double green = -1;
    double blue = -1;
    double alpha = -1;

    explicit Components(const UI::Color& color) { color.getRed(&red, &green, &blue, &alpha); }
};

/// Expects the colour 0xRRGGBB with that alpha, to within rounding.
inline void expectColor(const UI::Color& color, std::uint32_t rgb, double alpha)
{
    ASSERT_TRUE(color) << "there is no colour";
    Components components(color);
    EXPECT_NEAR(components.red * 255, rgb >> 16 & 255, 0.001);
    EXPECT_NEAR(components.green * 255, rgb >> 8 & 255, 0.001);
    EXPECT_NEAR(components.blue * 255, rgb & 255, 0.001);
    EXPECT_NEAR(components.alpha, alpha, 0.001);
}

}
