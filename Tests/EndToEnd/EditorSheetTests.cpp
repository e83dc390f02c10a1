// The colour sheet over the editor: free colours for the time, the date and the widgets.
#include "Tests/EndToEnd/EditorScenario.hpp"

namespace {

const std::string bundle = "/Library/PreferenceBundles/LYRPrefs.bundle/";

struct SheetRow {
    const char* well;
    const char* swatch;
    const char* title;
    std::vector<std::string> keys;
    std::string page;
};

const SheetRow rows[] = {{"colorWell", "wellViewTime", "Time Color", {"colourTime"}, bundle + "subTime.plist"},
    {"colorWell2", "wellViewDate", "Date Color", {"colourDate"}, bundle + "subDate.plist"},
    {"colorWell3", "wellViewWidget", "Widget Color", {"colourWidget", "colourTextWidget"}, bundle + "subWidget.plist"}};

constexpr const char* overlayViews[] = {"_optionView", "_done", "_timeButton", "_dateButton", "_widgetButton"};

Phone withSheet(const Support::PhoneStart& start = editorPhone(), const EditorTab& tab = timeTab)
{
    auto phone = editing(start);
    givePages(phone);
    choose(phone, tab, colourSegment);
    phone.tap("_showWell");
    phone.settle(1);
    phone.takeLog();
    return phone;
}

/// What the system's colour picker does to its well.
void pick(Phone& phone, const std::string& well, const std::string& colour)
{
    constexpr int valueChanged = 1 << 12;
    phone.send({{"id", well}}, "setSelectedColor:", Json::array({colour}));
    phone.send({{"id", well}}, "sendActionsForControlEvents:", {valueChanged});
}

Json fallback(Phone& phone, const std::string& page)
{
    return phone.call("file.read", {{"path", page}}).at("plist").at("libsparkcolourpicker").at("fallback");
}

void expectOverlay(Phone& phone, bool shown)
{
    for (const char* view : overlayViews)
        EXPECT_EQ(phone.has(view) && phone.view(view).onScreen, shown) << view;
}

bool hasSound(const Journal& journal)
{
    return std::any_of(
        journal.begin(), journal.end(), [](const std::string& line) { return line.starts_with("sound"); });
}

}

TEST(ColourSheet, HasAWellASwatchAndACaptionForEachElement)
{
    auto phone = withSheet(editorPhone().colours({{"colourTime", "#112233:1.00"}, {"colourDate", "#445566:1.0"}}));
    expectOverlay(phone, false);
    for (const SheetRow& row : rows) {
        EXPECT_EQ(phone.colourWell(row.well).title, row.title);
        EXPECT_TRUE(phone.view(row.well).onScreen);
        EXPECT_EQ(phone.view(row.swatch).json.at("layer").at("cornerRadius"), 15);
    }
    EXPECT_EQ(phone.view("wellViewTime").background, "#112233FF");
    EXPECT_EQ(phone.view("wellViewDate").background, "#445566FF");
    EXPECT_EQ(phone.view("wellViewWidget").background, phone.view("_BG").tint);
    std::vector<std::string> captions;
    const Json panel = phone.call("view.tree", {{"id", "colorWellView"}});
    for (const Json& child : panel.at("children")) {
        if (child.at("class") == "UILabel") {
            captions.push_back(child.at("text"));
            EXPECT_EQ(child.at("font").at("size"), 20);
        }
    }
    EXPECT_EQ(captions, (Journal{"Time Color", "Date Color", "Widget Color"}));
    EXPECT_EQ(phone.button("colorWellDone").title, "Done");
    EXPECT_EQ(phone.view("colorWellDone").json.at("layer").at("cornerRadius"), 20);
}

TEST(ColourSheet, ItsDoneStandsWhereTheEditorsStood)
{
    for (auto [width, height, x] : {std::tuple{375.0, 812.0, 275.0}, {320.0, 568.0, 220.0}, {1024.0, 768.0, 796.0}}) {
        auto phone = withSheet(editorPhone().screen(width, height, 2));
        EXPECT_EQ(phone.view("colorWellDone").frame, (Rectangle{x, height - 395, 90, 40}));
        EXPECT_EQ(phone.view("colorWellView").frame[1], height - 345);
    }
}

