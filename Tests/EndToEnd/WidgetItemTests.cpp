// What the strip and the date line tell of the weather, the alarm and the calendar.
#include "Tests/EndToEnd/StripScenario.hpp"

#include <cmath>

namespace {

constexpr const char* weatherPicture = LYR_GOLDEN_FOLDER "/weather.png";
constexpr const char* attachment = "\xEF\xBF\xBC"; // where an icon stands in a line

Json weatherAt(const std::string& temperature, const std::string& low, const std::string& high)
{
    auto weather = sunnyWeather;
    weather.update({{"temperature", temperature}, {"low", low}, {"high", high}});
    return weather;
}

/// The pair of icons that marks where the temperature stands.
std::string indicator(Phone& phone, const std::string& temperature, const std::string& low, const std::string& high)
{
    setDevice(phone, {{"weather", weatherAt(temperature, low, high)}});
    return iconIn(phone, "_HL") + " " + iconIn(phone, "_HLo");
}

std::string pairOf(const char* scale, const char* mark)
{
    return std::string("HL16/") + scale + " HL16/" + mark;
}

Json event(const std::string& title, const std::string& start, bool allDay = false)
{
    return Json::array({{{"title", title}, {"start", start}, {"allDay", allDay}}});
}

/// The middle slot's time and the half of the day beside it.
std::string agenda(Phone& phone)
{
    const auto half = phone.label("_pm").text;
    return phone.label("_sunLabel").text + (half.empty() ? "" : " " + half);
}

/// The date line after its date.
std::string itemInDateLine(Phone& phone)
{
    return phone.label("_dateLabel").text;
}

Support::PhoneStart itemPhone(Json settings)
{
    settings["dateFormat"] = "d";
    return stripPhone(settings);
}

}

TEST(WeatherItems, AreInTheStripWithoutTheSignOfADegree)
{
    auto phone = settled(stripPhone());
    EXPECT_EQ(phone.label("_temperatureLabel").text, "21");
    EXPECT_EQ(phone.label("_tempLabel").text, "21");
    EXPECT_EQ(phone.label("_highLabel").text, "H:24");
    EXPECT_EQ(phone.label("_lowLabel").text, "L:15");
    EXPECT_EQ(phone.label("_HLLabel").text, "H:24 L:15");
    EXPECT_EQ(phone.label("_conLabel").text, "Partly Cloudy");
}

TEST(WeatherItems, EverythingFromTheSignOnIsLeftOut)
{
    auto phone = settled(stripPhone().weather(weatherAt("21° felt 19°", "15°C", "21°")));
    EXPECT_EQ(phone.label("_temperatureLabel").text, "21");
    EXPECT_EQ(phone.label("_lowLabel").text, "L:15");
    EXPECT_EQ(phone.label("_highLabel").text, "H:21");
    setDevice(phone, {{"weather", weatherAt("21", "°", "24 °")}});
    EXPECT_EQ(phone.label("_temperatureLabel").text, "21");
    EXPECT_EQ(phone.label("_lowLabel").text, "L:");
    EXPECT_EQ(phone.label("_highLabel").text, "H:24 ");
}

TEST(WeatherItems, TheDateLineHasTheTemperatureAsItStands)
{
    auto phone = settled(itemPhone({{"dateOption", "1"}}).weather(weatherAt("21° felt", "15°", "24°")));
    EXPECT_EQ(itemInDateLine(phone), "1521° felt");
}

TEST(WeatherItems, AreEmptyWithoutWeather)
{
    auto phone = settled(stripPhone());
    setDevice(phone, {{"weather", nullptr}});
    for (const char* id : {"_tempLabel", "_highLabel", "_lowLabel", "_conditionLabel", "_temperatureLabel", "_conLabel",
             "_HLLabel", "_sunLabel"})
        EXPECT_EQ(phone.label(id).text, "") << id;
    EXPECT_EQ(phone.info().at("safeMode"), false);
}

