// Bitmap contexts, pixel by pixel.
#include "PhoneRoot.hpp"

#include <cmath>

namespace Simulator {

using Pixel = std::array<std::uint8_t, 4>;
using ColorSpace = CF::Owned<CGColorSpaceRef, CGColorSpaceRelease>;
using Context = CF::Owned<CGContextRef, CGContextRelease>;

class BitmapContext : public PhoneRoot {
protected:
    static constexpr std::uint32_t layout = kCGImageAlphaPremultipliedLast | kCGBitmapByteOrder32Big;

    template <std::size_t width, std::size_t height>
    struct Bitmap {
        std::array<Pixel, width * height> pixels{};
        ColorSpace space{CGColorSpaceCreateDeviceRGB()};
        Context context{
            CGBitmapContextCreate(pixels.data(), width, height, 8, width * sizeof(Pixel), space.get(), layout)};
    };
    /// Two pixels beside each other above two more.
    static UI::Image fourPixels(Pixel topLeft, Pixel topRight, Pixel bottomLeft, Pixel bottomRight)
    {
        const std::array pixels = {topLeft, topRight, bottomLeft, bottomRight};
        return UI::Image::imageWithData(dataOf(Graphics::Image::fromPixels(pixels[0].data(), 2, 2, 8)->encodePng()));
    }
    static constexpr Pixel black = {0, 0, 0, 255};
    static constexpr Pixel white = {255, 255, 255, 255};
    static constexpr Pixel red = {255, 0, 0, 255};
    static constexpr Pixel nothing = {};
};

TEST_F(BitmapContext, OnePixelBecomesTheAverageOfAnImage)
{
    Bitmap<1, 1> bitmap;
    const auto image = fourPixels(red, red, black, {255, 0, 255, 255});
    CGContextDrawImage(bitmap.context.get(), {{0, 0}, {1, 1}}, image.CGImage());
    EXPECT_NEAR(bitmap.pixels[0][0], 191, 1);
    EXPECT_EQ(bitmap.pixels[0][1], 0);
    EXPECT_NEAR(bitmap.pixels[0][2], 64, 1);
    EXPECT_EQ(bitmap.pixels[0][3], 255);
}

TEST_F(BitmapContext, AnImageOfTheSameSizeIsCopied)
{
    Bitmap<2, 2> bitmap;
    const auto image = fourPixels(red, white, black, nothing);
    CGContextDrawImage(bitmap.context.get(), {{0, 0}, {2, 2}}, image.CGImage());
    EXPECT_EQ(bitmap.pixels, (std::array{red, white, black, nothing}));
}

TEST_F(BitmapContext, TheOriginIsAtTheBottomLeft)
{
    Bitmap<2, 2> bitmap;
    const auto image = UI::Image::imageWithData(dataOf(png(1, 1)));
    CGContextDrawImage(bitmap.context.get(), {{0, 0}, {1, 1}}, image.CGImage());
    EXPECT_EQ(bitmap.pixels, (std::array{nothing, nothing, red, nothing}));
    CGContextDrawImage(bitmap.context.get(), {{2, 2}, {-1, -1}}, image.CGImage());
    EXPECT_EQ(bitmap.pixels, (std::array{nothing, red, red, nothing}));
}

TEST_F(BitmapContext, WhatLiesOutsideIsCutOff)
{
    Bitmap<2, 2> bitmap;
    const auto image = fourPixels(red, white, black, nothing);
    CGContextDrawImage(bitmap.context.get(), {{1, -1}, {2, 2}}, image.CGImage());
    EXPECT_EQ(bitmap.pixels, (std::array{nothing, nothing, nothing, red}));
}

TEST_F(BitmapContext, TransparentPixelsLieOverWhatIsThere)
{
    Bitmap<1, 1> bitmap;
    bitmap.pixels[0] = white;
    const auto image = UI::Image::imageWithData(dataOf(png(1, 1, {128, 0, 0, 128})));
    CGContextDrawImage(bitmap.context.get(), {{0, 0}, {1, 1}}, image.CGImage());
    EXPECT_EQ(bitmap.pixels[0], (Pixel{255, 127, 127, 255}));
}

TEST_F(BitmapContext, AnEnormousRectangleIsDrawnWhereItCanBeSeen)
{
    Bitmap<1, 1> bitmap;
    const auto image = UI::Image::imageWithData(dataOf(png(1, 1)));
    CGContextDrawImage(bitmap.context.get(), {{-1e9, -1e9}, {2e9, 2e9}}, image.CGImage());
    EXPECT_EQ(bitmap.pixels[0], red);
}

TEST_F(BitmapContext, AbsurdParametersMakeNone)
{
    const ColorSpace space(CGColorSpaceCreateDeviceRGB());
    std::array<Pixel, 4> pixels{};
    const auto make = [&](std::size_t width, std::size_t height, std::size_t bits, std::size_t row,
                          CGColorSpaceRef colors, std::uint32_t info) {
        return static_cast<bool>(Context(CGBitmapContextCreate(pixels.data(), width, height, bits, row, colors, info)));
    };
    EXPECT_TRUE(make(2, 2, 8, 8, space.get(), layout));
    EXPECT_TRUE(make(2, 2, 8, 0, space.get(), kCGImageAlphaPremultipliedLast));
    EXPECT_FALSE(make(0, 2, 8, 8, space.get(), layout));
    EXPECT_FALSE(make(2, 0, 8, 8, space.get(), layout));
    EXPECT_FALSE(make(2, 2, 16, 8, space.get(), layout));
    EXPECT_FALSE(make(2, 2, 8, 4, space.get(), layout));
    EXPECT_FALSE(make(2, 2, 8, 8, nullptr, layout));
    EXPECT_FALSE(make(2, 2, 8, 8, space.get(), 0));
    EXPECT_FALSE(CGBitmapContextCreate(nullptr, 30000, 30000, 8, 0, space.get(), layout));
    EXPECT_FALSE(CGBitmapContextCreate(nullptr, SIZE_MAX, SIZE_MAX, 8, 0, space.get(), layout));
    EXPECT_FALSE(CGBitmapContextCreate(nullptr, 1, 1, 8, SIZE_MAX, space.get(), layout));
}

TEST_F(BitmapContext, DrawingNothingOrIntoNothingDoesNothing)
{
    Bitmap<1, 1> bitmap;
    const auto image = UI::Image::imageWithData(dataOf(png(1, 1)));
    CGContextDrawImage(nullptr, {{0, 0}, {1, 1}}, image.CGImage());
    CGContextDrawImage(bitmap.context.get(), {{0, 0}, {1, 1}}, nullptr);
    CGContextDrawImage(bitmap.context.get(), {{0, 0}, {0, 1}}, image.CGImage());
    CGContextDrawImage(bitmap.context.get(), {{std::nan(""), 0}, {1, 1}}, image.CGImage());
    EXPECT_EQ(bitmap.pixels[0], nothing);
}

TEST_F(BitmapContext, ItsOwnMemoryGoesWithIt)
{
    const ColorSpace space(CGColorSpaceCreateDeviceRGB());
    const Context context(CGBitmapContextCreate(nullptr, 3, 3, 8, 0, space.get(), layout));
    ASSERT_TRUE(context);
    const auto image = UI::Image::imageWithData(dataOf(png(1, 1)));
    CGContextDrawImage(context.get(), {{0, 0}, {3, 3}}, image.CGImage());
    EXPECT_EQ(StandInRegistry::shared().liveCount("CGContext"), 1);
}

}
