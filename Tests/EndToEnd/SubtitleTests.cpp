// The stock subtitle is taken off the screen, and a running timer takes the date's place.
#include "Tests/EndToEnd/Scenario.hpp"

namespace {

void writeSubtitle(Phone& phone, const std::string& text)
{
    phone.send({{"instance", "SBFLockScreenDateSubtitleView"}}, "setString:", {{{"text", text}}});
}

constexpr const char* attachment = "\xEF\xBF\xBC";

}

TEST(Subtitle, ItsLabelsNeverShow)
{
    auto phone = settledWith();
    EXPECT_FALSE(phone.has("stock.subtitle.label"));
    EXPECT_FALSE(phone.has("stock.subtitle.alternate"));
    EXPECT_TRUE(phone.has("stock.subtitle"));
}

TEST(Subtitle, ItsLabelsAreTakenOffEachTimeItComesIntoAWindow)
{
    auto phone = settledWith();
    for (const char* view : {"SBFLockScreenDateSubtitleView", "SBFLockScreenDateSubtitleDateView"}) {
        const bool isDate = view == std::string("SBFLockScreenDateSubtitleDateView");
        const char* variable = isDate ? "_alternateDateLabel" : "_label";
        const char* id = isDate ? "stock.subtitle.alternate" : "stock.subtitle.label";
        for (int i = 0; i < 3; ++i) {
            phone.call("objc.new", {{"class", "UILabel"}, {"name", "label"}});
            phone.send({{"named", "label"}}, "setAccessibilityIdentifier:", {{{"text", id}}});
            phone.send({{"instance", view}}, "addSubview:", Json::array({{{"named", "label"}}}));
            phone.send({{"instance", view}}, "setValue:forKey:", {{{"named", "label"}}, {{"text", variable}}});
            EXPECT_TRUE(phone.has(id)) << view;
            phone.send({{"instance", view}}, "didMoveToWindow");
            EXPECT_FALSE(phone.has(id)) << view;
        }
    }
}

TEST(Subtitle, ATextWithAColonIsARunningTimer)
{
    auto phone = settledWith();
    writeSubtitle(phone, "12:34");
    EXPECT_EQ(phone.global("isTimerRunning"), true);
    EXPECT_EQ(phone.label("_timerLabel").text, std::string(attachment) + "12:34");
    EXPECT_FALSE(phone.label("_timerLabel").hidden);
    EXPECT_TRUE(phone.label("_dateLabel").hidden);
    EXPECT_EQ(phone.label("_dateLabel").frame, (Rectangle{7, -3000, 345, 40}));
}

TEST(Subtitle, ADateGivesTheDateItsPlaceBack)
{
    auto phone = settledWith();
    writeSubtitle(phone, "12:34");
    writeSubtitle(phone, "Sunday, 15 November");
    EXPECT_EQ(phone.global("isTimerRunning"), false);
    EXPECT_TRUE(phone.label("_timerLabel").hidden);
    EXPECT_FALSE(phone.label("_dateLabel").hidden);
    EXPECT_EQ(phone.label("_dateLabel").frame, (Rectangle{7, 0, 345, 40}));
}

TEST(Subtitle, ADateThatIsSwitchedOffStaysAway)
{
    auto phone = settledWith({{"enableDate", false}});
    writeSubtitle(phone, "Monday, 16 November");
    EXPECT_TRUE(phone.label("_dateLabel").hidden);
    writeSubtitle(phone, "12:34");
    EXPECT_FALSE(phone.label("_timerLabel").hidden);
    EXPECT_TRUE(phone.label("_dateLabel").hidden);
    writeSubtitle(phone, "Monday, 16 November");
    EXPECT_TRUE(phone.label("_timerLabel").hidden);
    EXPECT_TRUE(phone.label("_dateLabel").hidden);
}

TEST(Subtitle, MidnightAndATimersEndBringNoDateThatIsSwitchedOff)
{
    auto phone = settled(Phone::at("2020-11-15T23:59:30").settings({{"enableDate", false}}));
    phone.advance(60);
    EXPECT_TRUE(phone.label("_dateLabel").hidden);
    phone.call("phone.timer", {{"seconds", 5}});
    phone.advance(1);
    EXPECT_EQ(phone.global("isTimerRunning"), true);
    phone.advance(60);
    EXPECT_EQ(phone.global("isTimerRunning"), false);
    EXPECT_TRUE(phone.label("_dateLabel").hidden);
}

TEST(Subtitle, ATimerWithoutItsIconIsTheTextAlone)
{
    auto phone = settledWith();
    phone.call("file.remove", {{"path", "/Library/Application Support/lyr.bundle/SS16/timer.png"}});
    writeSubtitle(phone, "12:34");
    const auto line = phone.label("_timerLabel");
    EXPECT_EQ(line.text, "12:34");
    for (const Json& run : line.runs)
        EXPECT_FALSE(run.contains("image")) << run;
}

TEST(Subtitle, ATextWithAPointAndAColonStandsThereTwice)
{
    auto phone = settledWith();
    writeSubtitle(phone, "1.5 12:00");
    EXPECT_EQ(phone.label("_timerLabel").text, std::string(attachment) + "1.5 12:001.5 12:00");
    EXPECT_EQ(phone.global("isTimerRunning"), true);
}

TEST(Subtitle, APointAloneIsNoTimerInTheEnd)
{
    auto phone = settledWith();
    writeSubtitle(phone, "Sun. 15 Nov");
    EXPECT_EQ(phone.global("isTimerRunning"), false);
    EXPECT_FALSE(phone.label("_dateLabel").hidden);
}

TEST(Subtitle, NoTextAtAllIsNoTimer)
{
    auto phone = settledWith();
    writeSubtitle(phone, "12:34");
    phone.send({{"instance", "SBFLockScreenDateSubtitleView"}}, "setString:", {nullptr});
    EXPECT_EQ(phone.global("isTimerRunning"), false);
}

TEST(Subtitle, WhileATimerRunsARefreshKeepsTheDateAboveTheScreen)
{
    auto phone = settledWith({{"YdateLabel", "12"}, {"dateOption", "0"}});
    writeSubtitle(phone, "12:34");
    refresh(phone);
    EXPECT_EQ(phone.label("_dateLabel").frame[1], -2988);
    EXPECT_EQ(phone.label("_dateLabel").text, "Sun,Nov 15") << "it is composed as usual";
    EXPECT_EQ(phone.label("_timerLabel").text, std::string(attachment) + "12:34");
}

TEST(Subtitle, AScreenOfFiveHundredPointsChangesNoFrame)
{
    for (double width : {500, 501}) {
        auto phone = settled(eveningPhone().screen(width, 900, 1));
        const Rectangle frame{1, 2, 3, 4};
        phone.send({{"id", "_dateLabel"}}, "setFrame:", Json::array({frame}));
        writeSubtitle(phone, "12:34");
        EXPECT_EQ(phone.label("_dateLabel").frame, frame) << width;
        EXPECT_TRUE(phone.label("_dateLabel").hidden);
        EXPECT_FALSE(phone.label("_timerLabel").hidden);
        writeSubtitle(phone, "Sunday, 15 November");
        EXPECT_EQ(phone.label("_dateLabel").frame, frame) << width;
    }
    for (double width : {499, 502}) {
        auto phone = settled(eveningPhone().screen(width, 900, 1));
        writeSubtitle(phone, "12:34");
        EXPECT_EQ(phone.label("_dateLabel").frame[1], -3000) << width;
    }
}
