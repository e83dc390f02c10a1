// The editor's colour wells: where their colours come from, and where a tapped one is stored.
#include "Tests/EndToEnd/EditorScenario.hpp"
#include "Tests/Support/Picture.hpp"

#include <cmath>

namespace {

const std::string wallpaperPath = "/var/mobile/Library/SpringBoard/LockBackgroundThumbnail.jpg";
const std::string bundle = "/Library/PreferenceBundles/LYRPrefs.bundle/";
const std::string goldenWallpaper = std::string(LYR_GOLDEN_FOLDER) + "/wallpaper.jpg";

struct Target {
    const EditorTab* tab;
    std::vector<std::string> keys;
    std::string page;
};

const Target targets[]
    = {{&timeTab, {"colourTime"}, bundle + "subTime.plist"}, {&dateTab, {"colourDate"}, bundle + "subDate.plist"},
        {&widgetTab, {"colourWidget", "colourTextWidget"}, bundle + "subWidget.plist"}};

std::string well(int number)
{
    return "_colorWheel" + std::to_string(number);
}

Json propertyList(Phone& phone, const std::string& path)
{
    return phone.call("file.read", {{"path", path}}).value("plist", Json());
}

Json fallback(Phone& phone, const std::string& page)
{
    return propertyList(phone, page).at("libsparkcolourpicker").at("fallback");
}

void setColour(Phone& phone, const std::string& view, const std::string& colour)
{
    phone.send({{"id", view}}, "setBackgroundColor:", Json::array({colour}));
}

std::array<double, 3> components(const std::string& colour)
{
    const auto byte = [&colour](int at) { return std::stoi(colour.substr(at, 2), nullptr, 16) / 255.0; };
    return {byte(1), byte(3), byte(5)};
}

double saturation(const std::string& colour)
{
    const auto parts = components(colour);
    const auto [least, most] = std::minmax_element(parts.begin(), parts.end());
    return *most > 0 ? (*most - *least) / *most : 0;
}

const Json elementColours
    = {{"colourTime", "#112233:1.00"}, {"colourDate", "#445566:1.0"}, {"colourWidget", "#778899"}};

void expectToOffer(Phone& phone, const Support::Colour& colour)
{
    EXPECT_EQ(phone.view("_showWell").background, colour);
    EXPECT_EQ(phone.view(well(5)).background, colour);
}

void expectToFollowTheElement(Phone& phone)
{
    for (auto [tab, colour] : {std::pair{&timeTab, "#112233FF"}, {&dateTab, "#445566FF"}, {&widgetTab, "#778899FF"},
             {&timeTab, "#112233FF"}}) {
        choose(phone, *tab, positionSegment);
        expectToOffer(phone, colour);
        choose(phone, *tab, colourSegment);
        expectToOffer(phone, colour);
    }
}

/// A wallpaper of one colour.
void putWallpaper(Phone& phone, const std::array<std::uint8_t, 3>& colour)
{
    Support::Picture picture{30, 60, {}};
    for (unsigned i = 0; i < picture.width * picture.height; ++i)
        picture.pixels.insert(picture.pixels.end(), colour.begin(), colour.end());
    Support::TemporaryFolder folder;
    const std::string path = folder.path() / "wallpaper.png";
    ASSERT_TRUE(picture.write(path));
    phone.writeFile(wallpaperPath, Simulator::readHostFile(path).value);
}

/// As a finger does that knows where it was.
void touchThePlaceOf(Phone& phone, const std::string& view)
{
    const auto panel = phone.view("_optionView").frame;
    const auto place = phone.view(view);
    phone.tapAt(panel[0] + place.centreX(), panel[1] + place.centreY());
}

Phone onColours(const EditorTab& tab, const Support::PhoneStart& start)
{
    auto phone = editing(start);
    givePages(phone);
    choose(phone, tab, colourSegment);
    return phone;
}

}

TEST(ColourWells, FourTakeTheirColoursFromTheWallpaperAndSaturateThem)
{
    auto phone = onColours(timeTab, editorPhone().wallpaper(goldenWallpaper));
    const double least[] = {1.0, 0.5, 1.0, 0.2};
    std::vector<std::string> atOpening;
    for (int number = 1; number <= 4; ++number) {
        const std::string offered = *phone.view(well(number)).background;
        phone.tap(well(number));
        const std::string stored = phone.colours().at("colourTime");
        EXPECT_EQ(phone.view(well(number)).background, offered) << "it offers what it gives";
        EXPECT_EQ(phone.view("_showWell").background, offered);
        EXPECT_GE(saturation(stored) + 0.02, least[number - 1]) << number << stored;
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(components(stored)[i], components(offered)[i], 1.01 / 255) << number;
        atOpening.push_back(stored);
    }
    EXPECT_NE(atOpening[0], atOpening[2]) << "background and primary colour";
}

