// UIColorWell and the sheet that it opens.
#include "TouchTest.hpp"

#include "Platform/UIKit/UIColorWell.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator {

class ColorWell : public TouchTest {
protected:
    ColorWell()
    {
        well = UI::ColorWell::make<"initWithFrame:">(CGRectMake(100, 100, 44, 44));
        well.setTitle("Time Color"_ns);
        add(well);
        listen(well);
    }
    UIView* part(const char* identifier) const
    {
        return findView(windowOf(window), std::string("system.colourSheet") + identifier);
    }
    void openSheet() const
    {
        tap(120, 120);
        layOut();
    }
    /// At a share of a part's width and height.
    CGPoint pointIn(const char* identifier, double across, double down) const
    {
        const CGSize size = part(identifier)->bounds().size;
        return part(identifier)->convertPointToView({size.width * across, size.height * down}, window);
    }
    std::string selected() const { return describeView(viewOf(well), false)["selected"]; }

    UI::ColorWell well;
};

TEST_F(ColorWell, ATapOpensTheSheetAndIsTold)
{
    well.addTarget(listener, ObjC::selector<"heardAgain">(), UI::ControlEvents::touchUpInside);
    EXPECT_FALSE(part(""));
    openSheet();
    ASSERT_TRUE(part(""));
    EXPECT_EQ(takeCalls(), Calls{"again"});
    openSheet();
}

TEST_F(ColorWell, AColourOfTheGridBecomesTheWells)
{
    openSheet();
    const CGPoint first = pointIn(".grid", 0.01, 0.01);
    tap(first.x, first.y);
    EXPECT_EQ(selected(), "#FFFFFFFF");
    EXPECT_EQ(takeCalls(), Calls{"UIColorWell"});
    const CGPoint red = pointIn(".grid", 0.01, 0.55);
    tap(red.x, red.y);
    EXPECT_EQ(selected(), "#FF0000FF");
    drag(first, red);
    EXPECT_EQ(selected(), "#FF0000FF");
}

TEST_F(ColorWell, TheSlidersChangeHueBrightnessAndOpacity)
{
    well.setSelectedColor(UI::Color::colorWithRed(1, 0, 0, 1));
    openSheet();
    drag(pointIn(".brightness", 0.95, 0.5), pointIn(".brightness", -1, 0.5));
    EXPECT_EQ(selected(), "#000000FF");
    drag(pointIn(".brightness", 0.05, 0.5), pointIn(".brightness", 2, 0.5));
    EXPECT_EQ(selected(), "#FF0000FF");
    drag(pointIn(".opacity", 0.95, 0.5), pointIn(".opacity", -1, 0.5));
    EXPECT_EQ(selected(), "#FF000000");
    const CGPoint thumb = pointIn(".hue", 0.04, 0.5);
    drag(thumb, {thumb.x + (part(".hue")->bounds().size.width - 28) / 3, thumb.y});
    EXPECT_EQ(selected(), "#00FF0000");
}

TEST_F(ColorWell, WithoutOpacityHasNoSliderForIt)
{
    well.setSupportsAlpha(false);
    openSheet();
    EXPECT_FALSE(part(".opacity"));
    EXPECT_TRUE(part(".hue"));
}

TEST_F(ColorWell, WithoutOpacityGivesOpaqueColours)
{
    well.setSupportsAlpha(false);
    well.setSelectedColor(UI::Color::colorWithRed(1, 0, 0, 0.5));
    openSheet();
    drag(pointIn(".brightness", 0.95, 0.5), pointIn(".brightness", -1, 0.5));
    EXPECT_EQ(selected(), "#000000FF");
}

TEST_F(ColorWell, TheSheetClosesByItsButtonOrATouchBesideIt)
{
    openSheet();
    const CGPoint close = pointIn(".close", 0.5, 0.5);
    tap(close.x, close.y);
    EXPECT_FALSE(part(""));
    openSheet();
    tap(10, 10);
    EXPECT_FALSE(part(""));
    EXPECT_FALSE(well.selectedColor());
}

TEST_F(ColorWell, TheSheetGoesWithItsWell)
{
    pool.emplace();
    openSheet();
    well.removeFromSuperview();
    EXPECT_FALSE(part(""));
    add(well);
    openSheet();
    well.removeFromSuperview();
    well = {};
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIColorSheetView"), 0);
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIColorWell"), 0);
}

TEST_F(ColorWell, SaysItsTitleAndColour)
{
    const auto described = describeView(viewOf(well), false);
    EXPECT_EQ(described["title"], "Time Color");
    EXPECT_EQ(described["selected"], nullptr);
    well.setSelectedColor(UI::Color::colorWithRed(0, 0.5, 1, 0.5));
    EXPECT_EQ(selected(), "#0080FF80");
}

}
