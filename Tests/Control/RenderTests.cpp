// `lyr render` up to the phone: the fake phone's picture says what it was started with.
#include "Simulator/Control/PropertyList.hpp"
#include "Tests/Graphics/SamplePictures.hpp"
#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Support;
using namespace std::chrono_literals;
using Simulator::Control::propertyListXml;

namespace {

const std::string settingsOnPhone = "/var/mobile/Library/Preferences/com.ostrel.lyrprefs.plist";
const std::string coloursOnPhone = "/var/mobile/Library/Preferences/com.ostrel.colorslyr.plist";

/// The host's time, so far east of UTC.
std::string timeInZone(std::chrono::hours east)
{
    const std::time_t moment = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now() + east);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", std::gmtime(&moment));
    return text;
}

class Render : public testing::Test {
protected:
    Finished render(std::vector<std::string> options)
    {
        std::vector<std::string> arguments{"render", "-o", folder.at("lock.png")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return runProgram(arguments);
    }

    /// The parameters of `phone.start` that the options lead to.
    Json startedWith(std::vector<std::string> options)
    {
        const Finished finished = render(std::move(options));
        EXPECT_EQ(finished.status, 0) << finished.errors;
        EXPECT_EQ(finished.output, folder.at("lock.png") + "\n");
        EXPECT_EQ(finished.errors, "");
        return Json::parse(folder.read("lock.png"))["parameters"];
    }

    void expectFailure(std::vector<std::string> options, const std::string& message)
    {
        const Finished finished = render(std::move(options));
        EXPECT_EQ(finished.status, 1);
        EXPECT_EQ(finished.output, "");
        EXPECT_EQ(finished.errors, "lyr: " + message + "\n");
        EXPECT_FALSE(folder.has("lock.png"));
    }

    TemporaryFolder folder;
};

}

TEST_F(Render, StartsAPhoneWithWhatTheOptionsSay)
{
    EXPECT_EQ(startedWith({"--bare", "--screen", "414x896@2", "--time", "2020-11-15T21:41:00", "--time-zone",
                  "Asia/Jerusalem", "--locale", "he_IL", "--language", "he", "--language", "en", "--style", "dark",
                  "--system", "15.0"}),
        Json::parse(R"({"clock":"virtual","screen":{"width":414,"height":896,"scale":2},"time":"2020-11-15T21:41:00",
            "timeZone":"Asia/Jerusalem","locale":"he_IL","languages":["he","en"],"style":"dark","system":"15.0"})"));
}

TEST_F(Render, StartsAPhoneInUse)
{
    Json started = startedWith({"--time", "2020-11-15T21:41:00"});
    const std::string image = started["weather"].value("image", "");
    EXPECT_TRUE(image.ends_with("/share/lyr/Weather/partly-cloudy-night.png")) << image;
    started["weather"].erase("image");
    EXPECT_EQ(started, Json::parse(R"({"clock": "virtual",
        "time": "2020-11-15T21:41:00", "battery": {"level": 0.87, "state": "unplugged"}, "alarm": "2020-11-16T06:30:00",
        "weather": {"temperature": "21°", "high": "24°", "low": "15°", "conditions": "Partly Cloudy",
            "location": "Haifa", "sunrise": "6:12", "sunset": "16:41"},
        "events": [{"title": "Dentist", "start": "2020-11-16T09:30:00", "allDay": false}]})"));
}

TEST_F(Render, StartsABarePhoneWhereItIsAskedFor)
{
    EXPECT_EQ(startedWith({"--bare"}), Json::parse(R"({"clock":"virtual"})"));
}

TEST_F(Render, HasItsAlarmAndItsEventAheadOfTheTime)
{
    const std::tuple<const char*, const char*, const char*> days[] = {
        {"2020-11-15T06:29:59", "2020-11-15T06:30:00", "2020-11-15T09:30:00"},
        {"2020-11-15T06:30:00", "2020-11-16T06:30:00", "2020-11-15T09:30:00"},
        {"2020-02-28T09:30:00", "2020-02-29T06:30:00", "2020-02-29T09:30:00"},
        {"2020-12-31T23:59:59", "2021-01-01T06:30:00", "2021-01-01T09:30:00"},
        {"9999-12-31T21:41:00", "9999-12-31T23:59:59", "9999-12-31T23:59:59"},
    };
    for (const auto& [time, alarm, event] : days) {
        const Json started = startedWith({"--time", time});
        EXPECT_EQ(started["alarm"], alarm) << time;
        EXPECT_EQ(started["events"][0]["start"], event) << time;
    }
}

