// The editor in a user's hands: it opens, its panels are chosen, and what it asks of the phone is read off the log.
#pragma once

#include "Tests/EndToEnd/Scenario.hpp"

#include <algorithm>

inline const Json coverSheet = {{"instance", "CSCoverSheetViewController"}};
inline const std::string coloursPath = "/var/mobile/Library/Preferences/com.ostrel.colorslyr.plist";
inline const std::string settingsNotification = "com.ostrel.lyrprefs/ReloadPrefs";
inline const std::string coloursNotification = "com.ostrel.colorslyr/ReloadPrefs";

constexpr int clickSound = 1104;
constexpr int tapSound = 1519;

/// A phone with a colour file, so that colours can be stored; without a wallpaper, which takes time to read.
inline Support::PhoneStart editorPhone(const Json& settings = Json::object())
{
    return eveningPhone(settings).colours(Json::object()).withoutWallpaper();
}

/// Gives the settings pages to the shell, as root has them on a phone.
inline void givePages(Phone& phone)
{
    for (const char* page : {"subTime", "subDate", "subWidget"}) {
        const std::string path = std::string("/Library/PreferenceBundles/LYRPrefs.bundle/") + page + ".plist";
        const Json file = phone.call("file.read", {{"path", path}});
        phone.call("file.write", {{"path", path}, {"base64", file.at("base64")}, {"owner", "mobile"}});
    }
}

/// The phone with its editor open; the log tells only what follows.
inline Phone editing(const Support::PhoneStart& start = editorPhone())
{
    auto phone = settled(start);
    openEditor(phone);
    phone.takeLog();
    return phone;
}

struct EditorTab {
    const char* button;
    const char* action;
    const char* flag;
    /// As the segments of the panel are titled.
    std::vector<std::string> segments;
};

inline const EditorTab timeTab{"_timeButton", "timePressButton:", "_timePress", {"Font", "Color", "Position"}};
inline const EditorTab dateTab{
    "_dateButton", "datePressButton:", "_datePress", {"Font", "Color", "Position", "Date Option"}};
inline const EditorTab widgetTab{
    "_widgetButton", "widgetPressButton:", "_widgetPress", {"Widget Option", "Color", "Position"}};
inline const EditorTab editorTabs[] = {timeTab, dateTab, widgetTab};

constexpr int fontSegment = 0, widgetOptionSegment = 0, colourSegment = 1, positionSegment = 2, dateOptionSegment = 3;

/// Chooses a tab, wherever its button is, and a segment of its panel; the log tells only what follows.
inline void choose(Phone& phone, const EditorTab& tab, int segment)
{
    phone.send(coverSheet, tab.action, {nullptr});
    phone.setControl("_segmentedControl", segment);
    phone.settle(1);
    phone.takeLog();
}

inline void pressDone(Phone& phone)
{
    phone.tap("_done");
    phone.advance(1);
}

/// Which of the three panels are the active ones; there is one at most.
inline std::vector<std::string> activeFlags(Phone& phone)
{
    std::vector<std::string> active;
    for (const EditorTab& tab : editorTabs) {
        if (phone.global(tab.flag) == true)
            active.push_back(tab.flag);
    }
    return active;
}

/// The log in short: "sound 1519", "set alphaTime = 0.500000", "write …", "post …", in order. What refreshes leave
/// in it is no affair of the editor's.
inline std::vector<std::string> journalOf(const std::vector<Json>& records)
{
    std::vector<std::string> journal;
    for (const Json& record : records) {
        const std::string kind = record.at("kind");
        const auto text = [&record](const char* key) {
            const Json& value = record.at(key);
            return value.is_string() ? value.get<std::string>() : value.dump();
        };
        if (kind == "sound")
            journal.push_back("sound " + text("id"));
        else if (kind == "setting")
            journal.push_back("set " + text("key") + " = " + record.at("value").dump());
        else if (kind == "fileWrite")
            journal.push_back("write " + text("path"));
        else if (kind == "notification")
            journal.push_back("post " + text("name"));
        else if (kind == "idleTimer")
            journal.push_back("idle timer: " + text("action") + " " + text("reason"));
        else if (kind == "animation")
            journal.push_back("animation " + text("duration") + " " + text("delay") + " " + text("options"));
        else if (kind == "batterySaver")
            journal.push_back("battery saver " + text("mode"));
        else if (kind == "homeButton")
            journal.push_back("home button");
        else if (kind == "openURL")
            journal.push_back("open " + text("url"));
    }
    return journal;
}

inline std::vector<std::string> takeJournal(Phone& phone)
{
    return journalOf(phone.takeLog());
}

using Journal = std::vector<std::string>;

/// Whether a full refresh comes within a second.
inline bool refreshes(Phone& phone)
{
    phone.send({{"id", "_timeLabel"}}, "setText:", Json::array({{{"text", "blot"}}}));
    phone.settle(1);
    return phone.label("_timeLabel").text != "blot";
}
