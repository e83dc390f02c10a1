// What stands in the stock subtitle: the date, a text, a running timer.
#include "ShellTest.hpp"
#include "Spy.hpp"

using namespace Simulator;

class Subtitle : public ShellTest { };

TEST_F(Subtitle, ShowsWhatTheSystemWrites)
{
    start();
    shell().subtitle("12:34");
    EXPECT_EQ(text("stock.subtitle"), "12:34");
    Loop::shared().advance(120);
    EXPECT_EQ(text("stock.subtitle"), "12:34");
    shell().subtitle("");
    EXPECT_EQ(text("stock.subtitle"), "Sunday, November 15");
}

TEST_F(Subtitle, IsWrittenByMessage)
{
    Spy spy;
    spy.listenTo("SBFLockScreenDateSubtitleView", "setString:");
    start();
    EXPECT_EQ(spy.take().size(), 1u);
    shell().subtitle("12:34");
    EXPECT_EQ(spy.take().size(), 1u);
}

TEST_F(Subtitle, CountsARunningTimerDown)
{
    start();
    shell().timer(90);
    EXPECT_EQ(text("stock.subtitle"), "1:30");
    EXPECT_TRUE(isShown("stock.timerDial"));
    Loop::shared().advance(1);
    EXPECT_EQ(text("stock.subtitle"), "1:29");
    Loop::shared().advance(29.5);
    EXPECT_EQ(text("stock.subtitle"), "1:00");
}

TEST_F(Subtitle, ShowsTheDateAgainWhenTheTimerIsOverOrStopped)
{
    start();
    shell().timer(5);
    Loop::shared().advance(6);
    EXPECT_EQ(text("stock.subtitle"), "Sunday, November 15");
    EXPECT_FALSE(find("stock.timerDial"));
    shell().timer(500);
    shell().timer(0);
    EXPECT_EQ(text("stock.subtitle"), "Sunday, November 15");
    EXPECT_EQ(Loop::shared().pending(), 1u);
}

TEST_F(Subtitle, KeepsItsLabelsInVariablesThatCanBeReachedByName)
{
    start();
    const NS::Object subtitle(view("stock.subtitle").raw());
    const auto label = subtitle.valueForKey<UI::View>("_label"_ns);
    const auto alternate = subtitle.valueForKey<UI::View>("_alternateDateLabel"_ns);
    ASSERT_TRUE(label);
    ASSERT_TRUE(alternate);
    label.removeFromSuperview();
    alternate.removeFromSuperview();
    shell().subtitle("gone");
    shell().commit();
    EXPECT_FALSE(find("stock.subtitle.label"));
    EXPECT_EQ(text("stock.subtitle"), "gone");
}

TEST_F(Subtitle, HearsWhenItComesIntoAWindow)
{
    Spy spy;
    spy.listenTo("SBFLockScreenDateSubtitleView", "didMoveToWindow");
    spy.listenTo("SBFLockScreenDateSubtitleDateView", "didMoveToWindow");
    start();
    EXPECT_EQ(spy.take(),
        (std::vector<std::string>{
            "SBFLockScreenDateSubtitleDateView didMoveToWindow", "SBFLockScreenDateSubtitleView didMoveToWindow"}));
}
