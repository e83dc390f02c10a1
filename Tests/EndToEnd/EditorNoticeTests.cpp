// The notice of where fonts go, and the battery saver's pair of buttons.
#include "Tests/EndToEnd/EditorScenario.hpp"

namespace {

constexpr const char* noticeViews[]
    = {"_alertView", "_alertClose", "_openFolder", "_alertLabel", "_alertLabel2", "_alertLabel3"};
const std::string filza = "filza://view/Library/Application%20Support/LYRFont/";

void expectNotice(Phone& phone, bool shown)
{
    for (const char* view : noticeViews)
        EXPECT_EQ(phone.view(view).onScreen, shown) << view;
}

}

TEST(FontNotice, OpensAndClosesWithAClickEachTime)
{
    auto phone = editing();
    expectNotice(phone, false);
    phone.tap("_alertOpen");
    expectNotice(phone, true);
    EXPECT_EQ(takeJournal(phone), Journal{"sound 1104"}) << "and no animation";
    phone.tap("_alertClose");
    expectNotice(phone, false);
    EXPECT_EQ(takeJournal(phone), Journal{"sound 1104"});
}

TEST(FontNotice, OpenedTwiceItIsOpenAndClosedTwiceItIsClosed)
{
    auto phone = editing();
    for (auto [action, shown] : {std::pair{"showAlert:", true}, {"closeAlert:", false}}) {
        for (int time = 0; time < 2; ++time) {
            phone.send(coverSheet, action, {nullptr});
            expectNotice(phone, shown);
            EXPECT_EQ(takeJournal(phone), Journal{"sound 1104"});
        }
    }
}

TEST(FontNotice, SaysWhereFontsGo)
{
    auto phone = editing();
    phone.tap("_alertOpen");
    EXPECT_EQ(phone.label("_alertLabel").text, "Custom fonts are put in /Library/Application Support/LYRFont");
    EXPECT_EQ(phone.label("_alertLabel2").text, "Adding a new font may need a respring.");
    EXPECT_EQ(phone.label("_alertLabel3").text, "Open Filza button only works on CoverSheet or Notifications Center");
    EXPECT_EQ(phone.button("_openFolder").title, "Open Filza");
    EXPECT_EQ(phone.button("_alertOpen").symbol, "info.circle");
    EXPECT_EQ(phone.button("_alertClose").symbol, "xmark.circle.fill");
}

TEST(FontNotice, CoversThePanelButNotItsTabs)
{
    auto phone = editing();
    phone.tap("_alertOpen");
    const auto notice = phone.view("_alertView"), panel = phone.view("_optionView");
    EXPECT_EQ(notice.frame, (Rectangle{0, 0, panel.frame[2], panel.frame[3]}));
    phone.takeLog();
    const auto segments = phone.view("_segmentedControl").frame;
    phone.tapAt(panel.centreX(), panel.frame[1] + segments[1] + segments[3] / 2);
    EXPECT_EQ(phone.segments("_segmentedControl").selected, 0) << "what lies under it cannot be touched";
    pressDone(phone);
    openEditor(phone);
    EXPECT_FALSE(phone.view("_alertView").onScreen);
}

TEST(FontNotice, WithFilzaItsFolderOpensAndNothingElse)
{
    auto phone = editing(editorPhone().installed({"Filza"}));
    phone.tap("_alertOpen");
    phone.takeLog();
    phone.tap("_openFolder");
    const auto records = phone.takeLog();
    EXPECT_EQ(journalOf(records),
        (Journal{"sound 1519", "home button", "open " + filza, "idle timer: remove LYR", "animation 0.5 0.0 65536"}))
        << "and the lock screen is left";
    const auto asked = std::count_if(
        records.begin(), records.end(), [](const Json& record) { return record.at("kind") == "canOpenURL"; });
    EXPECT_EQ(asked, 1);
}

TEST(FontNotice, WithoutFilzaBothSearchesAreTriedInTheirOrder)
{
    auto phone = editing();
    phone.tap("_alertOpen");
    phone.takeLog();
    phone.tap("_openFolder");
    std::vector<std::string> asked, opened;
    for (const Json& record : phone.takeLog()) {
        if (record.at("kind") == "canOpenURL")
            asked.push_back(record.at("url"));
        if (record.at("kind") == "openURL")
            opened.push_back(record.at("url"));
    }
    ASSERT_EQ(asked.size(), 3u);
    EXPECT_EQ(asked[0], filza);
    EXPECT_TRUE(asked[1].starts_with("https://") && asked[1].ends_with("q=filza")) << asked[1];
    EXPECT_FALSE(asked[2].starts_with("http")) << asked[2];
    EXPECT_TRUE(asked[2].ends_with("q=filza")) << asked[2];
    EXPECT_EQ(opened, Journal{asked[1]}) << "this phone has no search app";
}

TEST(FontNotice, TheEditorIsClosedAfterTheHomeButton)
{
    auto phone = editing();
    phone.tap("_alertOpen");
    phone.tap("_openFolder");
    phone.settle();
    EXPECT_EQ(activeFlags(phone), Journal{});
    phone.call("phone.coverSheet");
    phone.settle();
    openEditor(phone);
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
    EXPECT_FALSE(phone.view("_alertView").onScreen);
}

TEST(BatterySaver, EachButtonGivesWayToTheOther)
{
    auto phone = settledWith();
    struct {
        const char* pressed;
        const char* shown;
        int mode;
    } steps[] = {{"_buttonCL", "_buttonCL2", 1}, {"_buttonCL2", "_buttonCL", 0}, {"_buttonCL", "_buttonCL2", 1}};
    for (const auto& step : steps) {
        phone.takeLog();
        phone.tap(step.pressed);
        const int crossDissolve = 5 << 20;
        EXPECT_EQ(takeJournal(phone),
            (Journal{"battery saver " + std::to_string(step.mode), "animation 0.0 0.0 " + std::to_string(crossDissolve),
                "sound 1519"}));
        EXPECT_TRUE(phone.view(step.pressed).hidden);
        EXPECT_TRUE(phone.view(step.shown).onScreen);
        EXPECT_TRUE(refreshes(phone));
    }
}

TEST(BatterySaver, StartsInTheModeThatThePhoneIsIn)
{
    for (bool saves : {false, true}) {
        auto phone = settled(editorPhone().battery({{"level", 0.2}, {"lowPower", saves}}));
        EXPECT_EQ(phone.view("_buttonCL").hidden, saves);
        EXPECT_EQ(phone.view("_buttonCL2").hidden, !saves);
    }
}

TEST(BatterySaver, LiesClearOfTheStripAndTheEditor)
{
    for (auto [width, height] : {std::pair{375.0, 812.0}, {414.0, 896.0}, {1024.0, 768.0}}) {
        auto phone = editing(editorPhone().screen(width, height, 2));
        const auto button = phone.view("_buttonCL").frame;
        EXPECT_LT(button[1] + button[3], phone.view("_done").frame[1]) << width;
        EXPECT_LE(button[0] + button[2], width);
    }
}
