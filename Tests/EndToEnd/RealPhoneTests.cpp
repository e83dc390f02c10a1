// What a real phone does otherwise than one would like: its own clock switch, its calendar, its libraries, its system.
#include "Tests/EndToEnd/Scenario.hpp"

#include <set>

namespace {

Json event(const char* title, const char* start, bool allDay = false)
{
    return {{"title", title}, {"start", start}, {"allDay", allDay}};
}

/// A phone whose date line has the day's number and the first event.
Support::PhoneStart eventPhone(const Json& events)
{
    return eveningPhone({{"dateOption", "7"}, {"dateFormat", "d"}}).events(events);
}

std::string dateLine(Phone& phone)
{
    return phone.label("_dateLabel").text;
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.ends_with(end);
}

}

TEST(ClockSwitch, DoesNotRewriteTheUsersPatterns)
{
    for (const Json& position : {Json(true), Json(false), Json()}) {
        auto phone = settled(eveningPhone().with("twentyFourHour", position));
        EXPECT_EQ(phone.label("_timeLabel").text, "09.41") << position;
        phone.set({{"twentyFourTime", true}});
        refresh(phone);
        EXPECT_EQ(phone.label("_timeLabel").text, "21:41") << position;
    }
}

TEST(ClockSwitch, DoesNotRewriteTheTimesOfAlarmsAndEvents)
{
    for (const Json& position : {Json(true), Json(false), Json()}) {
        auto phone = settled(eveningPhone({{"dateOption", "6"}, {"dateFormat", "d"}})
                                 .alarm("2020-11-16T06:30:00")
                                 .with("twentyFourHour", position));
        EXPECT_TRUE(endsWith(dateLine(phone), "6:30 AM")) << dateLine(phone);
        phone.set({{"twentyFour", true}});
        refresh(phone);
        EXPECT_TRUE(endsWith(dateLine(phone), "06:30")) << dateLine(phone);
    }
}

TEST(ClockSwitch, RewritesThePatternsOfTheSystemsOwnClock)
{
    auto phone = settled(eveningPhone().withoutExtension().with("twentyFourHour", true));
    EXPECT_EQ(phone.label("stock.time").text, "21:41");
    phone.call("device.set", {{"twentyFourHour", false}});
    phone.advance(61);
    EXPECT_EQ(phone.label("stock.time").text, "9:42");
}

TEST(Calendar, TheEarliestEventIsTheFirstInWhateverOrderTheyCome)
{
    const Json early = event("Early", "2020-11-15T22:00:00"), late = event("Late", "2020-11-16T09:00:00");
    for (const Json& events : {Json{early, late}, Json{late, early}}) {
        auto phone = settled(eventPhone(events));
        EXPECT_TRUE(endsWith(dateLine(phone), "Early")) << dateLine(phone);
    }
}

TEST(Calendar, AnEventThatLastsAllDayComesAfterThoseOfTheDayThatHaveATime)
{
    const Json today = event("Holiday", "2020-11-15T00:00:00", true);
    auto phone = settled(eventPhone({today, event("Tonight", "2020-11-15T23:30:00")}));
    EXPECT_TRUE(endsWith(dateLine(phone), "Tonight")) << dateLine(phone);
    phone.call("device.set", {{"events", {today, event("Tomorrow", "2020-11-16T00:15:00")}}});
    refresh(phone);
    EXPECT_TRUE(endsWith(dateLine(phone), "Holiday")) << dateLine(phone);
}

TEST(Calendar, WithoutAccessThereAreNoEventsAndNobodyIsAsked)
{
    auto phone
        = settled(eventPhone(Json::array({event("Secret", "2020-11-15T22:00:00")})).with("calendarAccess", "denied"));
    EXPECT_TRUE(endsWith(dateLine(phone), "No events today")) << dateLine(phone);
    const Json counts = phone.call("counts.take").at("counts");
    EXPECT_EQ(counts.at("calendarStores"), 0);
    EXPECT_EQ(counts.at("calendarQueries"), 0);
    phone.call("device.set", {{"calendarAccess", "granted"}});
    refresh(phone);
    EXPECT_TRUE(endsWith(dateLine(phone), "Secret")) << dateLine(phone);
}

TEST(Companions, AreThereOnceTheirLibrariesAreOpened)
{
    auto without = eveningPhone().withoutExtension().start();
    auto with = eveningPhone().start();
    for (const char* name : {"HBPreferences", "SparkColourPickerUtils", "WeatherApp"}) {
        const Json parameters = {{"class", name}, {"name", "companion"}};
        EXPECT_NE(without.errorCode("objc.new", parameters), 0) << name;
        EXPECT_EQ(with.errorCode("objc.new", parameters), 0) << name;
    }
}

