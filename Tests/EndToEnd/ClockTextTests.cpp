// The time, and the date line with every item that may follow the date.
#include "Tests/EndToEnd/Scenario.hpp"

namespace {

const Json sunny = {{"temperature", "21°"}, {"high", "24°"}, {"low", "15°"}, {"conditions", "Partly Cloudy"},
    {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}, {"image", LYR_GOLDEN_FOLDER "/weather.png"}};

const Json dentist = Json::array({{{"title", "Dentist"}, {"start", "2020-11-16T09:30:00"}}});

constexpr const char* attachment = "\xEF\xBF\xBC"; // where an icon stands in a line

/// A phone on which every source has a value.
Support::PhoneStart fullPhone(const Json& settings)
{
    return eveningPhone(settings).weather(sunny).alarm("2020-11-16T06:30:00").events(dentist);
}

std::string dateLine(const Support::PhoneStart& start)
{
    return settled(start).label("_dateLabel").text;
}

std::string dateLineWith(Json settings)
{
    return dateLine(eveningPhone(settings));
}

}

TEST(Clock, ReadsNineFortyOneWithAPointOnDefaultSettings)
{
    EXPECT_EQ(settledWith().label("_timeLabel").text, "09.41");
}

TEST(Clock, TwentyFourHoursHaveNoLeadingZero)
{
    const Json settings = {{"twentyFourTime", true}, {"timeFormat", "hh.mm"}};
    EXPECT_EQ(settledWith(settings).label("_timeLabel").text, "21:41");
    EXPECT_EQ(settled(Phone::at("2020-11-15T09:41:00").settings(settings)).label("_timeLabel").text, "9:41");
}

TEST(Clock, AnEmptyPatternGivesAnEmptyText)
{
    auto phone = settledWith({{"timeFormat", ""}, {"dateFormat", ""}, {"dateOption", "0"}});
    EXPECT_EQ(phone.label("_timeLabel").text, "");
    EXPECT_EQ(phone.label("_dateLabel").text, "");
}

TEST(Clock, APatternOfAHundredThousandCharactersIsDrawnAndCrashesNothing)
{
    auto phone = settledWith({{"timeFormat", std::string(100000, 'H')}, {"dateFormat", std::string(100000, '\'')},
        {"alternateFormat", std::string(50000, 'G') + std::string(50000, 'y')}, {"dateOption", "5"}});
    EXPECT_FALSE(phone.capture().empty());
    EXPECT_EQ(phone.info().at("safeMode"), false);
}

TEST(Clock, FollowsTheUsersLanguageAndZone)
{
    auto phone = settled(eveningPhone({{"timeFormat", "HH:mm"}, {"dateFormat", "EEEE, d. MMMM"}, {"dateOption", "0"}})
                             .locale("de_DE")
                             .timeZone("Europe/Berlin"));
    EXPECT_EQ(phone.label("_timeLabel").text, "21:41");
    EXPECT_EQ(phone.label("_dateLabel").text, "Sonntag, 15. November");
}

TEST(Clock, AChangeOfZoneIsSeenAtTheNextRefresh)
{
    auto phone = settledWith({{"twentyFourTime", true}});
    phone.call("device.set", {{"timeZone", "Asia/Tokyo"}});
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").text, "6:41");
}

TEST(DateLine, OptionZeroIsTheDateAlone)
{
    auto label = settled(fullPhone({{"dateOption", "0"}})).label("_dateLabel");
    EXPECT_EQ(label.text, "Sun,Nov 15");
}

TEST(DateLine, EveryOptionWithAValueForIt)
{
    const std::string icon = std::string(" ") + attachment;
    const std::vector<std::string> expected = {"Sun,Nov 15", "Sun,Nov 1521°" + icon, "Sun,Nov 15H:24 L:15" + icon,
        "Sun,Nov 15Partly Cloudy" + icon, "Sun,Nov 15Haifa" + icon, "Sun,Nov 15 • Sun, 29 Rab. I 1442 AH",
        "Sun,Nov 15" + icon + "6:30 AM", "Sun,Nov 15" + icon + "9:30AM Dentist"};
    std::vector<std::string> lines;
    for (int option = 0; option < 8; ++option)
        lines.push_back(dateLine(fullPhone({{"dateOption", std::to_string(option)}})));
    EXPECT_EQ(lines, expected);
}

TEST(DateLine, EveryOptionWithoutAValueForIt)
{
    const std::string icon = std::string(" ") + attachment;
    const std::string date = "Sun,Nov 15";
    const std::vector<std::string> expected = {date, date, date, date, date, date + " • Sun, 29 Rab. I 1442 AH",
        date + icon + "No Alarms", date + icon + "No events today"};
    std::vector<std::string> lines;
    for (int option = 0; option < 8; ++option)
        lines.push_back(dateLineWith({{"dateOption", std::to_string(option)}}));
    EXPECT_EQ(lines, expected);
}