TEST_F(Render, HasThemAheadOfTheHostsClockWithoutATime)
{
    constexpr std::chrono::hours day{24};
    for (const auto& [zone, east] : {std::pair("UTC", 0h), std::pair("Pacific/Kiritimati", 14h)}) {
        const std::string before = timeInZone(east);
        const Json started = startedWith({"--time-zone", zone});
        for (const Json& ahead : {started["alarm"], started["events"][0]["start"]}) {
            EXPECT_GT(ahead, before) << zone;
            EXPECT_LE(ahead, timeInZone(east + day)) << zone;
        }
    }
}

TEST_F(Render, TakesTheDevicesFileForAllOfIt)
{
    EXPECT_EQ(startedWith({"--device", folder.put("d.json", "{}")}), Json::parse(R"({"clock":"virtual"})"));
}

TEST_F(Render, PutsPropertyListsOnThePhoneAsTheyAre)
{
    const std::string settings = folder.put("s.plist", propertyListXml({{"timeFormat", Json::array({1})}}));
    const std::string colours = folder.put("c.plist", propertyListXml({{"colourTime", "#fff"}}));
    EXPECT_EQ(startedWith({"--settings", settings, "--colours", colours})["files"],
        Json({{settingsOnPhone, settings}, {coloursOnPhone, colours}}));
}

TEST_F(Render, TakesSettingsInJson)
{
    const std::string settings = folder.put("s.json", "\n {\"enabled\": true, \"timeFormat\": [1, {\"a\": \"b\"}]}");
    EXPECT_TRUE(startedWith({"--settings", settings})["files"].contains(settingsOnPhone));
}

TEST_F(Render, PassesOnWallpaperFontsAndDevice)
{
    using namespace Simulator::Graphics::Samples;
    const auto picture = jpeg(8, 8, quarters(8, 8));
    const std::string wallpaper = folder.put("w.jpg", {reinterpret_cast<const char*>(picture.data()), picture.size()});
    const std::string font = "/usr/share/fonts/truetype/lato/Lato-Bold.ttf";
    const std::string other = "/usr/share/fonts/truetype/lato/Lato-Black.ttf";
    const std::string device = folder.put("d.json", R"({"battery":{"level":0.5},"alarm":null,"style":"light"})");
    EXPECT_EQ(
        startedWith({"--wallpaper", wallpaper, "--font", font, "--font", other, "--device", device, "--style", "dark"}),
        Json({{"clock", "virtual"}, {"wallpaper", wallpaper}, {"fonts", {font, other}}, {"battery", {{"level", 0.5}}},
            {"alarm", nullptr}, {"style", "dark"}}));
}

TEST_F(Render, GivesWeatherWithoutAnImageThePictureOfItsConditions)
{
    const auto imageOf = [this](const Json& weather) {
        const std::string device = folder.put("d.json", Json{{"weather", weather}}.dump());
        return startedWith({"--device", device})["weather"].value("image", "");
    };
    const std::string rain = imageOf({{"conditions", "Rain"}});
    EXPECT_TRUE(rain.ends_with("/share/lyr/Weather/rain.png")) << rain;
    EXPECT_EQ(imageOf({{"conditions", "Snow"}, {"image", rain}}), rain);
    EXPECT_EQ(imageOf({{"conditions", "Frogs"}}), "");
    EXPECT_EQ(startedWith({"--device", folder.put("d.json", R"({"weather": null})")})["weather"], Json());
}

TEST_F(Render, StartsTheTimerOfTheDevicesFile)
{
    const std::string device = folder.put("d.json", R"({"timer": 300, "battery": {"level": 0.5}})");
    EXPECT_EQ(startedWith({"--device", device}), Json({{"clock", "virtual"}, {"battery", {{"level", 0.5}}}}));
    EXPECT_EQ(Json::parse(folder.read("lock.png"))["timer"], 300);
}

