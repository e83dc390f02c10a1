// UISlider.
#include "TouchTest.hpp"

#include "Platform/UIKit/UISlider.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

#include <limits>

namespace Simulator {

class Slider : public TouchTest {
protected:
    Slider()
    {
        // The thumb's way is 200 points: a point for each unit.
        slider = UI::Slider::make<"initWithFrame:">(CGRectMake(50, 100, 228, 34));
        slider.setMinimumValue(-100);
        slider.setMaximumValue(100);
        add(slider);
        listen(slider);
    }
    UI::Slider slider;
    static constexpr double middle = 164;
    static constexpr double y = 117;
};

TEST_F(Slider, StartsAtZeroOfZeroToOne)
{
    const auto fresh = UI::Slider::make();
    EXPECT_EQ(fresh.value(), 0);
    EXPECT_EQ(fresh.minimumValue(), 0);
    EXPECT_EQ(fresh.maximumValue(), 1);
    EXPECT_TRUE(fresh.isContinuous());
}

TEST_F(Slider, KeepsItsValueInItsRange)
{
    slider.setValue(500);
    EXPECT_EQ(slider.value(), 100);
    slider.setValueAnimated(-500, true);
    EXPECT_EQ(slider.value(), -100);
    slider.setValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(slider.value(), -100);
    slider.setMinimumValue(20);
    EXPECT_EQ(slider.value(), 20);
    slider.setMaximumValue(10);
    EXPECT_EQ(slider.minimumValue(), 10);
    EXPECT_EQ(slider.value(), 10);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Slider, FollowsTheFingerAndTellsOnceMoreWhenItIsLifted)
{
    down(middle, y);
    EXPECT_EQ(takeCalls(), Calls{});
    move(middle + 30, y);
    EXPECT_EQ(slider.value(), 30);
    move(middle + 37.5, y + 40);
    EXPECT_EQ(slider.value(), 37.5F);
    EXPECT_EQ(takeCalls(), (Calls{"UISlider tracking", "UISlider tracking"}));
    up(middle + 37.5, y + 40);
    EXPECT_EQ(slider.value(), 37.5F);
    EXPECT_EQ(takeCalls(), Calls{"UISlider"});
}

TEST_F(Slider, StopsAtItsEnds)
{
    drag({middle, y}, {middle + 1000, y});
    EXPECT_EQ(slider.value(), 100);
    drag({middle + 100, y}, {middle - 1000, y});
    EXPECT_EQ(slider.value(), -100);
}

TEST_F(Slider, IsTakenByItsThumbOnly)
{
    drag({middle + 80, y}, {middle + 90, y});
    EXPECT_EQ(slider.value(), 0);
    EXPECT_EQ(takeCalls(), Calls{});
    // Held beside its middle, it does not jump.
    drag({middle + 10, y}, {middle + 30, y});
    EXPECT_EQ(slider.value(), 20);
}

TEST_F(Slider, ThatIsNotContinuousTellsItsLastValueOnly)
{
    slider.setContinuous(false);
    drag({middle, y}, {middle + 50, y});
    EXPECT_EQ(slider.value(), 50);
    EXPECT_EQ(takeCalls(), Calls{"UISlider"});
}

TEST_F(Slider, PicturesAtItsEndsShortenItsTrack)
{
    const auto symbol = UI::Image::systemImageNamed("arrow.left.and.right"_ns);
    ASSERT_TRUE(symbol);
    slider.setMinimumValueImage(symbol);
    const auto track = slider.send<CGRect, "trackRectForBounds:">(slider.bounds());
    EXPECT_EQ(track.origin.x, symbol.size().width + 14);
    EXPECT_EQ(track.origin.x + track.size.width, 228);
}

TEST_F(Slider, SaysItsRange)
{
    slider.setValue(12);
    const auto described = describeView(viewOf(slider), false);
    EXPECT_EQ(described["value"], 12);
    EXPECT_EQ(described["minimum"], -100);
    EXPECT_EQ(described["maximum"], 100);
}

}
