// Files that are gone, and data that are not what they should be: the strip goes on without them.
#include "Tests/EndToEnd/StripScenario.hpp"

namespace {

std::vector<std::string> namesIn(Phone& phone, const std::string& folder)
{
    return phone.call("file.list", {{"path", folder}}).at("names");
}

void removeFiles(Phone& phone, const std::string& folder)
{
    for (const auto& name : namesIn(phone, folder))
        phone.call("file.remove", {{"path", folder + "/" + name}});
    EXPECT_EQ(namesIn(phone, folder), std::vector<std::string>());
}

void removeIcons(Phone& phone)
{
    for (const char* folder : {"Battery16", "HL16", "SS16"})
        removeFiles(phone, resourceFolder + folder);
}

void expectAlive(Phone& phone)
{
    EXPECT_FALSE(phone.capture().empty());
    EXPECT_EQ(phone.info().at("safeMode"), false);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

/// Every presentation in turn, with every item in the middle and in the date line.
void walkThroughOptions(Phone& phone)
{
    for (const char* weather : {"0", "1"})
        for (const char* battery : {"1", "2", "3"})
            change(phone, {{"highLowOption", weather}, {"battOption", battery}});
    for (const char* sun : {"1", "2", "3", "4"})
        change(phone, {{"sunOption", sun}});
    for (int option = 0; option < 8; ++option)
        change(phone, {{"dateOption", std::to_string(option)}});
    expectAlive(phone);
}

Support::PhoneStart fullPhone()
{
    return stripPhone()
        .alarm("2020-11-16T06:30:00")
        .events(Json::array({{{"title", "Dentist"}, {"start", "2020-11-16T09:30:00"}}}));
}

}

TEST(BadData, WithoutIconsTheTextsRemain)
{
    auto phone = settled(fullPhone());
    removeIcons(phone);
    refresh(phone);
    for (const char* icon : {"_HL", "_HLo", "_SL", "_upS", "_BG", "_BL", "_BC", "_BC2", "_phoneImage",
             "_batteryBarBackground", "_batteryBarIndicator"})
        EXPECT_EQ(phone.get(icon).at("image"), Json()) << icon;
    EXPECT_EQ(phone.label("_sunLabel").text, "6:12");
    EXPECT_EQ(phone.label("_batteryLabel").text, "100%");
    walkThroughOptions(phone);
    phone.call("phone.subtitle", {{"text", "12:34"}});
    refresh(phone);
    expectAlive(phone);
}

TEST(BadData, ThePhoneStartsWithoutIconsAndFonts)
{
    auto phone = settled(fullPhone());
    removeIcons(phone);
    for (const char* font : {"time1", "time2", "time3", "time4", "date"})
        phone.call("file.remove", {{"path", resourceFolder + font + ".ttf"}});
    phone.call("notify.post", {{"name", "com.ostrel.lyr/respring"}});
    phone.settle();
    EXPECT_EQ(phone.info().at("restarts"), 1);
    EXPECT_EQ(phone.info().at("safeMode"), false);
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
    EXPECT_EQ(phone.label("_sunLabel").text, "6:12");
    EXPECT_EQ(phone.get("_SL").at("image"), Json());
    EXPECT_FALSE(phone.capture().empty());
}

TEST(BadData, IconsThatAreNoPicturesAreNotShown)
{
    auto phone = settled(fullPhone());
    for (const char* file : {"SS16/up.png", "Battery16/BG.png", "HL16/13.png"})
        phone.writeFile(resourceFolder + file, "\x89PNG\r\n\x1a\n and no more");
    phone.writeFile(resourceFolder + "Battery16/Battery100.png", "");
    refresh(phone);
    for (const char* icon : {"_SL", "_BG", "_HL", "_BL"})
        EXPECT_EQ(phone.get(icon).at("image"), Json()) << icon;
    expectAlive(phone);
}

TEST(BadData, IconsThatCannotBeReadAreNotShown)
{
    auto phone = settled(fullPhone());
    phone.call("file.fault", {{"path", resourceFolder + "SS16/up.png"}, {"operation", "read"}, {"error", "EACCES"}});
    refresh(phone);
    EXPECT_EQ(phone.get("_SL").at("image"), Json());
    phone.call("file.fault", {{"path", resourceFolder + "SS16/up.png"}, {"operation", "read"}, {"error", nullptr}});
    refresh(phone);
    EXPECT_EQ(iconIn(phone, "_SL"), "SS16/up");
}

TEST(BadData, WeatherOfAnotherKindCountsAsNone)
{
    auto phone = settled(fullPhone());
    for (const Json& value : {Json(21), Json(21.5), Json(true), Json::array({"21°"}), Json{{"degrees", 21}}}) {
        Json weather = Json::object();
        for (const auto& [name, text] : sunnyWeather.items())
            weather[name] = value;
        setDevice(phone, {{"weather", weather}});
        for (const char* id : {"_temperatureLabel", "_tempLabel", "_highLabel", "_lowLabel", "_HLLabel", "_conLabel"})
            EXPECT_EQ(phone.label(id).text, "") << id << " of " << value;
        EXPECT_EQ(iconIn(phone, "_HL"), "HL16/1") << "0 between 0 and 0";
    }
    walkThroughOptions(phone);
}

TEST(BadData, EachMemberOfTheWeatherStandsForItself)
{
    auto phone = settled(fullPhone());
    auto weather = sunnyWeather;
    weather["temperature"] = 21;
    setDevice(phone, {{"weather", weather}});
    EXPECT_EQ(phone.label("_temperatureLabel").text, "");
    EXPECT_EQ(phone.label("_conLabel").text, "Partly Cloudy");
    EXPECT_EQ(phone.label("_HLLabel").text, "H:24 L:15");
}

TEST(BadData, AnEmptyWeatherRecordIsOneOfGaps)
{
    auto phone = settled(fullPhone());
    setDevice(phone, {{"weather", Json::object()}});
    EXPECT_EQ(phone.label("_temperatureLabel").text, "");
    walkThroughOptions(phone);
}

TEST(BadData, APictureOfTheWeatherThatIsNoneIsLeftOut)
{
    Support::TemporaryFolder folder;
    auto phone = settled(fullPhone());
    auto weather = sunnyWeather;
    weather["image"] = folder.put("cloud.png", "no picture");
    setDevice(phone, {{"weather", weather}});
    EXPECT_EQ(phone.label("_conditionLabel").text, "");
    EXPECT_EQ(phone.label("_conLabel").text, "Partly Cloudy");
    walkThroughOptions(phone);
}

TEST(BadData, AbsurdTemperaturesCrashNothing)
{
    auto phone = settled(fullPhone());
    const std::string nines(400, '9');
    for (const auto& text : {nines, "-" + nines, std::string("2147483647"), std::string("-2147483648"),
             std::string("°"), std::string("\xC2\xB0\xC2\xB0"), std::string(100000, 'x')}) {
        auto weather = sunnyWeather;
        weather.update({{"temperature", text}, {"high", text}, {"low", text}});
        setDevice(phone, {{"weather", weather}});
        updateLabels(phone);
        expectAlive(phone);
    }
}

TEST(BadData, AnEventWithoutATitleIsItsTime)
{
    auto phone = settled(fullPhone().with("settings", {{"sunOption", "4"}, {"dateOption", "7"}, {"dateFormat", "d"}}));
    for (bool allDay : {false, true}) {
        setDevice(phone,
            {{"events", Json::array({{{"title", nullptr}, {"start", "2020-11-16T09:30:00"}, {"allDay", allDay}}})}});
        EXPECT_EQ(phone.label("_sunLabel").text, allDay ? "" : "9:30AM");
        EXPECT_EQ(phone.label("_dateLabel").text,
            allDay ? "15 \xEF\xBF\xBC"
                   : "15 \xEF\xBF\xBC"
                     "9:30AM");
    }
    expectAlive(phone);
}

TEST(BadData, LongTextsCrashNothing)
{
    const std::string length(20000, 'w');
    auto weather = sunnyWeather;
    weather.update({{"conditions", length}, {"location", length}, {"sunrise", length}});
    auto phone = settled(
        fullPhone().weather(weather).events(Json::array({{{"title", length}, {"start", "2020-11-16T09:30:00"}}})));
    walkThroughOptions(phone);
}

TEST(BadData, SettingsOfAnotherKindCrashNothing)
{
    auto phone = settled(fullPhone());
    for (const Json& value : {Json(true), Json(3.7), Json(-1), Json("three"), Json(""), Json("99999999999999999999")}) {
        Json settings = Json::object();
        for (const char* key : {"highLowOption", "battOption", "sunOption", "rangeEvent", "sizeWidget", "XwidgetView",
                 "YwidgetView", "showWidget", "twentyFour", "colourIconWeather", "shadowText"})
            settings[key] = value;
        change(phone, settings);
        expectAlive(phone);
    }
}

TEST(BadData, AColourFileThatIsNoneGivesWhite)
{
    auto phone = settled(fullPhone());
    for (const char* bytes : {"", "colours", "<?xml version=\"1.0\"?><plist><array/></plist>"}) {
        phone.writeFile("/var/mobile/Library/Preferences/com.ostrel.colorslyr.plist", bytes);
        refresh(phone);
        EXPECT_EQ(phone.label("_sunLabel").textColour, "#FFFFFFFF") << bytes;
        EXPECT_EQ(phone.view("_SL").tint, "#FFFFFFFF") << bytes;
    }
    expectAlive(phone);
}
