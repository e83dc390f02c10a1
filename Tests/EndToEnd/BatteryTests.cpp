// The strip's battery: its steps, texts, charging, low power and the bar.
#include "Tests/EndToEnd/StripScenario.hpp"

namespace {

constexpr const char* yellow = "#FFCC00FF";
constexpr const char* white = "#FFFFFFFF";

void setLevel(Phone& phone, const Json& level)
{
    setDevice(phone, {{"battery", {{"level", level}}}});
}

/// The bar's filled part and its whole track.
std::pair<double, double> barWidths(Phone& phone)
{
    return {phone.view("_batteryBarIndicator").frame[2], phone.view("_batteryBarBackground").frame[2]};
}

void expectGlyphs(Phone& phone, bool charging, const std::string& step)
{
    EXPECT_EQ(iconIn(phone, "_BG"), charging ? "Battery16/ChargingBG" : "Battery16/BG");
    EXPECT_EQ(iconIn(phone, "_BL"), std::string("Battery16/") + (charging ? "Charging" : "Battery") + step);
    for (const char* bolt : {"_BC", "_BC2"})
        EXPECT_EQ(iconIn(phone, bolt), charging ? "Battery16/bolt" : "") << bolt;
    EXPECT_EQ(iconIn(phone, "_batteryBarIndicator"), "Battery16/" + step);
}

}

TEST(Battery, ItsPictureFollowsTheChargeInSteps)
{
    struct Row {
        double level;
        const char* step;
    };
    // The charge is reported in single precision, in which some twentieths lie just above the step's limit, and some
    // at or below it.
    const Row rows[] = {{0, "5"}, {0.05, "5"}, {0.09, "5"}, {0.1, "10"}, {0.11, "10"}, {0.15, "15"}, {0.2, "20"},
        {0.25, "20"}, {0.251, "25"}, {0.3, "30"}, {0.35, "30"}, {0.36, "35"}, {0.4, "40"}, {0.45, "40"}, {0.46, "45"},
        {0.5, "45"}, {0.51, "50"}, {0.55, "55"}, {0.6, "60"}, {0.65, "60"}, {0.66, "65"}, {0.7, "65"}, {0.71, "70"},
        {0.75, "70"}, {0.76, "75"}, {0.8, "80"}, {0.85, "85"}, {0.9, "85"}, {0.91, "90"}, {0.95, "90"}, {0.951, "100"},
        {0.999, "100"}, {1, "100"}, {-1, "5"}};
    auto phone = settled(stripPhone());
    for (const auto& [level, step] : rows) {
        SCOPED_TRACE(level);
        setLevel(phone, level);
        expectGlyphs(phone, false, step);
    }
}

TEST(Battery, ItsPictureStaysTheSameToTheNextStep)
{
    auto phone = settled(stripPhone());
    int changes = 0;
    std::string last = "Battery16/Battery5";
    for (int percent = 0; percent <= 100; ++percent) {
        setLevel(phone, percent / 100.0);
        const auto icon = iconIn(phone, "_BL");
        changes += icon != last;
        last = icon;
    }
    EXPECT_EQ(changes, 18) << "nineteen steps";
    EXPECT_EQ(last, "Battery16/Battery100");
}

TEST(Battery, ItsTextIsTheChargeInWholePercent)
{
    // In single precision 0.29 times 100 is 29.
    auto phone = settled(stripPhone());
    for (auto [level, text] : {std::pair{0.999, "99%"}, {1.0, "100%"}, {0.87, "87%"}, {-1.0, "-100%"}, {0.0, "0%"},
             {0.005, "0%"}, {0.29, "29%"}, {0.5, "50%"}, {-0.5, "-50%"}}) {
        setLevel(phone, level);
        EXPECT_EQ(phone.label("_batteryLabel").text, text);
        EXPECT_EQ(phone.label("_batteryBarLabel").text, text);
    }
}

TEST(Battery, AGaugeThatReportsNoNumberCrashesNothing)
{
    for (const char* presentation : {"1", "2", "3"}) {
        auto phone = settled(stripPhone({{"battOption", presentation}}));
        setLevel(phone, nullptr);
        updateLabels(phone);
        EXPECT_EQ(iconIn(phone, "_BL"), "Battery16/Battery5");
        EXPECT_EQ(barWidths(phone).first, 0);
        EXPECT_FALSE(phone.capture().empty());
        phone.call("phone.charge", {{"charging", true}});
        phone.advance(2);
        EXPECT_EQ(phone.info().at("safeMode"), false);
    }
}