TEST(DateLine, AnItemWithoutAnIconHasNothingInItsPlace)
{
    const std::vector<std::string> expected
        = {"Sun,Nov 15", "Sun,Nov 1521°", "Sun,Nov 15H:24 L:15", "Sun,Nov 15Partly Cloudy", "Sun,Nov 15Haifa",
            "Sun,Nov 15 • Sun, 29 Rab. I 1442 AH", "Sun,Nov 15 6:30 AM", "Sun,Nov 15 9:30AM Dentist"};
    auto weather = sunny;
    weather.erase("image");
    auto phone = settled(fullPhone(Json::object()).weather(weather));
    for (const char* icon : {"alarm", "calendar"})
        phone.call(
            "file.remove", {{"path", std::string("/Library/Application Support/lyr.bundle/SS16/") + icon + ".png"}});
    for (int option = 0; option < 8; ++option) {
        phone.set({{"dateOption", std::to_string(option)}});
        refresh(phone);
        const auto line = phone.label("_dateLabel");
        EXPECT_EQ(line.text, expected[static_cast<std::size_t>(option)]);
        for (const Json& run : line.runs)
            EXPECT_FALSE(run.contains("image")) << run;
    }
}

// "Y" is the year of the week: the Buddhist calendar does not shift it.
TEST(DateLine, EveryAlternateCalendar)
{
    const std::vector<std::string> expected = {"Sun,Nov 15 • Sun, 28 Heshvan 5781 AM",
        "Sun,Nov 15 • Sun, 01 Mo10 4657 78", "Sun,Nov 15 • Sun, 29 Rab. I 1442 AH", "Sun,Nov 15 • Sun, 15 Nov 2020 BE"};
    std::vector<std::string> lines;
    for (int calendar = 1; calendar <= 4; ++calendar)
        lines.push_back(dateLineWith({{"dateOption", "5"}, {"alternateOption", std::to_string(calendar)}}));
    EXPECT_EQ(lines, expected);
}

TEST(DateLine, TheChineseDateInUpperCase)
{
    auto line = dateLineWith({{"dateOption", "5"}, {"alternateOption", "2"}, {"styleDate", "1"}});
    EXPECT_EQ(line.find("SUN,NOV 15 • SUN, 01 "), 0u) << line;
    for (char c : line)
        EXPECT_FALSE(c >= 'a' && c <= 'z') << line;
}

TEST(DateLine, AnAlternateCalendarThatDoesNotExistLeavesTheLine)
{
    auto phone = settledWith({{"dateOption", "0"}});
    for (const char* code : {"0", "5", "-1", "many"}) {
        phone.set({{"dateOption", "5"}, {"alternateOption", code}, {"dateFormat", "yyyy"}});
        refresh(phone);
        EXPECT_EQ(phone.label("_dateLabel").text, "Sun,Nov 15") << code;
    }
}

TEST(DateLine, AnOptionThatDoesNotExistLeavesTheLine)
{
    auto phone = settledWith({{"dateOption", "0"}});
    for (const char* code : {"8", "-1", "1000000"}) {
        phone.set({{"dateOption", code}, {"dateFormat", "yyyy"}});
        refresh(phone);
        EXPECT_EQ(phone.label("_dateLabel").text, "Sun,Nov 15") << code;
    }
}

TEST(DateLine, EveryStyle)
{
    std::vector<std::string> lines;
    for (int style = 1; style <= 4; ++style)
        lines.push_back(dateLine(
            fullPhone({{"dateOption", "3"}, {"dateFormat", "EEE 'at' HH"}, {"styleDate", std::to_string(style)}})));
    const std::string icon = std::string(" ") + attachment;
    EXPECT_EQ(lines,
        (std::vector<std::string>{"SUN AT 21PARTLY CLOUDY" + icon, "sun at 21partly cloudy" + icon,
            "Sun At 21Partly Cloudy" + icon, "Sun at 21Partly Cloudy" + icon}));
}

TEST(DateLine, UpperCaseKnowsLettersThatBecomeTwo)
{
    auto line = dateLine(eveningPhone({{"dateOption", "4"}, {"styleDate", "1"}, {"dateFormat", "d"}})
                             .weather({{"location", "Hauptstraße"}, {"temperature", "1°"}}));
    EXPECT_EQ(line.find("15HAUPTSTRASSE"), 0u) << line;
}

TEST(DateLine, AStyleThatDoesNotExistLeavesTheLineAsItWasMade)
{
    for (const char* code : {"0", "5", "-3", "bold"}) {
        auto label = settledWith({{"styleDate", code}, {"dateOption", "0"}}).label("_dateLabel");
        EXPECT_EQ(label.text, "") << code;
    }
}

