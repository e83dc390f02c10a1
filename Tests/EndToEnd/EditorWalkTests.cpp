// A long walk without a plan: a finger, the side button and a settings pane do whatever comes to mind, and nothing of
// it may bring the phone down or the editor out of order. LYR_WALK_STEPS asks for more steps than the ordinary 2,000.
#include "Tests/EndToEnd/EditorScenario.hpp"

#include <cstdlib>
#include <deque>
#include <random>

namespace {

constexpr int ordinarySteps = 2000;
constexpr std::uint32_t seed = 20201115;
constexpr int stepsBetweenLooks = 10;
/// More than the editor and the sheets over it have together.
constexpr std::size_t editorsViews = 300;
constexpr int shellEnded = -32003;
constexpr double width = 375, height = 812;

int wantedSteps()
{
    const char* wish = std::getenv("LYR_WALK_STEPS");
    return wish && std::atoi(wish) > 0 ? std::atoi(wish) : ordinarySteps;
}

constexpr const char* controls[] = {"_done", "_timeButton", "_dateButton", "_widgetButton", "_segmentedControl",
    "_pickerView1", "_pickerView2", "_stepperView", "_stepperButton", "_alertOpen", "_alertClose", "_openFolder",
    "_colorWheel1", "_colorWheel2", "_colorWheel3", "_colorWheel4", "_colorWheel5", "_showWell", "_sliderAlpha",
    "_sliderX", "_sliderY", "_segmentAlign", "_segmentStyle", "_segmentAlt", "_segmentWidget1", "_segmentWidget2",
    "_segmentWidget3", "_buttonCL", "_buttonCL2", "colorWell", "colorWell2", "colorWell3", "colorWellDone",
    "system.colourSheet.grid", "system.colourSheet.close", "system.colourSheet.hue"};

constexpr const char* settingKeys[] = {"enabledCustom", "enabled", "showWidget", "enableTime", "enableDate",
    "colorTime", "customFont", "customFontPickerTime", "sizeTimeLabel", "sizeDateLabel", "XtimeLabel", "YtimeLabel",
    "XdateLabel", "YwidgetView", "alphaTime", "alignTime", "styleDate", "alternateOption", "highLowOption", "sunOption",
    "battOption", "dateOption", "dateFormat", "timeFormat", "useCustomFont2", "customFontPicker", "shadowText",
    "twentyFour"};

const Json settingValues[] = {true, false, true, true, "1", "2", "4", "5", "90", 3, 0, -1, "", "nonsense", "1e308",
    -1e300, "99999999999999999999", "Lato-Thin", "0.5", "EEEE", "'", "\xD7\xA9\xF0\x9F\x98\x80", 9223372036854775807};

class EditorWalk : public ::testing::Test {
protected:
    EditorWalk()
        : phone(settled(editorPhone().screen(width, height, 1)))
        , views(countViews())
    {
    }

    std::size_t below(std::size_t bound) { return random() % bound; }
    double upTo(double bound) { return bound * static_cast<double>(below(1001)) / 1000; }
    template <class T, std::size_t count>
    const T& anyOf(const T (&values)[count])
    {
        return values[below(count)];
    }
    Json anyPoint() { return {upTo(width), upTo(height)}; }

    std::size_t countViews()
    {
        const std::string tree = phone.tree().json.dump();
        std::size_t count = 0;
        for (std::size_t at = tree.find("\"onScreen\""); at != std::string::npos;
             at = tree.find("\"onScreen\"", at + 1))
            ++count;
        return count;
    }

    /// What is refused because nothing is there to be touched is no matter; the end of the shell is.
    void act(const std::string& method, const Json& parameters = Json::object())
    {
        recent.push_back(method + " " + parameters.dump());
        if (recent.size() > 40)
            recent.pop_front();
        ASSERT_NE(phone.errorCode(method, parameters), shellEnded) << story();
    }

    std::string story() const
    {
        std::string text = "at step " + std::to_string(step) + ", after:";
        for (const std::string& action : recent)
            text += "\n  " + action;
        return text;
    }