TEST(Companions, AMissingOneCostsItsOwnFunctionOnly)
{
    const Json settings = {{"timeFormat", "HH:mm"}, {"colorTime", "4"}};
    const Json colours = {{"colourTime", "#123456"}};
    const auto start = [&](const char* lacking) {
        return settled(eveningPhone(settings).colours(colours).with("lacking", {lacking}));
    };
    auto withoutSettings = start("HBPreferences");
    EXPECT_EQ(withoutSettings.label("_timeLabel").text, "09.41");
    auto withoutColours = start("SparkColourPickerUtils");
    EXPECT_EQ(withoutColours.label("_timeLabel").text, "21:41");
    EXPECT_EQ(withoutColours.label("_timeLabel").textColour, "#123456FF");
    auto withoutWeather = start("WeatherApp");
    EXPECT_EQ(withoutWeather.label("_timeLabel").text, "21:41");
    EXPECT_EQ(withoutWeather.label("_timeLabel").textColour, "#123456FF");
}

TEST(Systems, EachHasTheClockTheDateLineAndTheStrip)
{
    for (const char* system : systems) {
        auto phone = settled(eveningPhone().with("system", system));
        EXPECT_EQ(phone.label("_timeLabel").text, "09.41") << system;
        EXPECT_TRUE(phone.view("_dateLabel").onScreen) << system;
        EXPECT_TRUE(phone.view("_batteryLabel").onScreen) << system;
        EXPECT_EQ(phone.info().at("starts"), 1) << system;
    }
}

TEST(Systems, EachOpensAndLeavesTheEditor)
{
    for (const char* system : systems) {
        auto phone = settled(eveningPhone().with("system", system));
        openEditor(phone);
        EXPECT_TRUE(phone.view("_done").onScreen) << system;
        phone.tap("_done");
        phone.advance(1);
        phone.call("phone.lock");
        phone.call("phone.wake");
        phone.settle();
        EXPECT_EQ(phone.info().at("starts"), 1) << system;
    }
}

TEST(Systems, AnUnknownOneIsRefused)
{
    auto phone = Phone::notStarted();
    EXPECT_NE(phone.errorCode("phone.start", {{"system", "12.0"}}), 0);
}

TEST(Systems, EveryInterceptionOfAMethodThatTheSystemHasIsInstalled)
{
    // No system has a method "hidden"; the others are of some systems only.
    const std::set<std::string> ofOldOnes{"hidden", "setTimeAlpha:subtitleAlpha:", "updateTimerWithText:",
        "_transitionChargingViewToVisible:suppressedByPack:showBattery:animated:"};
    const std::set<std::string> ofSixteen{"hidden", "setContentAlpha:withSubtitleVisible:"};
    for (const char* system : systems) {
        auto phone = eveningPhone({{"hideNotifHeader", true}}).with("system", system).start();
        const Json hooks = phone.call("objc.hooks").at("hooks");
        std::set<std::string> leftOut;
        for (const Json& hook : hooks) {
            if (hook.at("resolved") == false && hook.at("table") != "axon")
                leftOut.insert(hook.at("selector"));
        }
        EXPECT_EQ(leftOut, std::string(system) == "16.0" ? ofSixteen : ofOldOnes) << system;
    }
}

TEST(Systems, TheChargingViewIsKeptAwayByWhicheverMessageItComes)
{
    for (const char* system : systems) {
        auto phone = settled(eveningPhone({{"chargeAnim", true}}).with("system", system));
        phone.call("phone.charge", {{"charging", true}});
        EXPECT_FALSE(phone.has("stock.charging")) << system;
        phone.set({{"chargeAnim", false}});
        phone.call("phone.charge", {{"charging", false}});
        phone.call("phone.charge", {{"charging", true}});
        EXPECT_TRUE(phone.has("stock.charging")) << system;
    }
}

TEST(IdleTimer, IsHeldWhileTheEditorIsOpen)
{
    auto phone = settled(eveningPhone());
    openEditor(phone);
    const Json opened = phone.takeLog("idleTimer");
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0].at("action"), "add");
    phone.tap("_done");
    phone.advance(1);
    const Json closed = phone.takeLog("idleTimer");
    ASSERT_FALSE(closed.empty());
    EXPECT_EQ(closed[0].at("action"), "remove");
}

TEST(IdleTimer, IsHeldByTheControllerWhereItsProviderIsNotFound)
{
    auto phone
        = settled(eveningPhone().with("lacking", {"SBDashBoardIdleTimerController _dashBoardIdleTimerProvider"}));
    openEditor(phone);
    const Json opened = phone.takeLog("idleTimer");
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0].at("action"), "add");
}