TEST(WeatherItems, NoTemperatureIsShownAsTheLibrarySaysIt)
{
    auto phone = settled(stripPhone().weather(weatherAt("--", "--", "--")));
    EXPECT_EQ(phone.label("_temperatureLabel").text, "--");
    EXPECT_EQ(phone.label("_HLLabel").text, "H:-- L:--");
}

TEST(WeatherItems, ARecordWithGapsHasEmptyTextsThere)
{
    auto phone = settled(stripPhone().weather({{"temperature", "21°"}, {"high", "24°"}}));
    EXPECT_EQ(phone.label("_temperatureLabel").text, "21");
    EXPECT_EQ(phone.label("_highLabel").text, "H:24");
    EXPECT_EQ(phone.label("_lowLabel").text, "");
    EXPECT_EQ(phone.label("_conLabel").text, "");
    EXPECT_EQ(phone.label("_sunLabel").text, "");
}

TEST(WeatherItems, AreAskedForAtEachRefresh)
{
    auto phone = settled(stripPhone());
    phone.takeLog();
    for (int i = 0; i < 3; ++i)
        refresh(phone);
    EXPECT_EQ(phone.takeLog("weatherRefresh").size(), 3u);
}

TEST(WeatherIndicator, FollowsTheTemperatureFromTheLowUpAndFromTheHighDown)
{
    struct Row {
        int temperature;
        const char* scale;
        const char* mark;
    };
    // Between 5 and 30 degrees.
    const Row rows[] = {{5, "1", "a"}, {6, "3", "c"}, {7, "5", "e"}, {8, "7", "g"}, {9, "9", "i"}, {10, "11", "k"},
        {11, "13", "m"}, {27, "15", "o"}, {28, "17", "q"}, {29, "19", "s"}, {30, "21", "u"}};
    auto phone = settled(stripPhone({{"highLowOption", "0"}}));
    for (const auto& [temperature, scale, mark] : rows)
        EXPECT_EQ(indicator(phone, std::to_string(temperature) + "°", "5°", "30°"), pairOf(scale, mark)) << temperature;
}

TEST(WeatherIndicator, StandsInTheMiddleWhereNothingElseHolds)
{
    auto phone = settled(stripPhone());
    for (const char* temperature : {"12", "20", "26", "4", "31", "-40", "1000"})
        EXPECT_EQ(indicator(phone, temperature, "5°", "30°"), pairOf("11", "k")) << temperature;
    EXPECT_EQ(indicator(phone, "30°", "5°", "20°"), pairOf("11", "k"));
}

TEST(WeatherIndicator, TheLowCountsFirst)
{
    auto phone = settled(stripPhone());
    EXPECT_EQ(indicator(phone, "12°", "10°", "12°"), pairOf("5", "e"));
    EXPECT_EQ(indicator(phone, "10°", "10°", "10°"), pairOf("1", "a"));
    EXPECT_EQ(indicator(phone, "16°", "10°", "17°"), pairOf("13", "m"));
    EXPECT_EQ(indicator(phone, "17°", "10°", "17°"), pairOf("21", "u"));
}

TEST(WeatherIndicator, NoTemperatureCountsAsZero)
{
    auto phone = settled(stripPhone());
    EXPECT_EQ(indicator(phone, "--", "0°", "9°"), pairOf("1", "a"));
    EXPECT_EQ(indicator(phone, "--", "-3°", "9°"), pairOf("7", "g"));
    EXPECT_EQ(indicator(phone, "--", "-20°", "2°"), pairOf("17", "q"));
    EXPECT_EQ(indicator(phone, "mild", "-1°", "9°"), pairOf("3", "c"));
}

TEST(WeatherIndicator, KnowsDegreesBelowZero)
{
    auto phone = settled(stripPhone());
    EXPECT_EQ(indicator(phone, "-4°", "-8°", "1°"), pairOf("9", "i"));
    EXPECT_EQ(indicator(phone, "-1°", "-20°", "1°"), pairOf("17", "q"));
}

