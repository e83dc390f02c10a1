// The phone that `lyr render` draws where nobody says what state it is in.
#include "Tests/Support/Picture.hpp"
#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace {

using namespace Support;

std::string glyph(const std::string& name)
{
    return LYR_GLYPH_FOLDER "/" + name + ".png";
}

class PhoneInUse : public testing::Test {
protected:
    /// The pixels of a phone at that time of day.
    Picture drawn(const std::string& clock, std::vector<std::string> options = {})
    {
        std::vector<std::string> arguments{
            "render", "--time", "2020-11-15T" + clock, "--screen", "375x812@1", "-o", folder.at("lock.png")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Finished finished = runProgram(arguments);
        EXPECT_EQ(finished.status, 0) << finished.errors;
        return Picture::read(folder.at("lock.png")).value();
    }

    Picture drawnWith(const std::string& clock, const Json& device)
    {
        return drawn(clock, {"--device", folder.put("device.json", device.dump())});
    }

    Json weather(const std::string& conditions)
    {
        return {{"temperature", "21°"}, {"high", "24°"}, {"low", "15°"}, {"conditions", conditions},
            {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}};
    }

    Json device(const Json& weather)
    {
        return {{"battery", {{"level", 0.87}}}, {"weather", weather}, {"alarm", "2020-11-16T06:30:00"},
            {"events", Json::array({{{"title", "Dentist"}, {"start", "2020-11-16T09:30:00"}}})}};
    }

    TemporaryFolder folder;
};

}

TEST_F(PhoneInUse, IsDrawnAsIfAFileHadSaidSo)
{
    Json said = weather("Partly Cloudy");
    said["image"] = glyph("partly-cloudy-night");
    EXPECT_EQ(differingShare(drawn("21:41:00"), drawnWith("21:41:00", device(said))), 0);
}

TEST_F(PhoneInUse, IsNotABareOne)
{
    EXPECT_GT(differingShare(drawn("21:41:00"), drawn("21:41:00", {"--bare"})), 0);
    EXPECT_EQ(differingShare(drawnWith("21:41:00", Json::object()), drawn("21:41:00", {"--bare"})), 0);
}

TEST_F(PhoneInUse, HasTheSunByDayAndTheMoonByNight)
{
    Json said = weather("Clear");
    const auto plain = [&](const char* clock) { return drawnWith(clock, {{"weather", weather("Clear")}}); };
    said["image"] = glyph("clear");
    EXPECT_EQ(differingShare(plain("16:40:00"), drawnWith("16:40:00", {{"weather", said}})), 0);
    EXPECT_GT(differingShare(plain("16:41:00"), drawnWith("16:41:00", {{"weather", said}})), 0);
    said["image"] = glyph("clear-night");
    EXPECT_EQ(differingShare(plain("16:41:00"), drawnWith("16:41:00", {{"weather", said}})), 0);
}

TEST_F(PhoneInUse, IsNotWhatTheProtocolStarts)
{
    Program program;
    program.call("phone.start", {{"weather", weather("Partly Cloudy")}});
    program.call("clock.settle", {{"seconds", 2}});
    const auto runs = [&] { return program.call("view.get", {{"id", "_conditionLabel"}}).at("runs"); };
    EXPECT_EQ(runs(), Json::array());
    EXPECT_EQ(program.call("view.get", {{"id", "_temperatureLabel"}}).at("text"), "21");
    Json said = weather("Partly Cloudy");
    said["image"] = glyph("partly-cloudy");
    program.call("phone.start", {{"weather", said}});
    program.call("clock.settle", {{"seconds", 2}});
    EXPECT_EQ(runs().size(), 1u);
    program.call("phone.start", Json::object());
    program.call("clock.settle", {{"seconds", 2}});
    EXPECT_NE(program.call("view.get", {{"id", "_temperatureLabel"}}).at("text"), "21");
}
