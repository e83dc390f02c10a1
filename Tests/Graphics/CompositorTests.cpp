// The frame as a whole: its size, its encodings, pictures drawn off the screen.
#include "SampleFonts.hpp"
#include "Screen.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace Simulator::Graphics {

using namespace Samples;

TEST(Compositor, HasTheScreensPixels)
{
    Compositor compositor(systemCatalogue(), {375, 812}, 3);
    EXPECT_EQ(compositor.pixels().width, 1'125);
    EXPECT_EQ(compositor.pixels().height, 2'436);
}

TEST(Compositor, HoldsAbsurdSizesWithinBounds)
{
    for (const double side : {0.0, -5.0, std::nan("")}) {
        Compositor compositor(systemCatalogue(), {side, 10}, 1);
        EXPECT_EQ(compositor.pixels().width, 1);
    }
    Compositor vast(systemCatalogue(), {1e12, 1}, std::nan(""));
    EXPECT_EQ(vast.pixels().width, 16'384);
}

TEST(Compositor, BeginsInBlackOrWithNothing)
{
    Screen opaque({4, 4});
    opaque.show(std::vector<Layer>{});
    EXPECT_EQ(opaque.at(2, 2), (Rgba{0, 0, 0, 255}));
    Screen transparent({4, 4}, 1, Backing::transparent);
    transparent.show(std::vector<Layer>{});
    EXPECT_EQ(transparent.at(2, 2), (Rgba{0, 0, 0, 0}));
}

TEST(Compositor, EncodesTheFrameExactly)
{
    Screen screen({30, 20}, 2);
    screen.show({box({0, 0, 30, 20}, {0.2, 0.4, 0.6, 1}), label({0, 0, 30, 20}, "9", 18)});
    const auto decoded = Image::fromBytes(screen.compositor().encodePng());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->size(), (Size{60, 40}));
    const Canvas canvas = drawn(*decoded, 60, 40);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x)
            ASSERT_EQ(canvas.at(x, y), screen.at(x, y));
    }
}

TEST(Compositor, EncodesAPartOfTheFrame)
{
    Screen screen({30, 20});
    screen.show({box({0, 0, 30, 20}, red), box({10, 5, 3, 2}, blue)});
    const auto part = Image::fromBytes(screen.compositor().encodePng({10, 5, 4, 2}));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->size(), (Size{4, 2}));
    const Canvas canvas = drawn(*part, 4, 2);
    EXPECT_EQ(canvas.at(2, 1), (Rgba{0, 0, 255}));
    EXPECT_EQ(canvas.at(3, 1), (Rgba{255, 0, 0}));
    EXPECT_TRUE(screen.compositor().encodePng({100, 100, 5, 5}).empty());
    EXPECT_EQ(Image::fromBytes(screen.compositor().encodePng({28, 18, 50, 50}))->size(), (Size{2, 2}));
}

TEST(Compositor, DrawsPicturesOffTheScreen)
{
    Layer layer = box({2, 2, 4, 4}, {1, 0, 0, 0.5});
    const auto image = rasterize(systemCatalogue(), layer, {8, 8}, 2);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (Size{16, 16}));
    const Canvas canvas = drawn(*image, 16, 16);
    EXPECT_EQ(canvas.at(0, 0), (Rgba{0, 0, 0, 0}));
    EXPECT_EQ(canvas.at(8, 8), (Rgba{128, 0, 0, 128}));
    EXPECT_FALSE(rasterize(systemCatalogue(), layer, {0, 8}, 2));
}

TEST(Compositor, TwoScreensOfTheSameTreeAreEqual)
{
    Layer layer = label({0, 0, 100, 40}, "Sunday 15", 20);
    layer.shadow = {0.7, {0, 0, 1, 1}, 3, {1, 1}};
    Screen one({100, 40}, 3);
    Screen other({100, 40}, 3);
    one.show(layer);
    other.show(layer);
    EXPECT_EQ(one.bytes(), other.bytes());
}

}