TEST(DateLine, TheTemperatureKeepsItsCaseAndFollowsWithoutASpace)
{
    auto weather = sunny;
    weather["temperature"] = "21°c Felt";
    for (const char* style : {"1", "2", "3", "4"}) {
        auto line
            = dateLine(eveningPhone({{"dateOption", "1"}, {"styleDate", style}, {"dateFormat", "d"}}).weather(weather));
        EXPECT_EQ(line, std::string("1521°c Felt ") + attachment);
    }
}

TEST(DateLine, TheQuickRefreshNeverTouchesIt)
{
    auto phone = settledWith({{"dateOption", "0"}, {"twentyFourTime", true}});
    phone.send({{"id", "_dateLabel"}}, "setText:", {"yesterday"});
    phone.send({{"id", "_timeLabel"}}, "setText:", {"earlier"});
    phone.send({{"instance", "SBFLockScreenDateViewController"}}, "requestUpdateTime");
    phone.settle(0.02);
    EXPECT_EQ(phone.label("_timeLabel").text, "21:41");
    EXPECT_EQ(phone.label("_dateLabel").text, "yesterday");
    refresh(phone);
    EXPECT_EQ(phone.label("_dateLabel").text, "Sun,Nov 15");
}

TEST(DateLine, TheQuickRefreshLeavesItAcrossMidnight)
{
    auto phone = settledWith({{"dateOption", "0"}});
    phone.call("clock.set", {{"time", "2020-11-16T00:00:00"}});
    phone.send({{"id", "_dateLabel"}}, "setText:", {"Sun,Nov 15"});
    phone.send({{"instance", "SBFLockScreenDateViewController"}}, "requestUpdateTime");
    phone.advance(0.02);
    EXPECT_EQ(phone.label("_timeLabel").text, "12.00");
    EXPECT_EQ(phone.label("_dateLabel").text, "Sun,Nov 15");
    refresh(phone);
    EXPECT_EQ(phone.label("_dateLabel").text, "Mon,Nov 16");
}

TEST(DateLine, FollowsAcrossMidnight)
{
    auto phone = settled(Phone::at("2020-11-15T23:59:30").settings({{"dateOption", "0"}}));
    phone.advance(60);
    EXPECT_EQ(phone.label("_dateLabel").text, "Mon,Nov 16");
    EXPECT_EQ(phone.label("_timeLabel").text, "12.00");
}

TEST(DateLine, TheStockDatesUpdateBringsItAlong)
{
    auto phone = settledWith({{"dateOption", "0"}});
    phone.call("clock.set", {{"time", "2020-11-17T08:05:00"}});
    phone.send({{"instance", "SBFLockScreenDateView"}}, "_updateLabels");
    EXPECT_EQ(phone.label("_dateLabel").text, "Tue,Nov 17");
    EXPECT_EQ(phone.label("_timeLabel").text, "08.05");
}

TEST(DateLine, IconsAreOneAndAHalfTimesAsTallAsTheText)
{
    Support::TemporaryFolder folder;
    auto phone = settled(fullPhone({{"dateOption", "1"}, {"sizeDateLabel", "24"}}));
    auto runs = phone.label("_dateLabel").runs;
    const Json* icon = nullptr;
    for (const Json& run : runs)
        if (run.contains("bounds"))
            icon = &run;
    ASSERT_TRUE(icon) << runs;
    auto bounds = icon->at("bounds");
    EXPECT_EQ(bounds[0], 0);
    EXPECT_EQ(bounds[2], 36);
    EXPECT_EQ(bounds[3], 36);
    double y = bounds[1];
    EXPECT_EQ(y, static_cast<int>(y)) << "whole points";
    EXPECT_LT(y, 0);
    EXPECT_GT(y, -18);
}

TEST(Refresh, IsDueATenthOfASecondAfterItIsAskedFor)
{
    auto phone = settledWith();
    phone.set({{"twentyFourTime", true}});
    phone.send({{"instance", "SBFLockScreenDateViewController"}}, "updateTime");
    phone.advance(0.099);
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
    phone.advance(0.002);
    EXPECT_EQ(phone.label("_timeLabel").text, "21:41");
}

TEST(Refresh, TheQuickOneIsDueAfterAHundredthOfASecond)
{
    auto phone = settledWith();
    phone.set({{"twentyFourTime", true}});
    phone.send({{"instance", "SBFLockScreenDateViewController"}}, "requestUpdateTime");
    phone.advance(0.009);
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
    phone.advance(0.002);
    EXPECT_EQ(phone.label("_timeLabel").text, "21:41");
}