TEST(ColourSheet, AColourIsStoredAtOnceInItsShorterForm)
{
    for (const SheetRow& row : rows) {
        auto phone = withSheet();
        pick(phone, row.well, "#FFFFFFFF");
        Journal expected;
        for (std::size_t i = 0; i < row.keys.size(); ++i)
            expected.push_back("write " + coloursPath);
        expected.push_back("write " + row.page);
        expected.push_back("post " + coloursNotification);
        EXPECT_EQ(takeJournal(phone), expected) << row.title;
        Json colours;
        for (const std::string& key : row.keys)
            colours[key] = "#FFFFFF:1.0";
        EXPECT_EQ(phone.colours(), colours);
        EXPECT_EQ(fallback(phone, row.page), "#FFFFFF:1.0");
        EXPECT_TRUE(refreshes(phone));
        EXPECT_EQ(phone.view("colorWellView").alpha, 1);
    }
}

TEST(ColourSheet, TouchingAWellStoresTheSame)
{
    constexpr int touchUpInside = 1 << 6;
    for (const SheetRow& row : rows) {
        auto phone = withSheet();
        phone.send({{"id", row.well}}, "setSelectedColor:", Json::array({"#123456FF"}));
        EXPECT_EQ(phone.colours(), Json::object());
        phone.send({{"id", row.well}}, "sendActionsForControlEvents:", {touchUpInside});
        for (const std::string& key : row.keys)
            EXPECT_EQ(phone.colours().at(key), "#123456:1.0");
        EXPECT_EQ(phone.view(row.swatch).background, "#123456FF");
    }
}

TEST(ColourSheet, BothFormsReadAsFullyOpaque)
{
    auto phone = withSheet();
    phone.setControl("colorWell", "#33669980");
    phone.settle(1);
    EXPECT_EQ(phone.colours().at("colourTime"), "#336699:1.0");
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#336699FF");
    phone.tap("colorWellDone");
    phone.settle(1);
    phone.tap("_colorWheel5");
    phone.settle(1);
    EXPECT_EQ(phone.colours().at("colourTime"), "#336699:1.00");
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#336699FF");
}

TEST(ColourSheet, TheLastColourIsOfferedByTheFifthWell)
{
    auto phone = withSheet();
    phone.setControl("colorWell2", "#AA0000FF");
    phone.setControl("colorWell3", "#00BB00FF");
    phone.tap("colorWellDone");
    phone.settle(1);
    EXPECT_EQ(phone.view("_showWell").background, "#00BB00FF");
    EXPECT_EQ(phone.view("_colorWheel5").background, "#00BB00FF");
    phone.tap("_colorWheel5");
    EXPECT_EQ(phone.colours().at("colourTime"), "#00BB00:1.00");
    EXPECT_EQ(phone.colours().at("colourDate"), "#AA0000:1.0");
}

TEST(ColourSheet, ItsLastColourIsKeptByTheFifthWellThroughTabsAndSegments)
{
    auto phone = withSheet(editorPhone().colours({{"colourTime", "#112233"}, {"colourDate", "#445566"}}));
    phone.setControl("colorWell", "#AA0000FF");
    phone.tap("colorWellDone");
    phone.settle(1);
    for (auto [tab, segment] : {std::pair{&timeTab, positionSegment}, {&timeTab, colourSegment},
             {&dateTab, dateOptionSegment}, {&widgetTab, colourSegment}, {&dateTab, colourSegment}}) {
        choose(phone, *tab, segment);
        EXPECT_EQ(phone.view("_showWell").background, "#AA0000FF");
        EXPECT_EQ(phone.view("_colorWheel5").background, "#AA0000FF");
    }
    phone.tap("_colorWheel5");
    EXPECT_EQ(phone.colours(), (Json{{"colourTime", "#AA0000:1.0"}, {"colourDate", "#AA0000:1.00"}}));
    pressDone(phone);
    phone.setColours({{"colourTime", "#112233"}});
    refresh(phone);
    openEditor(phone);
    EXPECT_EQ(phone.view("_showWell").background, "#112233FF") << "an editor that is opened anew has no choice to keep";
    EXPECT_EQ(phone.view("_colorWheel5").background, "#112233FF");
}

TEST(ColourSheet, ItsWellsOfferNoOpacity)
{
    for (const SheetRow& row : rows) {
        auto phone = withSheet(editorPhone().colours({{"colourTime", "#11223380"}}));
        EXPECT_EQ(phone.send({{"id", row.well}}, "supportsAlpha"), false);
        phone.tap(row.well);
        phone.settle(1);
        EXPECT_TRUE(phone.view("system.colourSheet.brightness").onScreen);
        EXPECT_FALSE(phone.has("system.colourSheet.opacity")) << row.title;
        phone.tap("system.colourSheet.grid");
        EXPECT_EQ(phone.colourWell(row.well).selected->substr(7), "FF");
    }
}