TEST(Battery, ShowsThatItCharges)
{
    auto phone = settled(stripPhone().battery({{"level", 0.87}}));
    for (auto [state, charging] :
        {std::pair{"charging", true}, {"unplugged", false}, {"full", true}, {"unknown", false}}) {
        SCOPED_TRACE(state);
        setDevice(phone, {{"battery", {{"state", state}}}});
        expectGlyphs(phone, charging, "85");
    }
}

TEST(Battery, ThePlugIsSeenAtTheNextRefresh)
{
    auto phone = settled(stripPhone().battery({{"level", 0.42}}));
    phone.call("phone.charge", {{"charging", true}});
    refresh(phone);
    expectGlyphs(phone, true, "40");
    phone.call("phone.charge", {{"charging", false}});
    refresh(phone);
    expectGlyphs(phone, false, "40");
}

TEST(Battery, ChargingWhileAsleepShowsOnWaking)
{
    auto phone = settled(stripPhone().battery({{"level", 0.42}}));
    phone.call("phone.lock");
    phone.advance(3600);
    setDevice(phone, {{"battery", {{"level", 0.77}, {"state", "charging"}}}});
    phone.advance(3600);
    phone.call("phone.wake");
    phone.settle(3);
    expectGlyphs(phone, true, "75");
    EXPECT_EQ(phone.label("_batteryLabel").text, "77%");
}

TEST(Battery, ABoltIsThereFromTheStart)
{
    auto phone = stripPhone().start();
    for (const char* bolt : {"_BC", "_BC2"})
        EXPECT_FALSE(phone.get(bolt).at("image").is_null()) << bolt;
}

TEST(Battery, IsYellowInLowPowerMode)
{
    auto phone = settled(stripPhone().colours({{"colourWidget", "#FFFFFF:1.00"}}));
    for (bool lowPower : {true, false, true}) {
        setDevice(phone, {{"battery", {{"lowPower", lowPower}}}});
        for (const char* level : {"_BL", "_batteryBarIndicator"})
            EXPECT_EQ(phone.view(level).tint, lowPower ? yellow : white) << level;
        for (const char* other : {"_BG", "_phoneImage", "_batteryBarBackground", "_SL", "_HL"})
            EXPECT_EQ(phone.view(other).tint, white) << other;
    }
}

TEST(Battery, TheBarIsFilledAsFarAsTheChargeGoes)
{
    for (const char* weather : {"0", "1"}) {
        auto phone = settled(stripPhone({{"highLowOption", weather}, {"battOption", "3"}}));
        for (double level : {0.0, 0.05, 0.5, 0.87, 1.0, -1.0}) {
            setLevel(phone, level);
            const auto [filled, track] = barWidths(phone);
            EXPECT_GT(track, 50);
            EXPECT_NEAR(filled, track * std::max(level, 0.0), 0.001) << level;
            updateLabels(phone);
            EXPECT_EQ(barWidths(phone).first, filled) << level;
        }
        const auto filled = phone.view("_batteryBarIndicator").frame, track = phone.view("_batteryBarBackground").frame;
        for (int side : {0, 1, 3})
            EXPECT_EQ(filled[side], track[side]) << "from the track's left end, as tall";
    }
}

TEST(Battery, TheBarHasTheDevicesName)
{
    auto phone = settled(stripPhone({{"battOption", "3"}}));
    EXPECT_EQ(phone.label("_batteryBarName").text, "iPhone");
    EXPECT_EQ(phone.label("_batteryBarName").alignment, 0);
    EXPECT_EQ(phone.label("_batteryBarLabel").alignment, 2);
}

TEST(Battery, APresentationThatDoesNotExistLeavesEveryViewAsItWas)
{
    for (const char* presentation : {"1", "2", "3"}) {
        auto phone = settled(stripPhone({{"battOption", presentation}}));
        const auto before = shownInStrip(phone);
        setLevel(phone, 0.42);
        change(phone, {{"battOption", "0"}});
        EXPECT_EQ(shownInStrip(phone), before);
        EXPECT_EQ(phone.label("_batteryLabel").text, "42%") << "its contents follow";
    }
}

TEST(Battery, TheSystemIsAskedToWatchIt)
{
    auto phone = settled(stripPhone());
    phone.call("objc.new", {{"class", "UIDevice"}, {"name", "other"}});
    EXPECT_EQ(phone.send({{"named", "other"}}, "batteryLevel"), -1) << "a device that is not watched tells nothing";
    EXPECT_EQ(phone.label("_batteryLabel").text, "100%");
}
