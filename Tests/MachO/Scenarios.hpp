// Days of a phone that the phone's own library and the Linux one are both put through.
#pragma once

#include "Tests/EndToEnd/EditorScenario.hpp"
#include "Tests/EndToEnd/StripScenario.hpp"

#include <functional>

/// To be called wherever the phone is to be compared as it stands.
using Look = std::function<void()>;

struct Scenario {
    std::string name;
    Support::PhoneStart start;
    void (*script)(Phone&, const Look&);
    /// Whether the wallpaper matters; for the others an emulated phone goes without.
    bool isAboutWallpaper = false;
};

inline void PrintTo(const Scenario& scenario, std::ostream* stream)
{
    *stream << scenario.name;
}

namespace Scripts {

inline void nothingMore(Phone&, const Look&) { }

inline void aDayOfUse(Phone& phone, const Look& look)
{
    for (int i = 0; i < 3; ++i) {
        phone.call("phone.lock");
        phone.advance(600);
        phone.call("phone.wake");
        phone.settle();
        look();
        phone.call("phone.unlock");
        phone.call("phone.coverSheet");
        phone.advance(3600);
    }
}

inline void aTimerThatRuns(Phone& phone, const Look&)
{
    phone.call("phone.timer", {{"seconds", 300}});
    phone.advance(2);
}

inline void settingsThatChange(Phone& phone, const Look&)
{
    phone.set({{"twentyFourTime", true}, {"customFont", "3"}, {"sizeTimeLabel", "90"}, {"alignTime", "2"}});
    phone.setColours({{"colourTime", "#FF8800"}, {"colourDate", "#00FF00:0.5"}});
    phone.settle();
    postReload(phone);
    refresh(phone);
}

inline void aCharge(Phone& phone, const Look& look)
{
    phone.call("phone.charge", {{"charging", true}});
    phone.settle();
    look();
    phone.call("phone.rotate", {{"landscape", true}});
    phone.settle();
}

/// Every way of showing the weather, the day's other item and the battery.
inline void everyStrip(Phone& phone, const Look& look)
{
    for (const char* weather : {"0", "1"}) {
        for (const char* option : {"1", "2", "3", "4"}) {
            change(phone, {{"highLowOption", weather}, {"battOption", option}, {"sunOption", option}});
            look();
        }
    }
}

inline void aBatteryThatRunsLow(Phone& phone, const Look& look)
{
    for (double level : {0.9, 0.21, 0.05}) {
        setDevice(phone, {{"battery", {{"level", level}, {"lowPower", level < 0.1}}}});
        look();
    }
}

inline void everyPanel(Phone& phone, const Look& look)
{
    openEditor(phone);
    look();
    for (const EditorTab& tab : editorTabs) {
        for (std::size_t segment = 0; segment < tab.segments.size(); ++segment) {
            phone.send(coverSheet, tab.action, {nullptr});
            phone.setControl("_segmentedControl", segment);
            phone.settle(1);
            look();
        }
    }
    pressDone(phone);
}

inline void everyControl(Phone& phone, const Look& look)
{
    openEditor(phone);
    const std::pair<int, std::vector<std::pair<const char*, Json>>> panels[]
        = {{fontSegment, {{"_pickerView1", 3}, {"_stepperView", 55}}}, {colourSegment, {{"_sliderAlpha", 0.4}}},
            {positionSegment, {{"_sliderX", 20}, {"_sliderY", -15}, {"_segmentAlign", 2}}},
            {dateOptionSegment, {{"_pickerView2", 2}, {"_segmentStyle", 1}, {"_segmentAlt", 1}}}};
    for (const auto& [segment, controls] : panels) {
        phone.send(coverSheet, dateTab.action, {nullptr});
        phone.setControl("_segmentedControl", segment);
        for (const auto& [control, value] : controls) {
            phone.setControl(control, value);
            phone.settle(1);
            look();
        }
    }
    pressDone(phone);
}

inline void everyWell(Phone& phone, const Look& look)
{
    openEditor(phone);
    for (const EditorTab& tab : editorTabs) {
        phone.send(coverSheet, tab.action, {nullptr});
        phone.setControl("_segmentedControl", colourSegment);
        phone.settle(1);
        for (const char* well : {"_colorWheel1", "_colorWheel2", "_colorWheel3", "_colorWheel4", "_colorWheel5"}) {
            phone.tap(well);
            phone.settle(1);
            look();
        }
    }
    pressDone(phone);
}

inline void theColourSheet(Phone& phone, const Look& look)
{
    openEditor(phone);
    phone.setControl("_segmentedControl", colourSegment);
    phone.tap("_showWell");
    phone.settle(1);
    look();
    for (const char* well : {"colorWell", "colorWell2", "colorWell3"}) {
        phone.setControl(well, "#336699FF");
        phone.settle(1);
        look();
    }
    phone.tap("colorWellDone");
    phone.advance(1);
    pressDone(phone);
}

inline void theFontNotice(Phone& phone, const Look& look)
{
    openEditor(phone);
    phone.tap("_alertOpen");
    phone.settle(1);
    look();
    phone.tap("_openFolder");
    phone.advance(2);
}

inline void aLockInTheMiddle(Phone& phone, const Look& look)
{
    openEditor(phone);
    phone.tap("_dateButton");
    phone.advance(0.1);
    phone.call("phone.lock");
    phone.advance(1);
    phone.call("phone.wake");
    phone.settle();
    look();
    openEditor(phone);
}

}

