// Small changes to the stock lock screen.
#include "Tests/EndToEnd/Scenario.hpp"

using namespace std::string_literals;

namespace {

Json insets(Phone& phone)
{
    return phone.send({{"instance", "CSCombinedListViewController"}}, "_listViewDefaultContentInsets");
}

Json ofQuickActions(Phone& phone, const char* selector)
{
    return phone.send({{"instance", "CSQuickActionsViewController"}}, selector);
}

}

TEST(Adjustments, TheNotificationListMovesDownBySoManyPoints)
{
    auto stock = settled(eveningPhone().withoutExtension());
    auto plain = insets(stock);
    for (auto [setting, points] : {std::pair{"185", 185.0}, {"0", 0.0}, {"-20", -20.0}, {"12.5", 12.5}, {"low", 0.0}}) {
        auto phone = settledWith({{"yNC", setting}});
        auto moved = plain;
        moved[0] = plain[0].get<double>() + points;
        EXPECT_EQ(insets(phone), moved) << setting;
    }
}

TEST(Adjustments, QuickActionsAreThereUnlessHidden)
{
    auto phone = settledWith();
    EXPECT_EQ(ofQuickActions(phone, "hasFlashlight"), true);
    EXPECT_EQ(ofQuickActions(phone, "hasCamera"), true);
    auto without = settledWith({{"hiddenFlashlight", true}, {"hiddenCamera", true}});
    EXPECT_EQ(ofQuickActions(without, "hasFlashlight"), false);
    EXPECT_EQ(ofQuickActions(without, "hasCamera"), false);
    EXPECT_TRUE(!without.has("stock.flashlight") || without.view("stock.flashlight").onScreen == false);
}

TEST(Adjustments, TheHintIsTheUsersText)
{
    EXPECT_EQ(settledWith({{"customText", "Come in"}}).label("stock.hint").text, "Come in");
    EXPECT_EQ(settledWith({{"customText", ""}}).label("stock.hint").text, "");
    auto stock = settled(eveningPhone().withoutExtension()).label("stock.hint").text;
    EXPECT_EQ(settledWith({{"enabledCT", false}, {"customText", "Come in"}}).label("stock.hint").text, stock);
}

TEST(Adjustments, TheEndOfTheListHasTheUsersTextInTheMiddle)
{
    const auto endOfList = [](const Json& settings) {
        const Support::View hint(settledWith(settings).get("stock.revealHint.title"));
        return std::pair(hint.json.at("text").get<std::string>(), hint.json.at("alignment").get<int>());
    };
    const auto stock = endOfList({{"ctNoOlder", "Nothing before"}});
    EXPECT_EQ(stock.first, "No Older Notifications") << "the switch is off";
    EXPECT_EQ(endOfList({{"enabledCT2", true}, {"ctNoOlder", "Nothing before"}}), std::pair("Nothing before"s, 1));
    EXPECT_EQ(endOfList({{"enabledCT2", true}, {"ctNoOlder", ""}}), std::pair(stock.first, 1))
        << "centred all the same";
}

TEST(Adjustments, TheLowPowerFlagIsNoted)
{
    auto phone = settledWith();
    EXPECT_EQ(phone.global("_isLPM"), false);
    phone.call("device.set", {{"battery", {{"lowPower", true}}}});
    EXPECT_EQ(phone.global("_isLPM"), true);
}

TEST(Adjustments, AHeaderThatIsHiddenIsNotLaidOut)
{
    const Json header = {{"instance", "NCNotificationListSectionHeaderView"}},
               title = {{"id", "stock.notificationHeader.title"}};
    for (bool hidden : {false, true}) {
        auto phone = settledWith({{"hideNotifHeader", hidden}});
        phone.send(header, "setHidden:", {false});
        phone.send(title, "setFrame:", Json::array({{1, 2, 3, 4}}));
        phone.send(header, "layoutSubviews");
        EXPECT_EQ(phone.send(title, "frame") == (Json{1, 2, 3, 4}), hidden);
        EXPECT_EQ(phone.send(header, "isHidden"), hidden);
    }
}

TEST(Adjustments, TheHeaderIsHiddenOnlyAfterARestart)
{
    auto frameOf = [](Phone& phone) {
        return phone.send({{"instance", "NCNotificationListSectionHeaderView"}}, "frame");
    };
    auto phone = settledWith();
    phone.set({{"hideNotifHeader", true}});
    refresh(phone);
    EXPECT_NE(frameOf(phone), (Json{0, 0, 0, 0}));
    phone.call("notify.post", {{"name", "com.ostrel.lyr/respring"}});
    phone.settle();
    EXPECT_EQ(frameOf(phone), (Json{0, 0, 0, 0}));
}

TEST(Adjustments, TheChargingViewCanBeSuppressed)
{
    for (bool suppressed : {false, true}) {
        auto phone = settledWith({{"chargeAnim", suppressed}});
        phone.call("phone.charge", {{"charging", true}});
        phone.advance(0.5);
        EXPECT_EQ(phone.has("stock.charging") && phone.view("stock.charging").onScreen, !suppressed);
    }
}

TEST(Adjustments, WhereItIsNotSuppressedTheChargingViewComesAsTheSystemAskedForIt)
{
    const auto ask = [](Phone& phone, bool visible, bool showBattery) {
        phone.send({{"instance", "CSCoverSheetViewController"}},
            "_transitionChargingViewToVisible:showBattery:animated:", {visible, showBattery, false});
    };
    auto phone = settledWith();
    for (bool showBattery : {true, false}) {
        ask(phone, true, showBattery);
        EXPECT_TRUE(phone.has("stock.charging"));
        EXPECT_EQ(phone.view("stock.charging.battery").hidden, !showBattery);
    }
    ask(phone, false, true);
    EXPECT_FALSE(phone.has("stock.charging"));
    phone.set({{"chargeAnim", true}});
    ask(phone, true, true);
    EXPECT_FALSE(phone.has("stock.charging"));
}

TEST(Adjustments, TheOtherExtensionsListIsLookedAtEachSecond)
{
    auto phone = settled(eveningPhone().installed({"Axon"}));
    phone.send({{"instance", "AXNView"}}, "setList:", Json::array({Json::array()}));
    phone.advance(1.1);
    EXPECT_EQ(phone.global("_axonVisible"), false);
    phone.send({{"instance", "AXNView"}}, "setList:", Json::array({Json::array({"a notification"})}));
    EXPECT_EQ(phone.global("_axonVisible"), false);
    phone.advance(1);
    EXPECT_EQ(phone.global("_axonVisible"), true);
}