    void touch()
    {
        switch (below(6)) {
        case 0:
            return act("touch.press", {{"at", anyPoint()}, {"seconds", 0.3 + upTo(0.6)}});
        case 1:
            return act("touch.drag", {{"from", anyPoint()}, {"to", anyPoint()}, {"seconds", upTo(0.8)}});
        case 2:
            return act("touch.tap", {{"at", anyPoint()}});
        case 3:
            return act("control.set", {{"id", anyOf(controls)}, {"value", below(5)}, {"tracking", below(4) == 0}});
        case 4:
            return act("control.set", {{"id", anyOf(controls)}, {"value", below(2) ? Json("#FF800080") : Json(-1.5)}});
        default:
            return act("touch.tap", {{"id", anyOf(controls)}});
        }
    }

    void happen()
    {
        constexpr const char* events[]
            = {"phone.lock", "phone.wake", "phone.wake", "phone.unlock", "phone.coverSheet", "phone.memoryWarning"};
        switch (below(9)) {
        case 0:
            return act("phone.openApp", {{"bundle", "com.example.app"}});
        case 1:
            return act("phone.protectedData", {{"available", below(2) == 0}});
        case 2:
            return act("phone.rotate", {{"landscape", below(3) == 0}});
        case 3:
            return act("phone.charge", {{"charging", below(2) == 0}});
        case 4:
            return act("device.set",
                {{"style", below(2) ? "dark" : "light"},
                    {"battery", {{"level", upTo(1)}, {"lowPower", below(2) == 0}}}});
        default:
            return act(anyOf(events));
        }
    }

    void wander()
    {
        switch (below(10)) {
        case 0:
            return happen();
        case 1:
            return act("settings.set", {{"values", {{anyOf(settingKeys), anyOf(settingValues)}}}});
        case 2:
            return act("clock.advance", {{"seconds", upTo(3)}});
        case 3:
            // Back to where the editor can be opened.
            act("settings.set", {{"values", {{"enabledCustom", true}, {"enabled", true}}}});
            act("phone.coverSheet");
            act("phone.wake");
            return act("touch.press", {{"at", {160, 300}}, {"seconds", 0.6}});
        default:
            return touch();
        }
    }

    /// What holds whenever one looks.
    void look()
    {
        const Json info = phone.info();
        ASSERT_EQ(info.at("safeMode"), false) << story();
        ASSERT_EQ(info.at("starts"), 1) << story();
        const auto active = activeFlags(phone);
        ASSERT_LE(active.size(), 1u) << story();
        if (!active.empty()) {
            ASSERT_TRUE(phone.global("_longPress").is_null()) << story();
            ++timesEditing;
        } else {
            phone.advance(0.6);
            ASSERT_TRUE(!phone.has("_optionView") || !activeFlags(phone).empty()) << story();
        }
        constexpr const char* settingsPath = "/var/mobile/Library/Preferences/com.ostrel.lyrprefs.plist";
        const Json file = phone.call("file.read", {{"path", settingsPath}});
        ASSERT_TRUE(file.contains("plist")) << story();
        ASSERT_LT(countViews(), views + editorsViews) << story();
        phone.takeLog();
    }

    /// Done is there to be pressed: the recogniser is back at once.
    void pressDoneIfShown()
    {
        if (phone.errorCode("touch.tap", {{"id", "_done"}}) != 0 || !activeFlags(phone).empty())
            return;
        ASSERT_FALSE(phone.global("_longPress").is_null()) << story();
        ++timesDone;
    }

    Phone phone;
    std::mt19937 random{seed};
    std::deque<std::string> recent;
    std::size_t views;
    int step = 0;
    int timesEditing = 0;
    int timesDone = 0;
};

}

TEST_F(EditorWalk, LeavesThePhoneInOrder)
{
    for (const int steps = wantedSteps(); step < steps && !HasFatalFailure(); ++step) {
        wander();
        if (step % stepsBetweenLooks == 0)
            look();
        if (step % (7 * stepsBetweenLooks) == 0)
            pressDoneIfShown();
    }
    EXPECT_GT(timesEditing, 10) << "the walk has to come by the editor";
    EXPECT_GT(timesDone, 3);
    RecordProperty("timesEditing", timesEditing);
    // And after all of it the editor works as on the first day.
    phone.call("phone.rotate", {{"landscape", false}});
    phone.set({{"enabledCustom", true}, {"enabled", true}});
    for (const char* event : {"phone.lock", "phone.wake", "phone.unlock", "phone.coverSheet"}) {
        phone.call(event);
        phone.settle();
    }
    openEditor(phone);
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"}) << story();
    EXPECT_TRUE(phone.view("_optionView").onScreen);
    pressDone(phone);
    EXPECT_FALSE(phone.has("_optionView"));
}