TEST_F(Render, LeavesNothingBesideThePicture)
{
    startedWith({});
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST_F(Render, RefusesSettingsThatAreNeitherPropertyListNorJson)
{
    const std::string path = folder.put("s.txt", "enabled = yes");
    expectFailure({"--settings", path},
        path + ": neither a property list (XML or binary) with a dictionary nor JSON with an object");
}

TEST_F(Render, NamesWhatIsWrongWithAFile)
{
    const std::string null = folder.put("null.json", R"({"a": null})");
    expectFailure({"--settings", null},
        null + ": parameter \"settings.a\" takes a value without null and without NUL in a text, not null");
    const std::string device = folder.put("d.json", R"({"battery": {"level": 5}})");
    expectFailure({"--device", device},
        device + ": parameter \"device.battery.level\" takes a number from -1 to 1 or null, not 5");
    const std::string timer = folder.put("t.json", R"({"timer": "soon"})");
    expectFailure(
        {"--device", timer}, timer + ": parameter \"device.timer\" takes a number from 0 to 86400, not \"soon\"");
    const std::string png = folder.put("w.png", "\x89PNG");
    expectFailure({"--wallpaper", png}, png + ": not a JPEG");
    expectFailure(
        {"--colours", "/none.plist"}, "/none.plist: cannot be read; an existing file that is not empty is needed");
    expectFailure({"--font", "/none.ttf"},
        "parameter \"fonts[0]\" takes the host path of a font file that exists, not \"/none.ttf\"");
}

TEST_F(Render, KeepsAnOldPictureWhenItFails)
{
    folder.put("lock.png", "old");
    EXPECT_EQ(render({"--font", "/none.ttf"}).status, 1);
    EXPECT_EQ(folder.read("lock.png"), "old");
}

TEST_F(Render, TakesNoPictureWhereItCannotBeWritten)
{
    mkfifo(folder.at("pipe").c_str(), 0600);
    folder.put("mine.png", "kept");
    chmod(folder.at("mine.png").c_str(), 0444);
    for (const auto& [path, why] :
        {std::pair{std::string("/none/lock.png"), "a file name in a folder that exists is needed"},
            std::pair{folder.at("pipe"), "nobody reads from this pipe"},
            std::pair{folder.at("mine.png"), "it is read-only"}, std::pair{folder.path().string(), "it is a folder"}}) {
        const Finished finished = runProgram({"render", "-o", path});
        EXPECT_EQ(finished.status, 1);
        EXPECT_EQ(finished.output, "");
        EXPECT_EQ(finished.errors, "lyr: " + path + ": cannot be written: " + why + "\n");
    }
    EXPECT_EQ(folder.read("mine.png"), "kept");
}

TEST_F(Render, ReplacesWhatALinkLeadsTo)
{
    std::filesystem::create_symlink("target.png", folder.at("link.png"));
    EXPECT_EQ(runProgram({"render", "-o", folder.at("link.png")}).status, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.at("link.png")));
    EXPECT_TRUE(Json::accept(folder.read("target.png")));
}

TEST_F(Render, FillsAPipe)
{
    mkfifo(folder.at("pipe").c_str(), 0600);
    const int reader = open(folder.at("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(runProgram({"render", "-o", folder.at("pipe")}).status, 0);
    std::string picture(65536, '\0');
    const auto length = read(reader, picture.data(), picture.size());
    close(reader);
    ASSERT_GT(length, 0);
    EXPECT_TRUE(Json::accept(picture.substr(0, static_cast<std::size_t>(length))));
}

TEST_F(Render, TellsWhenADeviceIsFullAndLeavesIt)
{
    // Whoever may replace the system's own device is given another.
    std::string device = "/dev/full";
    constexpr unsigned memoryDevices = 1, full = 7;
    if (access("/dev", W_OK) == 0) {
        device = folder.at("full");
        if (mknod(device.c_str(), S_IFCHR | 0666, makedev(memoryDevices, full)) != 0)
            GTEST_SKIP() << "no devices can be made here";
    }
    const Finished finished = runProgram({"render", "-o", device});
    EXPECT_EQ(finished.status, 1);
    EXPECT_EQ(finished.errors, "lyr: " + device + ": cannot be written: No space left on device\n");
    EXPECT_TRUE(std::filesystem::is_character_file(device));
}

TEST(RenderOutput, IsThePictureAndNothingElseOnStandardOutput)
{
    const Finished finished = runProgram({"render", "-o", "/dev/stdout"});
    EXPECT_EQ(finished.status, 0);
    EXPECT_TRUE(Json::accept(finished.output)) << finished.output;
    EXPECT_NE(finished.output.back(), '\n');
}

TEST_F(Render, DrawsWithoutStandardStreams)
{
    for (const char* closed : {"<&-", ">&-", "2>&-", "<&- >&- 2>&-"}) {
        const std::string command = programPath() + " render -o " + folder.at("lock.png") + " " + closed;
        EXPECT_EQ(std::system(command.c_str()), 0) << closed;
        EXPECT_TRUE(Json::accept(folder.read("lock.png"))) << closed;
        std::filesystem::remove(folder.at("lock.png"));
    }
}
