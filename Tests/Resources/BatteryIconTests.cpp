// The level icons: they fill evenly from step to step, and lie in their outline and on their track.
#include "Icon.hpp"

#include <gtest/gtest.h>

namespace {

using namespace Icons;

class LevelIcons : public testing::TestWithParam<const char*> {
protected:
    static Icon level(int step) { return read(std::string("Battery16/") + GetParam() + std::to_string(step)); }
};

INSTANTIATE_TEST_SUITE_P(Battery, LevelIcons, testing::Values("Battery", "Charging"),
    [](const auto& info) { return std::string(info.param); });

TEST_P(LevelIcons, FillMoreFromStepToStep)
{
    for (std::size_t i = 1; i < levelSteps.size(); ++i) {
        const Icon less = level(levelSteps[i - 1]);
        const Icon more = level(levelSteps[i]);
        EXPECT_TRUE(isWithin(less, more)) << levelSteps[i];
        EXPECT_GT(more.ink(), less.ink() * 1.02) << levelSteps[i];
        EXPECT_GT(more.rightEdge(), less.rightEdge()) << levelSteps[i];
    }
}

TEST_P(LevelIcons, FillInProportion)
{
    const double full = level(100).ink();
    for (const int step : levelSteps)
        EXPECT_NEAR(level(step).ink() / full, step / 100., 0.025) << step;
}

TEST(BatteryIcons, LieInTheirOutlineWithoutTouchingIt)
{
    EXPECT_FALSE(overlap(read("Battery16/Battery100"), read("Battery16/BG")));
    EXPECT_FALSE(overlap(read("Battery16/Charging100"), read("Battery16/ChargingBG")));
}

TEST(BatteryIcons, LeaveRoomForTheBolt)
{
    EXPECT_FALSE(overlap(read("Battery16/bolt"), read("Battery16/ChargingBG")));
    EXPECT_FALSE(overlap(read("Battery16/bolt"), read("Battery16/Charging100")));
    EXPECT_TRUE(overlap(read("Battery16/bolt"), read("Battery16/BG"))); // which is why there are two outlines
}

TEST(BatteryIcons, MakeTheBarAsLongAsItsStep)
{
    const Icon track = read("Battery16/Background");
    for (const int step : levelSteps) {
        const Icon bar = read("Battery16/" + std::to_string(step));
        EXPECT_EQ(bar.width, track.width * step / 100) << step;
        EXPECT_EQ(bar.rightEdge(), bar.width) << step;
    }
}

TEST(BatteryIcons, LayTheFullBarOverTheWholeTrack)
{
    const Icon track = read("Battery16/Background");
    const Icon bar = read("Battery16/100");
    EXPECT_TRUE(isWithin(track, bar));
    EXPECT_EQ(track.rightEdge(), bar.rightEdge());
    EXPECT_LT(track.ink(), bar.ink() / 2); // fainter than what lies on it
}

}