TEST(ColourWells, AllButTheFifthReadTheWallpaperAnew)
{
    auto phone = onColours(timeTab, editorPhone().wallpaper(goldenWallpaper));
    const auto before = phone.view(well(1)).background;
    putWallpaper(phone, {200, 20, 20});
    setColour(phone, "_showWell", "#123456FF");
    phone.tap(well(5));
    EXPECT_EQ(phone.colours().at("colourTime"), "#123456:1.00");
    phone.tap(well(1));
    EXPECT_NE(phone.view(well(1)).background, before);
    EXPECT_EQ(phone.colours().at("colourTime"), "#C80000:1.00");
}

TEST(ColourWells, ATapStoresTheColourAndAnnouncesIt)
{
    for (const Target& target : targets) {
        auto phone = onColours(*target.tab, editorPhone());
        setColour(phone, "_showWell", "#FF0000FF");
        phone.tap(well(5));
        Journal expected{"sound 1104"};
        for (std::size_t i = 0; i < target.keys.size(); ++i)
            expected.push_back("write " + coloursPath);
        expected.push_back("write " + target.page);
        expected.push_back("post " + coloursNotification);
        EXPECT_EQ(takeJournal(phone), expected);
        Json colours;
        for (const std::string& key : target.keys)
            colours[key] = "#FF0000:1.00";
        EXPECT_EQ(phone.colours(), colours);
        EXPECT_EQ(fallback(phone, target.page), "#FF0000:1.00");
        EXPECT_TRUE(refreshes(phone));
    }
}

TEST(ColourWells, OtherColoursAndTheRestOfThePageStayAsTheyAre)
{
    auto phone = onColours(dateTab, editorPhone().colours({{"colourTime", "#010203"}, {"other", "kept"}}));
    Json page = propertyList(phone, bundle + "subDate.plist");
    const Json timePage = propertyList(phone, bundle + "subTime.plist");
    setColour(phone, "_showWell", "#00FF00FF");
    phone.tap(well(5));
    EXPECT_EQ(phone.colours(), (Json{{"colourTime", "#010203"}, {"other", "kept"}, {"colourDate", "#00FF00:1.00"}}));
    page["libsparkcolourpicker"]["fallback"] = "#00FF00:1.00";
    EXPECT_EQ(propertyList(phone, bundle + "subDate.plist"), page);
    EXPECT_EQ(propertyList(phone, bundle + "subTime.plist"), timePage);
}

TEST(ColourWells, TheTappedOneAloneHasABorder)
{
    auto phone = onColours(timeTab, editorPhone().wallpaper(goldenWallpaper));
    const auto border = [&phone](int number) { return phone.get(well(number)).at("layer").at("borderWidth"); };
    for (int number = 1; number <= 5; ++number)
        EXPECT_EQ(border(number), 0);
    for (int tapped : {3, 1, 5, 2, 4}) {
        phone.tap(well(tapped));
        for (int number = 1; number <= 5; ++number)
            EXPECT_EQ(border(number), number == tapped ? 3 : 0) << number;
    }
}

TEST(ColourWells, TheClockTakesTheColour)
{
    auto phone = onColours(timeTab, editorPhone());
    setColour(phone, "_showWell", "#3366CCFF");
    phone.tap(well(5));
    phone.settle(1);
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#3366CCFF");
    choose(phone, dateTab, colourSegment);
    setColour(phone, "_showWell", "#CC6633FF");
    phone.tap(well(5));
    phone.settle(1);
    EXPECT_EQ(phone.label("_dateLabel").textColour, "#CC6633FF");
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#3366CCFF");
}

TEST(ColourWells, ComponentsAreCutOffAndNotRounded)
{
    auto phone = onColours(timeTab, editorPhone());
    phone.tap("_showWell");
    phone.settle(1);
    phone.setControl("colorWell", "#FFFFFFFF");
    phone.tap("colorWell");
    phone.settle(1);
    phone.setControl("system.colourSheet.brightness", 0.999);
    EXPECT_EQ(phone.colours().at("colourTime"), "#FEFEFE:1.0") << "254.7 is 254";
    phone.tap("system.colourSheet.close");
    phone.tap("colorWellDone");
    phone.settle(1);
    phone.tap(well(5));
    EXPECT_EQ(phone.colours().at("colourTime"), "#FEFEFE:1.00");
}