TEST(WeatherIcon, TakesTheTextsColourUnlessItKeepsItsOwn)
{
    Support::TemporaryFolder folder;
    auto source = settledWith();
    auto weather = sunnyWeather;
    weather["image"] = folder.put("sun.png", source.readFile(resourceFolder + "SS16/up.png"));
    for (bool coloured : {true, false}) {
        auto phone = settled(stripPhone({{"colourIconWeather", coloured}, {"dateOption", "1"}}).weather(weather));
        for (const char* id : {"_conditionLabel", "_dateLabel"}) {
            const Json icon = phone.label(id).runs.back();
            // A template at the beginning of a text is black on some systems, so the colour is in the picture there.
            EXPECT_EQ(icon.at("template"), coloured && id != std::string("_conditionLabel")) << id;
        }
    }
}

TEST(SunItems, ShowTheTimeWithTheIconOfThatEndOfTheDay)
{
    auto phone = settled(stripPhone({{"sunOption", "1"}}));
    EXPECT_EQ(agenda(phone), "6:12");
    EXPECT_EQ(iconIn(phone, "_SL"), "SS16/up");
    EXPECT_EQ(iconIn(phone, "_upS"), "SS16/down");
    change(phone, {{"sunOption", "2"}});
    EXPECT_EQ(agenda(phone), "16:41");
    EXPECT_EQ(iconIn(phone, "_SL"), "SS16/down");
    EXPECT_EQ(iconIn(phone, "_upS"), "SS16/up");
}

TEST(SunItems, AnOptionThatNamesNothingLeavesTheMiddle)
{
    auto phone = settled(stripPhone({{"sunOption", "2"}}));
    for (const char* code : {"0", "5", "-1", "moon"}) {
        change(phone, {{"sunOption", code}});
        EXPECT_EQ(agenda(phone), "16:41") << code;
        EXPECT_EQ(iconIn(phone, "_SL"), "SS16/down") << code;
    }
}

TEST(AlarmItem, ReadsItsTimeInEitherClock)
{
    struct Row {
        const char* alarm;
        const char* twelve;
        const char* twentyFour;
    };
    const Row rows[] = {{"2020-11-16T00:05:00", "12:05 AM", "00:05"}, {"2020-11-16T12:00:00", "12:00 PM", "12:00"},
        {"2020-11-16T06:30:00", "6:30 AM", "06:30"}, {"2020-11-15T21:41:01", "9:41 PM", "21:41"},
        {"2020-11-16T23:59:59", "11:59 PM", "23:59"}};
    auto phone = settled(itemPhone({{"sunOption", "3"}, {"dateOption", "6"}}));
    for (const auto& [alarm, twelve, twentyFour] : rows) {
        phone.call("device.set", {{"alarm", alarm}});
        for (bool is24 : {false, true}) {
            phone.set({{"twentyFour", is24}});
            // The clock stands still, so that an alarm a second ahead is not over yet.
            phone.send({{"instance", "SBFLockScreenDateViewController"}}, "updateTime");
            phone.advance(0.101);
            phone.call("clock.set", {{"time", evening}});
            const std::string time = is24 ? twentyFour : twelve;
            EXPECT_EQ(agenda(phone), time);
            EXPECT_EQ(itemInDateLine(phone), std::string("15 ") + attachment + time);
            EXPECT_EQ(phone.view("_pm").alpha, is24 ? 0 : 1);
        }
    }
    EXPECT_EQ(iconIn(phone, "_SL"), "SS16/alarm");
    EXPECT_EQ(iconIn(phone, "_upS"), "");
}

