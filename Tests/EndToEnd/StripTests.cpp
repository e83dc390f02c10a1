// The strip of three widgets: where it lies, what its presentations show, scale, colours and visibility.
#include "Tests/EndToEnd/StripScenario.hpp"

namespace {

using Names = std::vector<std::string>;

const Names weatherInOneCell = {"_HL", "_HLo", "_tempLabel", "_highLabel", "_lowLabel"};
const Names weatherInTwoCells = {"_temperatureLabel", "_conLabel", "_HLLabel"};
const Names agenda = {"_SL", "_sunLabel", "_upS", "_pm"};
const Names bar = {"_batteryBarLabel", "_batteryBarName", "_batteryBarIndicator", "_batteryBarBackground"};
const Names texts = {"_tempLabel", "_highLabel", "_lowLabel", "_conditionLabel", "_temperatureLabel", "_conLabel",
    "_HLLabel", "_pm", "_sunLabel", "_batteryLabel", "_batteryBarName", "_batteryBarLabel"};
const Names icons = {"_HL", "_HLo", "_SL", "_upS", "_BG", "_BL", "_BC", "_BC2", "_phoneImage", "_batteryBarBackground",
    "_batteryBarIndicator"};

void expectShown(const std::map<std::string, bool>& shown, const Names& names, bool expected)
{
    for (const auto& name : names)
        EXPECT_EQ(shown.at(name), expected) << name;
}

Json options(const std::string& weather, const std::string& battery)
{
    return {{"highLowOption", weather}, {"battOption", battery}};
}

Json moved(Json settings)
{
    settings.update({{"XwidgetView", "20"}, {"YwidgetView", "100"}});
    return settings;
}

Rectangle stripFrame(Phone& phone)
{
    return phone.view("_widgetView").frame;
}

}

TEST(Strip, LiesAHundredAndFiftyPointsBelowItsOffset)
{
    auto phone = settled(stripPhone(moved({})));
    EXPECT_EQ(stripFrame(phone), (Rectangle{20, 250, 345, 60}));
    auto unmoved = settled(stripPhone());
    EXPECT_EQ(stripFrame(unmoved), (Rectangle{0, 150, 345, 60}));
}

TEST(Strip, HasThatPlaceBeforeTheFirstRefresh)
{
    auto phone = stripPhone(moved({})).start();
    EXPECT_EQ(stripFrame(phone), (Rectangle{20, 250, 345, 60}));
}

TEST(Strip, KeepsItsFrameOnAScreenOfFiveHundredPoints)
{
    for (double width : {500, 501}) {
        for (const auto& choice : {options("1", "1"), options("0", "3")}) {
            auto phone = settled(stripPhone(moved(choice)).screen(width, 900, 1));
            phone.send({{"id", "_widgetView"}}, "setFrame:", Json::array({{1, 2, 3, 4}}));
            updateLabels(phone);
            refresh(phone);
            EXPECT_EQ(stripFrame(phone), (Rectangle{1, 2, 3, 4})) << width << choice;
        }
    }
    for (double width : {499, 502}) {
        auto phone = settled(stripPhone(moved({})).screen(width, 900, 1));
        EXPECT_EQ(stripFrame(phone)[1], 250) << width;
    }
}

TEST(Strip, MovesFortyPointsLeftForABarBesideOneCellOfWeather)
{
    for (double width : {320, 375, 499, 768}) {
        auto phone = settled(stripPhone(moved(options("0", "3"))).screen(width, 900, 1));
        EXPECT_EQ(stripFrame(phone)[0], -20) << width;
        EXPECT_EQ(stripFrame(phone)[1], 250) << width;
        change(phone, options("1", "3"));
        EXPECT_EQ(stripFrame(phone)[0], 20) << width;
    }
}

TEST(Strip, TheBarThenHasAPlaceOfItsOwn)
{
    for (double width : {320, 375, 480, 1024}) {
        auto phone = settled(stripPhone(options("0", "3")).screen(width, 768, 1));
        EXPECT_EQ(phone.view("_batteryBarLabel").frame[0], 253) << width;
        EXPECT_EQ(phone.view("_batteryBarName").frame[0], 261) << width;
        EXPECT_EQ(phone.view("_batteryBarIndicator").frame[0], 260) << width;
        EXPECT_EQ(phone.view("_batteryBarBackground").frame[0], 260) << width;
    }
}

TEST(Strip, ShowsTheViewsOfTheChosenWeather)
{
    auto phone = settled(stripPhone());
    for (const char* battery : {"1", "2", "3"}) {
        change(phone, options("0", battery));
        expectShown(shownInStrip(phone), weatherInOneCell, true);
        expectShown(shownInStrip(phone), weatherInTwoCells, false);
        change(phone, options("1", battery));
        expectShown(shownInStrip(phone), weatherInOneCell, false);
        expectShown(shownInStrip(phone), weatherInTwoCells, true);
    }
}

