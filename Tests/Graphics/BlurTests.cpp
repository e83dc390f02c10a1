// The blur itself.
#include "Simulator/Graphics/Blur.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <vector>

namespace Simulator::Graphics {

namespace {

std::vector<std::uint8_t> blurredEdge(int size, double sigma)
{
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(size * size));
    for (int i = 0; i < size * size; ++i)
        pixels[static_cast<std::size_t>(i)] = i % size < size / 2 ? 255 : 0;
    blur(pixels.data(), size, size, size, BlurKind::alpha, sigma);
    return pixels;
}

}

TEST(Blur, FollowsTheGaussianAcrossAnEdge)
{
    const int size = 240;
    for (const double sigma : {1.5, 4.0, 9.0, 25.0}) {
        const auto pixels = blurredEdge(size, sigma);
        for (int x = 0; x < size; ++x) {
            const double distance = size / 2 - (x + 0.5);
            const double expected = 127.5 * (1 + std::erf(distance / sigma / std::sqrt(2.0)));
            EXPECT_NEAR(pixels[static_cast<std::size_t>(100 * size + x)], expected, 8) << sigma << " at " << x;
        }
    }
}

TEST(Blur, ReachesNoFurtherThanItsExtent)
{
    for (const double sigma : {0.3, 1.0, 3.0, 7.0, 20.0}) {
        const int extent = blurExtent(sigma);
        const int size = 2 * extent + 40;
        const auto pixels = blurredEdge(size, sigma);
        for (int x = 0; x < size; ++x) {
            const int value = pixels[static_cast<std::size_t>(x)];
            if (x < size / 2 - extent) {
                EXPECT_EQ(value, 255) << sigma << " at " << x;
            } else if (x >= size / 2 + extent) {
                EXPECT_EQ(value, 0) << sigma << " at " << x;
            }
        }
    }
}

TEST(Blur, LeavesAPlainPictureAsItIs)
{
    for (const double sigma : {0.0, 2.0, 30.0, 1e9}) {
        std::vector<std::uint8_t> pixels(37 * 19 * 4, 201);
        blur(pixels.data(), 37, 19, 37 * 4, BlurKind::color, sigma);
        EXPECT_EQ(std::accumulate(pixels.begin(), pixels.end(), 0), 37 * 19 * 4 * 201) << sigma;
    }
}

TEST(Blur, OfNoWidthDoesNothing)
{
    EXPECT_EQ(blurExtent(0), 0);
    const auto pixels = blurredEdge(10, 0);
    EXPECT_EQ(pixels[4], 255);
    EXPECT_EQ(pixels[5], 0);
}

}
