// Parameters against their tables.
#include "Simulator/Control/Dispatcher.hpp"
#include "Simulator/Control/Types.hpp"

#include <gtest/gtest.h>

using namespace Simulator::Control;

namespace {

const Method example{"example.do",
    {{"name", text(), Presence::required}, {"battery", object({{"level", number(0, 1)}, {"lowPower", boolean()}})},
        {"events", listOf(object({{"title", text(), Presence::required}}))}, {"alarm", orNull(localTime())},
        {"settings", mapOf(storedText(), scalar())}, {"target", oneMemberOf({{"class", text()}, {"id", text()}})}}};

std::string errorOf(const Json& parameters)
{
    try {
        checkParameters(example, parameters);
        return "";
    } catch (const ProtocolError& error) {
        EXPECT_EQ(error.code(), ErrorCode::badParameters);
        return error.what();
    }
}

}

TEST(Parameters, TakesWhatTheTableSays)
{
    EXPECT_EQ(errorOf({{"name", "a"}}), "");
    EXPECT_EQ(
        errorOf({{"name", "a"}, {"battery", {{"level", 0.5}, {"lowPower", true}}}, {"events", {{{"title", "Dentist"}}}},
            {"alarm", nullptr}, {"settings", {{"x", 1}, {"y", "z"}}}, {"target", {{"id", "_timeLabel"}}}}),
        "");
}

TEST(Parameters, NamesWhatIsMissing)
{
    EXPECT_EQ(errorOf(Json::object()), "missing parameter \"name\": it takes a string");
    EXPECT_EQ(errorOf({{"name", "a"}, {"events", {Json::object()}}}),
        "missing parameter \"events[0].title\": it takes a string");
}

TEST(Parameters, NamesWhatIsUnknownAndSaysWhatThereIs)
{
    EXPECT_EQ(errorOf({{"name", "a"}, {"nam", 1}}),
        "unknown parameter \"nam\": example.do takes name, battery, events, alarm, settings, target");
    EXPECT_EQ(errorOf({{"name", "a"}, {"battery", {{"charge", 1}}}}),
        "unknown parameter \"battery.charge\": battery takes level, lowPower");
}

TEST(Parameters, NamesTheValueThatIsWrongAndSaysWhatItTakes)
{
    EXPECT_EQ(errorOf({{"name", 3}}), "parameter \"name\" takes a string, not 3");
    EXPECT_EQ(errorOf({{"name", "a"}, {"battery", {{"level", 1.5}}}}),
        "parameter \"battery.level\" takes a number from 0 to 1, not 1.5");
    EXPECT_EQ(
        errorOf({{"name", "a"}, {"battery", 3}}), "parameter \"battery\" takes an object with level, lowPower, not 3");
    EXPECT_EQ(errorOf({{"name", "a"}, {"events", {{{"title", "x"}}, 5}}}),
        "parameter \"events[1]\" takes an object with title, not 5");
    EXPECT_EQ(errorOf({{"name", "a"}, {"alarm", "noon"}}),
        "parameter \"alarm\" takes a local time such as \"2020-11-15T21:41:00\" or null, not \"noon\"");
    EXPECT_EQ(errorOf({{"name", "a"}, {"settings", {{"x", nullptr}}}}),
        "parameter \"settings.x\" takes a string without NUL, a number or a boolean, not null");
}

TEST(Parameters, NamesAMapsNameThatIsWrong)
{
    const Json parameters{{"name", "a"}, {"settings", {{std::string("a\0b", 3), 1}}}};
    EXPECT_EQ(errorOf(parameters), "a name in parameter \"settings\" takes a string without NUL, not \"a\\u0000b\"");
}

TEST(Parameters, WantExactlyOneMemberWhereTheyAreAChoice)
{
    EXPECT_EQ(errorOf({{"name", "a"}, {"target", {{"id", "x"}, {"class", "y"}}}}),
        "parameter \"target\" takes an object with one of class, id, not {\"class\":\"y\",\"id\":\"x\"}");
    EXPECT_NE(errorOf({{"name", "a"}, {"target", Json::object()}}), "");
}

TEST(Parameters, AreNotTakenByAMethodWithout)
{
    try {
        checkParameters({"phone.stop", {}}, {{"now", true}});
        FAIL();
    } catch (const ProtocolError& error) {
        EXPECT_STREQ(error.what(), "unknown parameter \"now\": phone.stop takes no parameters");
    }
}

TEST(Dispatcher, RunsAMethodWithCheckedParameters)
{
    Dispatcher dispatcher;
    dispatcher.add(example, [](const Json& parameters) { return parameters.at("name"); });
    EXPECT_EQ(dispatcher.call("example.do", {{"name", "x"}}), "x");
    EXPECT_THROW(dispatcher.call("example.do", Json::object()), ProtocolError);
}

TEST(Dispatcher, NamesAMethodThatItDoesNotKnow)
{
    try {
        Dispatcher().call("view.got", Json::object());
        FAIL();
    } catch (const ProtocolError& error) {
        EXPECT_EQ(error.code(), ErrorCode::noSuchMethod);
        EXPECT_STREQ(error.what(), "no such method: \"view.got\"");
    }
}

TEST(Dispatcher, RefusesToHaveAMethodTwiceOrOneThatTheProtocolLacks)
{
    Dispatcher dispatcher;
    const auto nothing = [](const Json&) { return Json::object(); };
    dispatcher.add("view.get", nothing);
    EXPECT_THROW(dispatcher.add("view.get", nothing), std::logic_error);
    EXPECT_THROW(dispatcher.add("view.got", nothing), std::logic_error);
}