inline std::vector<Scenario> scenarios()
{
    using namespace Scripts;
    const Json events = Json::array({{{"title", "Dinner"}, {"start", "2020-11-15T22:00:00"}}});
    const std::string wallpaper = std::string(LYR_GOLDEN_FOLDER) + "/wallpaper.jpg";
    std::vector<Scenario> list{
        {"Defaults", eveningPhone(), nothingMore},
        {"Day", eveningPhone(), aDayOfUse},
        {"Timer", eveningPhone(), aTimerThatRuns},
        {"Settings", eveningPhone(), settingsThatChange},
        {"Charging", eveningPhone(), aCharge},
        {"SwitchedOff", eveningPhone({{"enabled", false}}), aDayOfUse},
        {"OtherExtensions", eveningPhone().installed({"LastLook", "AFont"}), aDayOfUse},
        // Axon's class is missing everywhere else: its interceptions find nothing, and the rest works.
        {"Axon", eveningPhone({{"hideNotifHeader", true}}).installed({"Axon"}), aDayOfUse},
        {"NoWallpaper", eveningPhone().withoutWallpaper(), nothingMore},
        {"Hebrew", eveningPhone({{"alternateOption", "1"}}).locale("he_IL").timeZone("Asia/Jerusalem"), nothingMore},
        {"DarkTablet", eveningPhone().screen(768, 1024, 2).style("dark"), nothingMore},
        {"WallpaperColours", eveningPhone({{"enabledCT", true}, {"enabledCT2", true}, {"shadowText", true}}),
            nothingMore, true},
        {"EveryStrip", stripPhone().alarm("2020-11-16T06:30:00").events(events), everyStrip},
        {"RunningLow", stripPhone({{"battOption", "3"}}), aBatteryThatRunsLow},
        {"EveryPanel", editorPhone().weather(sunnyWeather), everyPanel},
        {"EveryPanelOfANarrowPhone", editorPhone().screen(320, 568, 2).languages({"ja"}), everyPanel},
        {"EveryControl", editorPhone({{"enabledCustom", true}}), everyControl},
        {"EveryWell", editorPhone().wallpaper(wallpaper), everyWell, true},
        {"ColourSheet", editorPhone().style("dark"), theColourSheet},
        {"FontNotice", editorPhone().installed({"Filza"}), theFontNotice},
        {"LockInTheEditor", editorPhone(), aLockInTheMiddle},
    };
    for (const char* option : {"1", "2", "3", "4", "5", "6", "7", "8"})
        list.push_back({std::string("DateLine") + option,
            eveningPhone({{"dateOption", option}})
                .weather(sunnyWeather)
                .alarm("2020-11-16T07:00:00")
                .events(events)
                .battery({{"level", 0.5}, {"state", "charging"}}),
            nothingMore});
    return list;
}
