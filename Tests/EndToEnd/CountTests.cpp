// What a refresh asks of the phone: nothing that it does not show, and no file twice that has not changed.
#include "Tests/EndToEnd/StripScenario.hpp"

namespace {

Json takeCounts(Phone& phone)
{
    return phone.call("counts.take").at("counts");
}

/// What a full refresh and the label update after it count, but for files.
struct Asked {
    int weather = 0;
    int alarm = 0;
    int calendar = 0;
    bool operator==(const Asked&) const = default;
};

void PrintTo(const Asked& asked, std::ostream* stream)
{
    *stream << "weather " << asked.weather << ", alarm " << asked.alarm << ", calendar " << asked.calendar;
}

Asked askedBy(Phone& phone, void (*what)(Phone&))
{
    takeCounts(phone);
    what(phone);
    const Json counts = takeCounts(phone);
    return {counts.at("weatherRequests"), counts.at("alarmReads"), counts.at("calendarQueries")};
}

Support::PhoneStart agendaPhone(const Json& settings)
{
    return stripPhone(settings)
        .alarm("2020-11-16T06:30:00")
        .events(Json::array({{{"title", "Dentist"}, {"start", "2020-11-16T09:30:00"}}}));
}

constexpr Asked nobody{}, theWeather{1, 0, 0}, theAlarm{0, 1, 0}, theCalendar{0, 0, 1};

/// In the order of the date line's options.
constexpr Asked byDateOption[]
    = {nobody, theWeather, theWeather, theWeather, theWeather, nobody, theAlarm, theCalendar, nobody};

}

TEST(Counts, ADateLineAsksForTheItemThatItShowsAndAStripThatIsOffForNothing)
{
    auto phone = settled(agendaPhone({{"showWidget", false}, {"sunOption", "4"}}));
    for (int option = 0; option < 9; ++option) {
        phone.set({{"dateOption", std::to_string(option)}});
        EXPECT_EQ(askedBy(phone, refresh), byDateOption[option]) << option;
        EXPECT_EQ(askedBy(phone, updateLabels), byDateOption[option]) << option;
    }
}

TEST(Counts, ADateThatIsSwitchedOffAsksForNothing)
{
    auto phone = settled(agendaPhone({{"showWidget", false}, {"enableDate", false}}));
    for (int option = 0; option < 9; ++option) {
        phone.set({{"dateOption", std::to_string(option)}});
        EXPECT_EQ(askedBy(phone, refresh), nobody) << option;
        EXPECT_EQ(askedBy(phone, updateLabels), nobody) << option;
    }
}

TEST(Counts, ADateLineWithoutAStyleAsksForNothing)
{
    auto phone = settled(agendaPhone({{"showWidget", false}, {"styleDate", "0"}}));
    for (int option = 0; option < 9; ++option) {
        phone.set({{"dateOption", std::to_string(option)}});
        EXPECT_EQ(askedBy(phone, refresh), nobody) << option;
    }
}

TEST(Counts, AStripAsksForTheWeatherAndForWhatItsMiddleShows)
{
    auto phone = settled(agendaPhone({{"dateOption", "0"}}));
    const Asked bySunOption[] = {theWeather, theWeather, theWeather, {1, 1, 0}, {1, 0, 1}, theWeather};
    for (int option = 0; option < 6; ++option) {
        for (const char* weather : {"0", "1"}) {
            phone.set({{"sunOption", std::to_string(option)}, {"highLowOption", weather}});
            EXPECT_EQ(askedBy(phone, refresh), bySunOption[option]) << option;
            EXPECT_EQ(askedBy(phone, updateLabels), nobody) << "the strip is placed, not filled";
        }
    }
}

TEST(Counts, AMiddleThatGivesWayAsksForNothing)
{
    auto phone = settled(agendaPhone({{"dateOption", "0"}, {"battOption", "3"}}));
    for (const char* option : {"1", "2", "3", "4"}) {
        phone.set({{"sunOption", option}});
        EXPECT_EQ(askedBy(phone, refresh), theWeather) << option;
    }
}

TEST(Counts, WhatBothShowIsAskedForOnce)
{
    auto phone = settled(agendaPhone({{"dateOption", "7"}, {"sunOption", "4"}}));
    EXPECT_EQ(askedBy(phone, refresh), (Asked{1, 0, 1}));
    phone.set({{"dateOption", "6"}, {"sunOption", "3"}});
    EXPECT_EQ(askedBy(phone, refresh), (Asked{1, 1, 0}));
}

TEST(Counts, TheRefreshThatShowsADateFillsIt)
{
    auto phone = settled(agendaPhone({{"dateOption", "1"}, {"dateFormat", "d"}, {"enableDate", false}}));
    EXPECT_EQ(phone.label("_dateLabel").text, "15");
    change(phone, {{"enableDate", true}});
    EXPECT_EQ(phone.label("_dateLabel").text, "1521°");
}

TEST(Counts, AppearanceLightAndLockAskForTheWeatherWhateverIsShown)
{
    auto phone = settled(agendaPhone({{"dateOption", "0"}, {"showWidget", false}, {"showWidgetLastLook", true}})
                             .installed({"LastLook"}));
    const auto requests = [&phone](const char* event) {
        takeCounts(phone);
        phone.call(event);
        return takeCounts(phone).at("weatherRequests");
    };
    EXPECT_EQ(requests("phone.lock"), 1);
    EXPECT_EQ(requests("phone.wake"), 1);
    phone.call("phone.unlock");
    EXPECT_EQ(requests("phone.coverSheet"), 1);
}

