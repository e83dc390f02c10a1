// The protocol's table of methods.
#include "Simulator/Control/Methods.hpp"

#include <gtest/gtest.h>
#include <set>

using namespace Simulator::Control;

namespace {

std::string complaintAbout(const std::string& name, const Json& parameters)
{
    for (const Method& method : protocolMethods()) {
        if (method.name != name)
            continue;
        try {
            checkParameters(method, parameters);
            return "";
        } catch (const ProtocolError& error) {
            return error.what();
        }
    }
    return "no such method";
}

}

TEST(Methods, AreListedOnce)
{
    std::set<std::string> names;
    for (const Method& method : protocolMethods())
        EXPECT_TRUE(names.insert(method.name).second) << method.name;
}

TEST(Methods, StartAPhoneWithEverythingThatCanBeSaid)
{
    const Json parameters = Json::parse(R"({
        "screen": {"width": 375, "height": 812, "scale": 3}, "time": "2020-11-15T21:41:00", "timeZone": "UTC",
        "locale": "en_US", "languages": ["en", "he"], "clock": "virtual", "style": "dark", "root": "/tmp",
        "files": {"/Library/a.txt": "/proc/self/exe"}, "settings": {"enabled": true, "sizeTimeLabel": "60", "x": 1.5},
        "colours": {"colourTime": "#FF0000"}, "wallpaper": null, "fonts": ["/proc/self/exe"],
        "installed": ["AFont", "LastLook", "Axon", "Filza"],
        "battery": {"level": 0.87, "state": "charging", "lowPower": true},
        "weather": {"temperature": "21°", "high": "24°", "low": "15°", "conditions": "Partly Cloudy",
            "location": "Haifa", "sunrise": "6:12", "sunset": "16:41", "image": "/proc/self/exe"},
        "alarm": "2020-11-16T06:30:00", "events": [{"title": "Dentist", "start": "2020-11-16T09:00:00", "allDay": false}],
        "extension": true})");
    EXPECT_EQ(complaintAbout("phone.start", parameters), "");
    EXPECT_EQ(complaintAbout("phone.start", Json::object()), "");
}

TEST(Methods, SayWhatIsWrongWithAPhonesStart)
{
    EXPECT_EQ(complaintAbout("phone.start", {{"wallpaper", "/none.jpg"}}),
        "parameter \"wallpaper\" takes the host path of a JPEG that exists or null, not \"/none.jpg\"");
    EXPECT_EQ(complaintAbout("phone.start", {{"files", {{"/a", "/none.txt"}}}}),
        "parameter \"files./a\" takes the host path of a file or folder that exists, not \"/none.txt\"");
    EXPECT_EQ(complaintAbout("phone.start", {{"installed", {"Afont"}}}),
        "parameter \"installed[0]\" takes one of \"AFont\", \"LastLook\", \"Axon\", \"Filza\", not \"Afont\"");
    EXPECT_EQ(complaintAbout("phone.start", {{"screen", {{"width", 0}, {"height", 1}, {"scale", 1}}}}),
        "parameter \"screen.width\" takes a number from 1 to 2048, not 0");
}

TEST(Methods, TakeNullForWhatCanBeTakenAway)
{
    EXPECT_EQ(complaintAbout("device.set", {{"weather", nullptr}, {"alarm", nullptr}}), "");
    EXPECT_EQ(complaintAbout("file.fault", {{"path", "/a"}, {"operation", "write"}, {"error", nullptr}}), "");
    EXPECT_NE(complaintAbout("device.set", {{"battery", nullptr}}), "");
}

TEST(Methods, TouchAtPointsOrViews)
{
    EXPECT_EQ(complaintAbout("touch.tap", {{"at", {1, 2.5}}}), "");
    EXPECT_EQ(complaintAbout("touch.tap", {{"id", "_done"}}), "");
    EXPECT_EQ(complaintAbout("touch.press", {{"at", {1, 2}}, {"seconds", 0.6}}), "");
    EXPECT_EQ(complaintAbout("touch.drag", {{"from", {1, 2}}, {"to", {3, 4}}, {"seconds", 0}}), "");
    EXPECT_EQ(complaintAbout("touch.tap", {{"at", {1, 2, 3}}}), "parameter \"at\" takes a point [x, y], not [1,2,3]");
    EXPECT_EQ(complaintAbout("touch.press", {{"at", {1, 2}}, {"seconds", 61}}),
        "parameter \"seconds\" takes a number from 0 to 60, not 61");
    EXPECT_EQ(complaintAbout("touch.drag", {{"from", {1, 2}}}), "missing parameter \"to\": it takes a point [x, y]");
    EXPECT_EQ(complaintAbout("control.set", {{"id", "_sliderX"}, {"value", 12}, {"tracking", true}}), "");
    EXPECT_NE(complaintAbout("control.set", {{"id", "_sliderX"}}), "");
}

TEST(Methods, SendToOneTarget)
{
    const auto send = [](const Json& target) {
        return complaintAbout("objc.send", {{"target", target}, {"selector", "text"}, {"args", Json::array()}});
    };
    EXPECT_EQ(send({{"class", "UIDevice"}}), "");
    EXPECT_EQ(send({{"instance", "SBFLockScreenDateViewController"}}), "");
    EXPECT_EQ(send({{"id", "_timeLabel"}}), "");
    EXPECT_EQ(send({{"named", "mine"}}), "");
    EXPECT_NE(send({{"view", "_timeLabel"}}), "");
    EXPECT_NE(send({{"class", "A"}, {"id", "b"}}), "");
}