TEST(ColourWells, WithEditModeClosedATapChangesTheLookAndStoresNothing)
{
    auto phone = onColours(timeTab, editorPhone().wallpaper(goldenWallpaper));
    phone.tap("_done");
    phone.takeLog();
    setColour(phone, "_showWell", "#000000FF");
    for (int number = 1; number <= 4; ++number) {
        phone.send(coverSheet, "wellButton" + std::to_string(number) + ":", {nullptr});
        EXPECT_EQ(phone.view("_showWell").background, phone.view(well(number)).background);
        EXPECT_EQ(phone.get(well(number)).at("layer").at("borderWidth"), 0);
    }
    phone.send(coverSheet, "wellButton5:", {nullptr});
    EXPECT_EQ(phone.view(well(5)).background, phone.view("_showWell").background);
    EXPECT_EQ(takeJournal(phone), Journal(5, "sound 1104"));
    EXPECT_EQ(phone.colours(), Json::object());
    EXPECT_TRUE(refreshes(phone));
}

TEST(ColourWells, WithoutTheColourFileNothingIsWrittenButItIsAnnounced)
{
    auto phone = onColours(timeTab, eveningPhone().withoutWallpaper());
    setColour(phone, "_showWell", "#FF0000FF");
    phone.tap(well(5));
    EXPECT_EQ(takeJournal(phone),
        (Journal{"sound 1104", "write " + bundle + "subTime.plist", "post " + coloursNotification}));
    EXPECT_NE(phone.errorCode("file.read", {{"path", coloursPath}}), 0);
    EXPECT_EQ(fallback(phone, bundle + "subTime.plist"), "#FF0000:1.00");
}

TEST(ColourWells, APageWithoutThePickersPartIsWrittenBackAsItWas)
{
    auto phone = onColours(timeTab, editorPhone());
    const std::string page = bundle + "subTime.plist";
    for (const char* content : {"<plist version=\"1.0\"><dict><key>title</key><string>Time</string></dict></plist>",
             "<plist version=\"1.0\"><dict><key>title</key><string>Time</string>"
             "<key>libsparkcolourpicker</key><string>none</string></dict></plist>"}) {
        phone.writeFile(page, content);
        const Json before = propertyList(phone, page);
        setColour(phone, "_showWell", "#FF0000FF");
        phone.takeLog();
        phone.tap(well(5));
        EXPECT_EQ(takeJournal(phone),
            (Journal{"sound 1104", "write " + coloursPath, "write " + page, "post " + coloursNotification}));
        EXPECT_EQ(propertyList(phone, page), before);
    }
    for (const char* content : {"no property list", ""}) {
        phone.writeFile(page, content);
        phone.takeLog();
        phone.tap(well(5));
        EXPECT_EQ(takeJournal(phone), (Journal{"sound 1104", "write " + coloursPath, "post " + coloursNotification}));
        EXPECT_EQ(phone.readFile(page), content);
    }
    phone.call("file.remove", {{"path", page}});
    phone.takeLog();
    phone.tap(well(5));
    EXPECT_EQ(takeJournal(phone), (Journal{"sound 1104", "write " + coloursPath, "post " + coloursNotification}));
}

TEST(ColourWells, ADiskThatFailsLosesNothing)
{
    auto phone = onColours(timeTab, editorPhone().colours({{"colourTime", "#010203"}}));
    for (const char* operation : {"write", "rename"}) {
        for (const char* error : {"ENOSPC", "EIO", "EACCES"}) {
            phone.call("file.fault", {{"path", coloursPath}, {"operation", operation}, {"error", error}});
            setColour(phone, "_showWell", "#FF0000FF");
            phone.tap(well(5));
            phone.call("file.fault", {{"path", coloursPath}, {"operation", operation}, {"error", nullptr}});
            EXPECT_EQ(phone.colours(), (Json{{"colourTime", "#010203"}})) << operation << error;
        }
    }
    phone.tap(well(5));
    EXPECT_EQ(phone.colours(), (Json{{"colourTime", "#FF0000:1.00"}}));
    EXPECT_EQ(phone.info().at("starts"), 1);
}

TEST(ColourWells, ThePreviewShowsTheColourOfThePanelsElement)
{
    auto phone = editing(editorPhone().colours(
        {{"colourTime", "#112233:1.00"}, {"colourDate", "#445566:1.0"}, {"colourTextWidget", "#778899"}}));
    phone.settle(1);
    for (auto [tab, colour] : {std::pair{&timeTab, "#112233FF"}, {&dateTab, "#445566FF"}}) {
        choose(phone, *tab, colourSegment);
        EXPECT_EQ(phone.view("_showWell").background, colour);
        EXPECT_EQ(phone.view(well(5)).background, colour);
    }
}

