// The gauge between the day's low and high: a scale, and the way along it to the mark.
#include "Icon.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using namespace Icons;

constexpr int stepCount = 11;

Icon scale(int step)
{
    return read("HL16/" + std::to_string(2 * step + 1));
}

Icon way(int step)
{
    return read(std::string("HL16/") + static_cast<char>('a' + 2 * step));
}

/// On the arc, which opens downwards, at so many elevenths from the low at the left to the high at the right.
int alphaAt(const Icon& icon, double step)
{
    const double angle = (150 + 24 * step) * std::numbers::pi / 180;
    const double radius = 57.3;
    return icon.alpha(static_cast<int>(72 + radius * std::cos(angle)), static_cast<int>(72 + radius * std::sin(angle)));
}

TEST(GaugeIcons, MarkTheirStepAndLeaveRoomForTheMarkInTheScale)
{
    for (int step = 0; step < stepCount; ++step) {
        EXPECT_EQ(alphaAt(way(step), step), 255) << step;
        EXPECT_EQ(alphaAt(scale(step), step), 0) << step;
    }
}

TEST(GaugeIcons, ShowTheWayFromTheLowToTheMarkAndTheScaleOnToTheHigh)
{
    for (int step = 0; step < stepCount; ++step)
        for (int other = 0; other < stepCount; ++other) {
            if (other == step)
                continue;
            EXPECT_EQ(alphaAt(way(step), other), other < step ? 255 : 0) << step << " at " << other;
            EXPECT_NEAR(alphaAt(scale(step), other), 0.35 * 255, 1) << step << " at " << other;
        }
}

TEST(GaugeIcons, GrowTheWayFromStepToStep)
{
    for (int step = 1; step < stepCount; ++step)
        EXPECT_GT(way(step).ink(), way(step - 1).ink()) << step;
}

// A lone dot on the arc's line would be lost without the gap around it.
TEST(GaugeIcons, SetTheMarkOffFromTheWay)
{
    for (int step = 1; step < stepCount; ++step)
        EXPECT_LT(alphaAt(way(step), step - 0.47), 64) << step;
}

}