TEST(AlarmItem, EveryHourHasItsHalfOfTheDay)
{
    auto phone = settled(stripPhone({{"sunOption", "3"}}));
    for (int hour = 0; hour < 24; ++hour) {
        char alarm[32];
        std::snprintf(alarm, sizeof alarm, "2020-11-17T%02d:05:00", hour);
        setDevice(phone, {{"alarm", alarm}});
        const std::string twelve = std::to_string(hour % 12 == 0 ? 12 : hour % 12);
        EXPECT_EQ(agenda(phone), twelve + (hour < 12 ? ":05 AM" : ":05 PM"));
    }
}

TEST(AlarmItem, WithoutAnAlarmThereIsNone)
{
    auto phone = settled(itemPhone({{"sunOption", "3"}, {"dateOption", "6"}}).alarm("2020-11-16T06:30:00"));
    EXPECT_EQ(agenda(phone), "6:30 AM");
    for (const Json& alarm : {Json(), Json("2020-11-15T21:40:00"), Json("1999-01-01T00:00:00")}) {
        setDevice(phone, {{"alarm", alarm}});
        EXPECT_EQ(agenda(phone), "No Alarms") << alarm;
        EXPECT_EQ(itemInDateLine(phone), std::string("15 ") + attachment + "No Alarms") << alarm;
    }
}

TEST(EventItem, ReadsTheFirstEvent)
{
    auto phone = settled(itemPhone({{"sunOption", "4"}, {"dateOption", "7"}}));
    const auto expectItem = [&](const Json& events, bool twentyFour, const std::string& item) {
        phone.set({{"twentyFour", twentyFour}});
        setDevice(phone, {{"events", events}});
        EXPECT_EQ(agenda(phone), item) << events;
        EXPECT_EQ(itemInDateLine(phone), std::string("15 ") + attachment + item) << events;
    };
    expectItem(event("Dentist", "2020-11-16T09:30:00"), false, "9:30AM Dentist");
    expectItem(event("Dentist", "2020-11-15T22:30:00"), false, "10:30PM Dentist");
    expectItem(event("Dentist", "2020-11-16T09:30:00"), true, "09:30 Dentist");
    expectItem(event("Moon", "2020-11-16T00:00:00"), false, "12:00AM Moon");
    expectItem(event("Lunch", "2020-11-16T12:00:00"), false, "12:00PM Lunch");
    expectItem(event("Holiday", "2020-11-16T00:00:00", true), false, "Holiday");
    expectItem(event("Holiday", "2020-11-16T00:00:00", true), true, "Holiday");
    expectItem(event("", "2020-11-16T00:00:00", true), false, "");
    auto two = event("Later", "2020-11-16T10:00:00");
    two.push_back(event("Sooner", "2020-11-16T08:00:00")[0]);
    expectItem(two, true, "08:00 Sooner");
    EXPECT_EQ(iconIn(phone, "_SL"), "SS16/calendar");
}

TEST(EventItem, WithoutATitleTheTimeIsLeft)
{
    auto phone = settled(stripPhone({{"sunOption", "4"}}).events(event("", "2020-11-16T09:30:00")));
    EXPECT_EQ(agenda(phone), "9:30AM");
    change(phone, {{"twentyFour", true}});
    EXPECT_EQ(agenda(phone), "09:30");
}

TEST(EventItem, LooksAheadAsManyDaysAsItIsTold)
{
    auto phone = settled(
        stripPhone({{"sunOption", "4"}, {"twentyFour", true}}).events(event("Dentist", "2020-11-17T09:30:00")));
    for (auto [days, item] : {std::pair{"1", "No events today"}, {"2", "09:30 Dentist"}, {"0", "No events today"},
             {"-3", "No events today"}, {"soon", "No events today"}, {"1000000000", "09:30 Dentist"}}) {
        change(phone, {{"rangeEvent", days}});
        EXPECT_EQ(agenda(phone), item) << days;
    }
}

TEST(EventItem, AnEmptyIntervalHoldsNotEvenAnEventThatIsGoingOn)
{
    auto phone = settled(
        stripPhone({{"sunOption", "4"}, {"rangeEvent", "0"}}).events(event("Holiday", "2020-11-15T00:00:00", true)));
    EXPECT_EQ(agenda(phone), "No events today");
    change(phone, {{"rangeEvent", "1"}});
    EXPECT_EQ(agenda(phone), "Holiday");
}