TEST(Strip, ShowsTheViewsOfTheChosenBattery)
{
    struct Presentation {
        const char* code;
        Names shown;
        Names hidden;
    };
    const Presentation presentations[] = {
        {"1", {"_batteryLabel", "_BG", "_BL"}, {"_phoneImage"}},
        {"2", {"_phoneImage", "_BG", "_BL"}, {"_batteryLabel"}},
        {"3", bar, {"_phoneImage", "_batteryLabel", "_BC", "_BL", "_BC2", "_BG"}},
    };
    auto phone = settled(stripPhone());
    for (const char* weather : {"0", "1"}) {
        for (const auto& [code, shown, hidden] : presentations) {
            change(phone, options(weather, code));
            expectShown(shownInStrip(phone), shown, true);
            expectShown(shownInStrip(phone), hidden, false);
            if (code != std::string("3"))
                expectShown(shownInStrip(phone), bar, false);
        }
    }
}

TEST(Strip, TheMiddleGivesWayOnlyWhereBothItsNeighboursTakeTwoCells)
{
    auto phone = settled(stripPhone());
    for (const char* weather : {"0", "1"}) {
        for (const char* battery : {"1", "2", "3"}) {
            change(phone, options(weather, battery));
            expectShown(shownInStrip(phone), agenda, !(weather == std::string("1") && battery == std::string("3")));
        }
    }
}

TEST(Strip, AnOptionThatNamesNothingChangesNothing)
{
    for (const auto& choice : {options("0", "1"), options("1", "2"), options("0", "3"), options("1", "3")}) {
        auto phone = settled(stripPhone(choice));
        const auto before = shownInStrip(phone);
        for (const char* code : {"2", "-1", "1000000"}) {
            change(phone, {{"highLowOption", code}});
            EXPECT_EQ(shownInStrip(phone), before) << choice << " and weather " << code;
        }
        phone.set(choice);
        for (const char* code : {"0", "4", "-1", "many", ""}) {
            change(phone, {{"battOption", code}});
            EXPECT_EQ(shownInStrip(phone), before) << choice << " and battery " << code;
        }
    }
}

TEST(Strip, ScalesAboutItsMiddle)
{
    for (auto [size, scale] : {std::pair{"0.5", 0.5}, {"1.5", 1.5}, {"1", 1.0}}) {
        auto phone = settled(stripPhone(moved({{"sizeWidget", size}})));
        auto strip = phone.view("_widgetView");
        EXPECT_EQ(strip.transform, (std::array<double, 6>{scale, 0, 0, scale, 0, 0}));
        EXPECT_EQ(strip.bounds, (Rectangle{0, 0, 345, 60}));
        EXPECT_DOUBLE_EQ(strip.centreX(), 20 + 345 / 2.0);
        EXPECT_DOUBLE_EQ(strip.centreY(), 250 + 60 / 2.0);
        EXPECT_DOUBLE_EQ(strip.frame[2], scale * 345);
        EXPECT_DOUBLE_EQ(strip.frame[3], scale * 60);
    }
}

TEST(Strip, NothingMovesAtTheNextUpdateOfTheLabels)
{
    for (const char* size : {"0.5", "1", "1.5", "0"}) {
        for (const auto& choice : {options("1", "1"), options("0", "3")}) {
            auto settings = moved(choice);
            settings["sizeWidget"] = size;
            auto phone = settled(stripPhone(settings));
            const auto before = phone.call("view.tree", {{"id", "_widgetView"}});
            for (int i = 0; i < 3; ++i) {
                updateLabels(phone);
                EXPECT_EQ(phone.call("view.tree", {{"id", "_widgetView"}}), before) << size;
                refresh(phone);
                EXPECT_EQ(phone.call("view.tree", {{"id", "_widgetView"}}), before) << size;
            }
        }
    }
}

TEST(Strip, ASizeThatIsNoNumberCrashesNothing)
{
    for (const char* size : {"huge", "", "-1", "1e308", "1e999", "nan", "inf"}) {
        auto phone = settled(stripPhone({{"sizeWidget", size}, {"XwidgetView", size}, {"YwidgetView", size}}));
        updateLabels(phone);
        EXPECT_FALSE(phone.capture().empty());
        EXPECT_EQ(phone.info().at("safeMode"), false) << size;
    }
}