TEST(ColourWells, UntilAColourIsChosenTheFifthAndThePreviewFollowTheElement)
{
    auto phone = editing(editorPhone().colours(elementColours).wallpaper(goldenWallpaper));
    phone.settle(1);
    expectToFollowTheElement(phone);
    choose(phone, timeTab, colourSegment);
    phone.tap(well(3));
    pressDone(phone);
    phone.setColours(elementColours);
    refresh(phone);
    openEditor(phone);
    expectToFollowTheElement(phone);
}

TEST(ColourWells, AChosenColourIsKeptThroughTabsAndSegmentsAndCanBeCarried)
{
    for (int number = 1; number <= 4; ++number) {
        auto phone = onColours(timeTab, editorPhone().colours(elementColours).wallpaper(goldenWallpaper));
        const auto chosen = phone.view(well(number)).background;
        phone.tap(well(number));
        expectToOffer(phone, chosen);
        const Json stored = phone.colours().at("colourTime");
        for (auto [tab, segment] : {std::pair{&timeTab, positionSegment}, {&timeTab, colourSegment},
                 {&widgetTab, widgetOptionSegment}, {&widgetTab, colourSegment}, {&dateTab, colourSegment}}) {
            choose(phone, *tab, segment);
            expectToOffer(phone, chosen);
        }
        phone.tap(well(5));
        EXPECT_EQ(phone.colours().at("colourDate"), stored) << number;
        expectToOffer(phone, chosen);
    }
}

TEST(ColourWells, TheFifthsOwnColourCanBeCarriedToo)
{
    auto phone = onColours(timeTab, editorPhone().colours(elementColours));
    phone.tap(well(5));
    choose(phone, dateTab, colourSegment);
    expectToOffer(phone, "#112233FF");
    phone.tap(well(5));
    EXPECT_EQ(phone.colours().at("colourDate"), "#112233:1.00");
}

TEST(ColourWells, WithoutAWallpaperTheFirstFourAreNotOffered)
{
    auto phone = editing(editorPhone().colours(elementColours));
    for (const EditorTab& tab : editorTabs) {
        choose(phone, tab, colourSegment);
        for (int number = 1; number <= 4; ++number) {
            EXPECT_TRUE(phone.view(well(number)).hidden) << tab.button << number;
            touchThePlaceOf(phone, well(number));
        }
        EXPECT_TRUE(phone.view(well(5)).onScreen);
        EXPECT_TRUE(phone.view("_showWell").onScreen);
    }
    EXPECT_EQ(takeJournal(phone), Journal{});
    EXPECT_EQ(phone.colours(), elementColours);
}

TEST(ColourWells, AWellWithoutAColourStoresNothing)
{
    for (const char* wallpaper : {"", "no picture"}) {
        auto phone = onColours(timeTab, editorPhone().colours(elementColours).wallpaper(goldenWallpaper));
        const auto offered = phone.view(well(1)).background, preview = phone.view("_showWell").background;
        phone.writeFile(wallpaperPath, wallpaper);
        phone.takeLog();
        phone.tap(well(1));
        for (int number = 1; number <= 4; ++number)
            phone.send(coverSheet, "wellButton" + std::to_string(number) + ":", {nullptr});
        EXPECT_EQ(takeJournal(phone), Journal(5, "sound 1104"));
        EXPECT_EQ(phone.colours(), elementColours);
        EXPECT_EQ(phone.view(well(1)).background, offered);
        EXPECT_EQ(phone.view("_showWell").background, preview);
    }
}

TEST(ColourWells, AWallpaperThatComesAndGoesBringsThemAndTakesThemAtTheNextOpening)
{
    auto phone = onColours(timeTab, editorPhone());
    const auto reopened = [&phone] {
        pressDone(phone);
        openEditor(phone);
        choose(phone, timeTab, colourSegment);
        return phone.view(well(1)).onScreen && phone.view(well(4)).onScreen;
    };
    putWallpaper(phone, {200, 20, 20});
    EXPECT_TRUE(reopened());
    EXPECT_EQ(phone.view(well(1)).background, "#C80000FF");
    phone.call("file.remove", {{"path", wallpaperPath}});
    EXPECT_FALSE(reopened());
    putWallpaper(phone, {20, 20, 200});
    EXPECT_TRUE(reopened());
    phone.tap(well(1));
    EXPECT_EQ(phone.colours().at("colourTime"), "#0000C8:1.00");
}

TEST(ColourWells, ThePreviewOpensTheSheet)
{
    auto phone = onColours(timeTab, editorPhone());
    EXPECT_EQ(phone.global("_colorPickerPress"), false);
    phone.tap("_showWell");
    EXPECT_EQ(phone.global("_colorPickerPress"), true);
    EXPECT_TRUE(phone.has("colorWellView"));
    EXPECT_EQ(takeJournal(phone), Journal{"animation 0.5 0.0 65536"});
}