TEST(Counts, AllRefreshesShareOneWayToTheCalendar)
{
    auto phone = agendaPhone({{"dateOption", "7"}, {"sunOption", "4"}}).start();
    phone.settle();
    for (int i = 0; i < 5; ++i) {
        refresh(phone);
        updateLabels(phone);
    }
    const Json counts = takeCounts(phone);
    EXPECT_EQ(counts.at("calendarStores"), 1);
    EXPECT_GE(counts.at("calendarQueries"), 11);
}

TEST(Counts, NoDaysToLookAtAskNobody)
{
    for (const char* days : {"0", "-1", "-1000000000", "soon", ""}) {
        auto phone = settled(agendaPhone({{"dateOption", "7"}, {"dateFormat", "d"}, {"rangeEvent", days}}));
        const Json counts = takeCounts(phone);
        EXPECT_EQ(counts.at("calendarStores"), 0) << days;
        EXPECT_EQ(counts.at("calendarQueries"), 0) << days;
        EXPECT_NE(phone.label("_dateLabel").text.find("No events today"), std::string::npos) << days;
    }
}

TEST(Counts, TheBuiltInFontsAreReadOnce)
{
    auto phone = stripPhone({{"showWidget", false}, {"dateOption", "0"}}).start();
    takeCounts(phone);
    refresh(phone);
    EXPECT_EQ(takeCounts(phone).at("fontRegistrations"), 5);
    phone.takeLog();
    for (int i = 0; i < 3; ++i)
        refresh(phone);
    EXPECT_EQ(takeCounts(phone).at("fontRegistrations"), 0);
    for (const Json& record : phone.takeLog("nslog"))
        EXPECT_EQ(record.at("text").get<std::string>().find("Font path"), std::string::npos);
}

TEST(Counts, AFontThatHasChangedIsReadAgainAndItAlone)
{
    auto phone = settled(stripPhone());
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Lato-Thin");
    takeCounts(phone);
    phone.takeLog();
    phone.writeFile(resourceFolder + "time1.ttf", phone.readFile(resourceFolder + "time2.ttf"));
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Roboto-Black");
    EXPECT_EQ(takeCounts(phone).at("fontRegistrations"), 1);
    const auto texts = phone.takeLog("nslog");
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts[0].at("text"), "Font path: " + resourceFolder + "time1.ttf");
    refresh(phone);
    EXPECT_EQ(takeCounts(phone).at("fontRegistrations"), 0);
}

TEST(Counts, AFontThatCouldNotBeReadIsTriedAgain)
{
    auto phone = stripPhone().start();
    const auto fault = [&phone](const Json& error) {
        phone.call("file.fault", {{"path", resourceFolder + "time1.ttf"}, {"operation", "read"}, {"error", error}});
    };
    fault("EACCES");
    phone.settle();
    EXPECT_TRUE(phone.global("_font1").is_null());
    fault(nullptr);
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Lato-Thin");
}

TEST(Counts, ABuiltInFontThatIsGoneKeepsItsName)
{
    auto phone = settled(stripPhone());
    const std::string font = phone.readFile(resourceFolder + "time1.ttf");
    phone.call("file.remove", {{"path", resourceFolder + "time1.ttf"}});
    takeCounts(phone);
    refresh(phone);
    EXPECT_EQ(takeCounts(phone).at("fontRegistrations"), 0);
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Lato-Thin");
    phone.writeFile(resourceFolder + "time1.ttf", font);
    refresh(phone);
    EXPECT_EQ(takeCounts(phone).at("fontRegistrations"), 1) << "it is another file";
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Lato-Thin");
}

TEST(Counts, FilesAreThoseThatTheExtensionOpens)
{
    auto phone = settled(stripPhone({{"dateOption", "6"}, {"showWidget", false}}).colours(Json::object()));
    takeCounts(phone);
    updateLabels(phone);
    EXPECT_EQ(takeCounts(phone).at("fileOpens"), 1) << "the alarm's icon";
    phone.set({{"dateOption", "0"}});
    phone.call("settings.get");
    phone.call("colours.get");
    phone.call("file.read", {{"path", resourceFolder + "SS16/up.png"}});
    updateLabels(phone);
    EXPECT_EQ(takeCounts(phone).at("fileOpens"), 0);
}

TEST(Counts, AStockPhoneCountsNothing)
{
    auto phone = settled(eveningPhone().withoutExtension());
    phone.call("phone.lock");
    phone.call("phone.wake");
    phone.settle();
    const Json counts = takeCounts(phone);
    EXPECT_EQ(counts.size(), 7u);
    for (const auto& [name, count] : counts.items())
        EXPECT_EQ(count, 0) << name;
}

TEST(Counts, AreTakenOnce)
{
    auto phone = settled(stripPhone());
    EXPECT_GT(takeCounts(phone).at("fileOpens"), 0);
    const Json counts = takeCounts(phone);
    for (const auto& [name, count] : counts.items())
        EXPECT_EQ(count, 0) << name;
}