TEST(ColourSheet, DoneBringsTheEditorBack)
{
    for (const EditorTab& tab : editorTabs) {
        auto phone = withSheet(editorPhone(), tab);
        const auto sheetsDone = phone.view("colorWellDone").frame;
        phone.tap("colorWellDone");
        EXPECT_EQ(takeJournal(phone), (Journal{"sound 1519", "animation 0.5 0.0 65536"}));
        EXPECT_FALSE(phone.has("colorWellView"));
        EXPECT_EQ(phone.global("_colorPickerPress"), false);
        phone.settle(1);
        expectOverlay(phone, true);
        EXPECT_EQ(activeFlags(phone), Journal{tab.flag});
        EXPECT_EQ(phone.view("_done").frame, sheetsDone);
        EXPECT_EQ(phone.view("_optionView").frame, (Rectangle{10, 812 - 345, 355, 240}));
    }
}

TEST(ColourSheet, LockingRemovesItWithoutASoundAndTheEditorStaysAway)
{
    auto phone = withSheet();
    phone.setControl("colorWell", "#FF0000FF");
    phone.takeLog();
    phone.call("phone.lock");
    phone.settle();
    EXPECT_FALSE(phone.has("colorWellView"));
    EXPECT_FALSE(hasSound(takeJournal(phone)));
    EXPECT_EQ(phone.global("_colorPickerPress"), false);
    phone.call("phone.wake");
    phone.settle();
    expectOverlay(phone, false);
    EXPECT_EQ(activeFlags(phone), Journal{});
    openEditor(phone);
    expectOverlay(phone, true);
}

TEST(ColourSheet, LeavingTheLockScreenRemovesIt)
{
    auto phone = withSheet();
    phone.call("phone.unlock");
    phone.settle();
    EXPECT_EQ(phone.global("_colorPickerPress"), false);
    phone.call("phone.coverSheet");
    phone.settle();
    EXPECT_FALSE(phone.has("colorWellView"));
    openEditor(phone);
    expectOverlay(phone, true);
}

TEST(ColourSheet, GoesWhenTheProtectedDataDoes)
{
    auto phone = withSheet();
    phone.setControl("colorWell", "#FF0000FF");
    phone.takeLog();
    phone.call("phone.protectedData", {{"available", false}});
    EXPECT_FALSE(phone.has("colorWellView"));
    EXPECT_EQ(phone.global("_colorPickerPress"), true) << "the flag is left as it was";
    EXPECT_EQ(takeJournal(phone), Journal{});
    phone.settle();
    expectOverlay(phone, false);
    phone.call("phone.protectedData", {{"available", true}});
    phone.call("phone.protectedData", {{"available", false}});
    EXPECT_EQ(phone.info().at("starts"), 1) << "a sheet that is gone observes nothing";
}

TEST(ColourSheet, OpenedOftenThereIsOneAndNoneIsLeft)
{
    auto phone = editing();
    choose(phone, timeTab, colourSegment);
    const auto views = phone.tree().json.dump().size();
    for (int i = 0; i < 50; ++i) {
        phone.tap("_showWell");
        phone.send(coverSheet, "pickerShow");
        phone.settle(1);
        phone.tap("colorWellDone");
        phone.settle(1);
    }
    EXPECT_NEAR(phone.tree().json.dump().size(), views, 200);
    EXPECT_FALSE(phone.has("colorWellView"));
}

TEST(ColourSheet, WithoutAColourFileNothingIsWrittenButItIsAnnounced)
{
    auto phone = withSheet(eveningPhone().withoutWallpaper());
    pick(phone, "colorWell", "#FF0000FF");
    EXPECT_EQ(takeJournal(phone), (Journal{"write " + rows[0].page, "post " + coloursNotification}));
    EXPECT_NE(phone.errorCode("file.read", {{"path", coloursPath}}), 0);
}

TEST(ColourSheet, FollowsTheAppearance)
{
    for (auto [style, ground, letters] :
        {std::tuple{"light", "#FFFFFF", "#000000FF"}, {"dark", "#000000", "#FFFFFFFF"}}) {
        auto phone = withSheet(editorPhone().style(style));
        EXPECT_EQ(phone.view("colorWellView").background->substr(0, 7), ground);
        EXPECT_EQ(phone.view("colorWellDone").tint, letters);
    }
}

TEST(ColourSheet, AColourFromTheSystemsOwnSheetIsStored)
{
    auto phone = withSheet();
    phone.tap("colorWell2");
    phone.settle(1);
    phone.tap("system.colourSheet.grid");
    const auto picked = phone.colourWell("colorWell2").selected;
    ASSERT_TRUE(picked);
    EXPECT_EQ(phone.colours().at("colourDate"), picked->substr(0, 7) + ":1.0");
    phone.tap("system.colourSheet.close");
    phone.settle(1);
    EXPECT_TRUE(phone.view("colorWellView").onScreen);
}
