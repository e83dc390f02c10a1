// The stock clock: what it shows and when it moves.
#include "ShellTest.hpp"
#include "Simulator/SpringBoard/StockDateText.hpp"
#include "Spy.hpp"

using namespace Simulator;

class StockClock : public ShellTest { };

TEST_F(StockClock, ShowsTimeAndDateInTheLocale)
{
    start();
    EXPECT_EQ(text("stock.time"), "9:41");
    EXPECT_EQ(text("stock.subtitle"), "Sunday, November 15");
    EXPECT_TRUE(isShown("stock.time"));
    EXPECT_TRUE(isShown("stock.subtitle.label"));
}

TEST_F(StockClock, FollowsLocaleAndTimeZone)
{
    PhoneLocale::shared() = {"de_DE", "Asia/Jerusalem", {"de"}, {}};
    start();
    EXPECT_EQ(text("stock.time"), "23:41");
    EXPECT_EQ(text("stock.subtitle"), "Sonntag, 15. November");
}

TEST_F(StockClock, MovesOnTheMinute)
{
    Loop::shared().reset(*momentOfLocalTime("2020-11-15T23:58:30"));
    start();
    EXPECT_EQ(text("stock.time"), "11:58");
    Loop::shared().advance(29);
    EXPECT_EQ(text("stock.time"), "11:58");
    Loop::shared().advance(2);
    EXPECT_EQ(text("stock.time"), "11:59");
    Loop::shared().advance(60);
    EXPECT_EQ(text("stock.time"), "12:00");
    EXPECT_EQ(text("stock.subtitle"), "Monday, November 16");
}

TEST_F(StockClock, IsUpdatedOnceAMinute)
{
    start();
    Spy spy;
    spy.listenTo("SBFLockScreenDateView", "_updateLabels");
    Loop::shared().advance(59);
    EXPECT_EQ(spy.take().size(), 0u);
    Loop::shared().advance(2);
    EXPECT_EQ(spy.take().size(), 1u);
    Loop::shared().advance(600);
    EXPECT_EQ(spy.take().size(), 10u);
}

TEST_F(StockClock, ReadsTheNewMinuteFromAnyFractionOfASecondOn)
{
    for (const double fraction : {0.1, 0.3, 1 / 3.0, 0.7, 0.9999999}) {
        Loop::shared().reset(*momentOfLocalTime("2020-11-15T21:41:17") + fraction);
        start();
        Loop::shared().advance(43.01 - fraction);
        EXPECT_EQ(text("stock.time"), "9:42") << fraction;
    }
}

TEST_F(StockClock, RestsInTheDarkAndIsRightAgainInTheLight)
{
    start();
    shell().lock();
    Loop::shared().advance(300);
    EXPECT_EQ(text("stock.time"), "9:41");
    EXPECT_EQ(Loop::shared().pending(), 0u);
    shell().wake();
    EXPECT_EQ(text("stock.time"), "9:46");
}

TEST_F(StockClock, FollowsAClockThatWasSet)
{
    start();
    Loop::shared().setNow(*momentOfLocalTime("2020-11-15T09:05:50"));
    shell().clockChanged();
    EXPECT_EQ(text("stock.time"), "9:05");
    Loop::shared().advance(11);
    EXPECT_EQ(text("stock.time"), "9:06");
}

TEST_F(StockClock, LeavesNothingBehindThatKeepsTheLoopBusy)
{
    start();
    EXPECT_EQ(Loop::shared().pending(), Loop::shared().pendingRepeating());
}

TEST_F(StockClock, IsLaidOutAtItsPlaceAlsoWhenScaled)
{
    start({1024, 768});
    const UI::View clock = view("stock.dateView");
    clock.setTransform(CGAffineTransformMakeScale(0.8, 0.8));
    view("stock.coverSheet").setNeedsLayout();
    shell().commit();
    EXPECT_EQ(clock.bounds(), CGRectMake(0, 0, 752, 196));
    const CGRect place = this->place("stock.dateView");
    EXPECT_DOUBLE_EQ(place.origin.x + place.size.width / 2, 512);
}

TEST_F(StockClock, WritesTheTimeLeftOnATimer)
{
    const auto text = [](double seconds) { return std::string(timerText(seconds).utf8()); };
    EXPECT_EQ(text(299.2), "5:00");
    EXPECT_EQ(text(59), "0:59");
    EXPECT_EQ(text(3600), "1:00:00");
    EXPECT_EQ(text(-1), "0:00");
    EXPECT_EQ(text(1e12), "99:59:59");
}
