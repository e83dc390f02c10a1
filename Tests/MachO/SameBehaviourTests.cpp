// The phone's own library and the Linux one, put through the same days: every view, every record and every pixel.
#include "Tests/Support/Phone.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

using Support::Json;
using Support::PhoneStart;

namespace {

struct Scenario {
    const char* name;
    PhoneStart start;
    void (*script)(Phone&);
};

struct Outcome {
    std::vector<Json> trees;
    std::vector<Json> records;
    Json hooks;
    std::string picture;
};

void nothingMore(Phone&) { }

void aDayOfUse(Phone& phone)
{
    for (int i = 0; i < 3; ++i) {
        phone.call("phone.lock");
        phone.advance(600);
        phone.call("phone.wake");
        phone.settle();
        phone.call("phone.unlock");
        phone.call("phone.coverSheet");
        phone.advance(3600);
    }
}

void aTimerThatRuns(Phone& phone)
{
    phone.call("phone.timer", {{"seconds", 300}});
    phone.advance(2);
}

void settingsThatChange(Phone& phone)
{
    phone.set({{"twentyFourTime", true}, {"customFont", "3"}, {"sizeTimeLabel", "90"}, {"alignTime", "2"}});
    phone.setColours({{"colourTime", "#FF8800"}, {"colourDate", "#00FF00:0.5"}});
    phone.settle();
    phone.call("notify.post", {{"name", "com.ostrel.lyrprefs/ReloadPrefs"}});
    phone.settle();
}

void aCharge(Phone& phone)
{
    phone.call("phone.charge", {{"charging", true}});
    phone.settle();
    phone.call("phone.rotate", {{"landscape", true}});
    phone.settle();
}

PhoneStart evening(const Json& settings = Json::object())
{
    return Phone::at("2020-11-15T21:41:00").settings(settings);
}

std::vector<Scenario> scenarios()
{
    const Json weather{{"temperature", "21°"}, {"high", "24°"}, {"low", "12°"}, {"conditions", "Cloudy"},
        {"location", "Haifa"}, {"sunrise", "06:10"}, {"sunset", "16:40"}};
    const Json events = Json::array({{{"title", "Dinner"}, {"start", "2020-11-15T22:00:00"}}});
    std::vector<Scenario> list{
        {"defaults", evening(), nothingMore},
        {"a day", evening(), aDayOfUse},
        {"a timer", evening(), aTimerThatRuns},
        {"settings", evening(), settingsThatChange},
        {"charging", evening(), aCharge},
        {"switched off", evening({{"enabled", false}}), aDayOfUse},
        {"LastLook and AFont", evening().installed({"LastLook", "AFont"}), aDayOfUse},
        // Axon's class is missing everywhere else: its interceptions find nothing, and the rest works.
        {"Axon", evening({{"hideNotifHeader", true}}).installed({"Axon"}), aDayOfUse},
        {"no wallpaper", evening().withoutWallpaper(), nothingMore},
        {"Hebrew", evening({{"alternateOption", "1"}}).locale("he_IL").timeZone("Asia/Jerusalem"), nothingMore},
        {"dark tablet", evening().screen(768, 1024, 2).style("dark"), nothingMore},
        {"wallpaper colours", evening({{"enabledCT", true}, {"enabledCT2", true}, {"shadowText", true}}), nothingMore},
    };
    for (const char* option : {"1", "2", "3", "4", "5", "6", "7", "8"})
        list.push_back({"date line",
            evening({{"dateOption", option}})
                .weather(weather)
                .alarm("2020-11-16T07:00:00")
                .events(events)
                .battery({{"level", 0.5}, {"state", "charging"}}),
            nothingMore});
    return list;
}

/// A variable of the environment, for as long as this stands.
class Setting {
public:
    Setting(const char* name, const char* value)
        : _name(name)
        , _before(std::getenv(name) ? std::optional<std::string>(std::getenv(name)) : std::nullopt)
    {
        setenv(name, value, true);
    }
    ~Setting() { _before ? setenv(_name, _before->c_str(), true) : unsetenv(_name); }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

private:
    const char* _name;
    std::optional<std::string> _before;
};

bool isEmulated()
{
    return std::getenv("LYR_PHONE_PROGRAM");
}

/// The environment's LYR_PHONE_PROGRAM runs the phone's own slice where it is set, under an emulator for one.
std::string programFor(const std::string& extension)
{
    const char* program = std::getenv("LYR_PHONE_PROGRAM");
    return program && extension != LINUX_LIBRARY ? program : Support::programPath();
}

Phone startedWith(const PhoneStart& start, const char* extension)
{
    const Setting program("LYR_PROGRAM", programFor(extension).c_str());
    const Setting library("LYR_EXTENSION", extension);
    return start.start();
}

Outcome outcome(const Scenario& scenario, const char* extension)
{
    auto phone = startedWith(scenario.start, extension);
    Outcome result;
    phone.settle();
    result.trees.push_back(phone.call("view.tree"));
    scenario.script(phone);
    result.trees.push_back(phone.call("view.tree"));
    result.records = phone.takeLog();
    result.hooks = phone.call("objc.hooks");
    result.picture = phone.capture();
    EXPECT_EQ(phone.info().at("safeMode"), false) << scenario.name;
    return result;
}

}

TEST(SameBehaviour, ThePhonesLibraryDoesToTheLastByteWhatTheLinuxLibraryDoes)
{
    for (Scenario scenario : scenarios()) {
        SCOPED_TRACE(scenario.name);
        // A photo is scaled with a rounding that differs by one step between processors.
        const bool isAboutWallpaper
            = scenario.start.parameters().value("settings", Json::object()).contains("enabledCT");
        if (isEmulated() && !isAboutWallpaper)
            scenario.start.withoutWallpaper();
        const auto linux = outcome(scenario, LINUX_LIBRARY);
        const auto phones = outcome(scenario, PHONE_LIBRARY);
        EXPECT_EQ(phones.trees, linux.trees);
        EXPECT_EQ(phones.records, linux.records);
        EXPECT_EQ(phones.hooks, linux.hooks);
        if (!isEmulated() || !isAboutWallpaper)
            EXPECT_TRUE(phones.picture == linux.picture) << "the pictures differ";
        EXPECT_FALSE(linux.records.empty());
    }
}

TEST(SameBehaviour, TheLibraryForSealedSystemsFindsItsFilesUnderThePrefix)
{
    // On such a phone the prefix is a link to a folder that is laid out like the system's own.
    const Support::TemporaryFolder root;
    std::filesystem::create_directories(root.path() / "var");
    std::filesystem::create_directory_symlink("..", root.path() / "var/jb");
    const Scenario plain{"plain", evening({{"customFont", "3"}, {"dateOption", "7"}}), nothingMore};
    const Scenario sealed{"sealed", evening({{"customFont", "3"}, {"dateOption", "7"}}).root(root.path()), nothingMore};

    const auto expected = outcome(plain, PHONE_LIBRARY);
    const auto found = outcome(sealed, SEALED_LIBRARY);
    EXPECT_TRUE(found.picture == expected.picture) << "the pictures differ";
    EXPECT_FALSE(outcome(plain, SEALED_LIBRARY).picture == expected.picture) << "it found its files without the prefix";
}