TEST(EventItem, WithoutEventsThereIsNone)
{
    auto phone = settled(itemPhone({{"sunOption", "4"}, {"dateOption", "7"}}));
    EXPECT_EQ(agenda(phone), "No events today");
    EXPECT_EQ(itemInDateLine(phone), std::string("15 ") + attachment + "No events today");
    setDevice(phone, {{"events", event("Over", "2020-11-15T08:00:00")}});
    EXPECT_EQ(agenda(phone), "No events today");
}

TEST(ItemsInTheDateLine, FollowItsCaseButForTheTemperature)
{
    const std::string icon = std::string(" ") + attachment;
    struct Row {
        const char* option;
        std::array<std::string, 4> lines; // upper, lower, capitalised, as it is
    };
    const Row rows[] = {
        {"1", {"1521°c" + icon, "1521°c" + icon, "1521°c" + icon, "1521°c" + icon}},
        {"2", {"15H:24 L:15" + icon, "15h:24 l:15" + icon, "15H:24 L:15" + icon, "15H:24 L:15" + icon}},
        {"3", {"15PARTLY CLOUDY", "15partly cloudy", "15Partly Cloudy", "15Partly cLOUDY"}},
        {"4", {"15HAIFA BAY", "15haifa bay", "15Haifa Bay", "15Haifa bay"}},
        {"6", {"15" + icon + "6:30 AM", "15" + icon + "6:30 am", "15" + icon + "6:30 Am", "15" + icon + "6:30 AM"}},
        {"7",
            {"15" + icon + "MY DENTIST", "15" + icon + "my dentist", "15" + icon + "My Dentist",
                "15" + icon + "my dENTIST"}},
    };
    auto weather = weatherAt("21°c", "15°", "24°");
    weather.update({{"conditions", "Partly cLOUDY"}, {"location", "Haifa bay"}, {"image", weatherPicture}});
    auto phone = settled(itemPhone({})
                             .weather(weather)
                             .alarm("2020-11-16T06:30:00")
                             .events(event("my dENTIST", "2020-11-16T00:00:00", true)));
    for (const auto& [option, lines] : rows) {
        for (int style = 1; style <= 4; ++style) {
            change(phone, {{"dateOption", option}, {"styleDate", std::to_string(style)}});
            EXPECT_EQ(phone.label("_dateLabel").text.find(lines[style - 1]), 0u)
                << option << " " << style << ": " << phone.label("_dateLabel").text;
        }
    }
}

TEST(ItemsInTheDateLine, TheirIconsAllHaveTheSameGeometry)
{
    auto weather = sunnyWeather;
    weather["image"] = weatherPicture;
    auto phone = settled(stripPhone().weather(weather));
    for (int size : {1, 13, 20, 24, 60}) {
        // The built-in date font's capitals are 0.7165 of its size tall.
        const double y = std::trunc((0.7165 * size - 1.5 * size) / 2);
        const Json bounds = {0, y, 1.5 * size, 1.5 * size};
        for (const char* option : {"1", "2", "3", "4", "6", "7"}) {
            change(phone, {{"dateOption", option}, {"sizeDateLabel", std::to_string(size)}});
            int icons = 0;
            for (const Json& run : phone.label("_dateLabel").runs) {
                if (run.contains("bounds")) {
                    EXPECT_EQ(run.at("bounds"), bounds) << option << " at " << size;
                    ++icons;
                }
            }
            EXPECT_EQ(icons, 1) << option << " at " << size;
        }
        phone.call("phone.subtitle", {{"text", "12:34"}});
        EXPECT_EQ(phone.label("_timerLabel").runs.at(0).at("bounds"), bounds) << "timer at " << size;
        phone.call("phone.subtitle", {{"text", ""}});
    }
}
