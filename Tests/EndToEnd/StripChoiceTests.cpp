// Each choice of widgets is seen at once, by whichever way it is made.
#include "Tests/EndToEnd/EditorScenario.hpp"
#include "Tests/EndToEnd/StripScenario.hpp"

namespace {

/// The segments of the three widgets, from 0 on.
struct Choice {
    int weather;
    int agenda;
    int battery;

    Json settings() const
    {
        return {{"highLowOption", weather}, {"sunOption", agenda + 1}, {"battOption", battery + 1}};
    }
};

/// All of them, in an order in which neighbours have little in common.
std::vector<Choice> everyChoice()
{
    std::vector<Choice> choices;
    for (int i = 0; i < 2 * 4 * 3; ++i) {
        const int scattered = i * 7 % 24;
        choices.push_back({scattered % 2, scattered / 2 % 4, scattered / 8});
    }
    return choices;
}

/// A phone on which every widget has something to show.
Support::PhoneStart fullPhone(const Json& settings = Json::object())
{
    auto weather = sunnyWeather;
    weather["image"] = LYR_GOLDEN_FOLDER "/weather.png";
    auto phone = stripPhone(settings).colours(Json::object()).weather(weather).alarm("2020-11-16T06:30:00");
    return phone.events(Json::array({{{"title", "Dentist"}, {"start", "2020-11-16T09:30:00"}}}))
        .battery({{"level", 0.87}, {"state", "charging"}});
}

/// What can be seen of a view; of a hidden one, that it is hidden.
Json seen(const Json& view)
{
    if (view.at("hidden") == true)
        return {{"id", view.at("id")}, {"hidden", true}};
    Json visible = view;
    if (view.contains("children")) {
        visible["children"] = Json::array();
        for (const Json& child : view.at("children"))
            visible["children"].push_back(seen(child));
    }
    return visible;
}

Json seenStrip(Phone& phone)
{
    return seen(phone.call("view.tree", {{"id", "_widgetView"}}));
}

/// The strip of a phone that is started with the choice.
Json stripOfStartedPhone(Phone& phone, const Choice& choice)
{
    phone.start(fullPhone(choice.settings()));
    phone.settle();
    return seenStrip(phone);
}

/// The walk ends where it began, so that the first choice is made, too.
template <class Choose>
void expectEachChoiceIsSeen(Phone& phone, Choose choose)
{
    auto started = Phone::notStarted();
    auto choices = everyChoice();
    choices.push_back(choices.front());
    for (const Choice& choice : choices) {
        choose(choice);
        phone.advance(0.2);
        EXPECT_EQ(seenStrip(phone), stripOfStartedPhone(started, choice)) << choice.settings();
    }
}

/// A finger on a segment.
void touchSegment(Phone& phone, const std::string& id, int index)
{
    const auto control = phone.segments(id);
    const auto panel = phone.view("_optionView").frame;
    ASSERT_TRUE(control.onScreen) << id;
    const double width = control.frame[2] / static_cast<double>(control.segments.size());
    phone.tapAt(
        panel[0] + control.frame[0] + width * (index + 0.5), panel[1] + control.frame[1] + control.frame[3] / 2);
}

}

TEST(StripChoice, MadeByTouchInTheEditorIsSeenAtOnce)
{
    auto phone = editing(fullPhone());
    choose(phone, widgetTab, widgetOptionSegment);
    expectEachChoiceIsSeen(phone, [&phone](const Choice& choice) {
        touchSegment(phone, "_segmentWidget1", choice.weather);
        touchSegment(phone, "_segmentWidget2", choice.agenda);
        touchSegment(phone, "_segmentWidget3", choice.battery);
    });
    const Json stored = phone.settings(), last = everyChoice().front().settings();
    for (const auto& [key, value] : last.items())
        EXPECT_EQ(stored.at(key), value) << key;
}

TEST(StripChoice, MadeOnASettingsPageIsSeenAtTheNextRefresh)
{
    auto phone = settled(fullPhone());
    expectEachChoiceIsSeen(phone, [&phone](const Choice& choice) {
        phone.set(choice.settings());
        phone.send({{"instance", "SBFLockScreenDateViewController"}}, "updateTime");
    });
}

TEST(StripChoice, ASlotThatComesBackBetweenRefreshesIsFilled)
{
    auto phone = settled(fullPhone({{"sunOption", "3"}, {"battOption", "3"}}));
    EXPECT_TRUE(phone.view("_sunLabel").hidden);
    phone.set({{"battOption", "1"}});
    updateLabels(phone);
    EXPECT_FALSE(phone.view("_sunLabel").hidden);
    EXPECT_EQ(phone.label("_sunLabel").text, "6:30");
    EXPECT_EQ(iconIn(phone, "_SL"), "SS16/alarm");
}