TEST(Strip, TakesItsColoursFromTheColourFile)
{
    auto phone = settled(stripPhone().colours({{"colourWidget", "#FF0000:1.00"}, {"colourTextWidget", "#0000FF:1.0"}}));
    for (const auto& icon : icons)
        EXPECT_EQ(phone.view(icon).tint, "#FF0000FF") << icon;
    for (const auto& text : texts)
        EXPECT_EQ(phone.label(text).textColour, "#0000FFFF") << text;
    phone.setColours({{"colourTextWidget", "#00FF00:0.5"}});
    refresh(phone);
    EXPECT_EQ(phone.label("_sunLabel").textColour, "#00FF0080");
}

TEST(Strip, IsWhiteWithoutAColour)
{
    for (const Json& colours :
        {Json::object(), Json{{"colourWidget", "reddish"}, {"colourTextWidget", ""}}, Json{{"colourWidget", 5}}}) {
        auto phone = settled(stripPhone().colours(colours));
        for (const auto& icon : icons)
            EXPECT_EQ(phone.view(icon).tint, "#FFFFFFFF") << icon << colours;
        for (const auto& text : texts)
            EXPECT_EQ(phone.label(text).textColour, "#FFFFFFFF") << text << colours;
    }
}

TEST(Strip, ItsTextsCastAShadowWhenAskedTo)
{
    for (bool shadow : {false, true}) {
        auto phone = settled(stripPhone({{"shadowText", shadow}}).colours({{"colourShadow", "#112233:1.00"}}));
        for (const auto& text : texts) {
            const Json layer = phone.get(text).at("layer");
            EXPECT_EQ(layer.at("shadowColor"), shadow ? "#112233FF" : "#00000000") << text;
            EXPECT_NEAR(layer.at("shadowOpacity").get<double>(), 0.7, 0.001) << text;
            EXPECT_EQ(layer.at("shadowRadius"), 1.5) << text;
        }
    }
}

TEST(Strip, IsHiddenWithItsSwitchAndTheRefreshThatShowsItFillsIt)
{
    auto phone = settled(stripPhone().battery({{"level", 0.5}}));
    EXPECT_TRUE(phone.view("_widgetView").onScreen);
    const auto shown = shownInStrip(phone);
    phone.set({{"showWidget", false}});
    refresh(phone);
    EXPECT_TRUE(phone.view("_widgetView").hidden);
    EXPECT_FALSE(phone.view("_batteryLabel").onScreen);
    EXPECT_EQ(shownInStrip(phone), shown) << "hidden as a whole";
    auto colder = sunnyWeather;
    colder["temperature"] = "3°";
    setDevice(phone, {{"battery", {{"level", 0.25}}}, {"weather", colder}});
    EXPECT_EQ(phone.label("_batteryLabel").text, "25%") << "the charge is kept current";
    change(phone, {{"showWidget", true}});
    EXPECT_FALSE(phone.view("_widgetView").hidden);
    EXPECT_TRUE(phone.view("_batteryLabel").onScreen);
    EXPECT_EQ(phone.label("_temperatureLabel").text, "3");
}

TEST(Strip, TheQuickRefreshPutsItBackInItsPlace)
{
    auto phone = settled(stripPhone(moved({})));
    phone.send({{"id", "_widgetView"}}, "setFrame:", Json::array({{1, 2, 3, 4}}));
    phone.set(options("1", "3"));
    phone.send({{"instance", "SBFLockScreenDateViewController"}}, "requestUpdateTime");
    phone.advance(0.02);
    EXPECT_EQ(stripFrame(phone), (Rectangle{20, 250, 345, 60}));
    EXPECT_TRUE(shownInStrip(phone).at("_batteryBarName"));
    EXPECT_FALSE(shownInStrip(phone).at("_sunLabel"));
}

TEST(Strip, TheHalfOfTheDayIsTransparentInTwentyFourHours)
{
    for (bool twentyFour : {false, true}) {
        auto phone = settled(stripPhone({{"twentyFour", twentyFour}, {"sunOption", "3"}}).alarm("2020-11-16T06:30:00"));
        EXPECT_EQ(phone.view("_pm").alpha, twentyFour ? 0 : 1);
        EXPECT_FALSE(phone.view("_pm").hidden);
    }
}

TEST(Strip, LeavesTouchesToWhatLiesBelowIt)
{
    auto phone = settled(stripPhone());
    EXPECT_EQ(phone.send({{"id", "_widgetView"}}, "isUserInteractionEnabled"), false);
}

TEST(Strip, IsBuiltOnce)
{
    auto phone = settled(stripPhone());
    for (int i = 0; i < 5; ++i) {
        phone.call("phone.lock");
        phone.call("phone.wake");
        phone.call("phone.unlock");
        phone.call("phone.coverSheet");
        phone.settle(3);
    }
    const std::string tree = phone.tree().json.dump();
    const std::string id = "\"id\":\"_widgetView\"";
    EXPECT_NE(tree.find(id), tree.npos);
    EXPECT_EQ(tree.find(id), tree.rfind(id));
}
