// No two views of the strip lie over each other, and none beyond the screen's edge, on any screen in any presentation.
#include "Tests/EndToEnd/StripScenario.hpp"

#include <set>

namespace {

struct Screen {
    double width;
    double height;
};
constexpr Screen screens[] = {{320, 568}, {375, 812}, {390, 844}, {414, 896}, {480, 900}, {768, 1024}, {1024, 768}};

/// One drawing out of several: a gauge with its mark and the temperature in it, an outline with level and bolt, a phone
/// with a bolt, and a track with the part of it that is filled.
const std::set<std::set<std::string>> drawnTogether
    = {{"_HL", "_HLo"}, {"_HL", "_tempLabel"}, {"_HLo", "_tempLabel"}, {"_BG", "_BL"}, {"_BG", "_BC"}, {"_BL", "_BC"},
        {"_phoneImage", "_BC2"}, {"_batteryBarBackground", "_batteryBarIndicator"}};

bool showsSomething(const Support::View& view)
{
    if (!view.onScreen)
        return false;
    if (view.className == "UILabel")
        return !view.json.at("runs").empty();
    return !view.json.at("image").is_null();
}

/// What is drawn of a view. The gauge is an arc that is open below, where the day's ends stand.
Rectangle drawn(const Support::View& view)
{
    constexpr double gaugeHeight = 0.77;
    auto frame = view.frame;
    if (view.id == "_HL" || view.id == "_HLo")
        frame[3] *= gaugeHeight;
    return frame;
}

bool overlap(const Rectangle& a, const Rectangle& b)
{
    return a[0] < b[0] + b[2] && b[0] < a[0] + a[2] && a[1] < b[1] + b[3] && b[1] < a[1] + a[3];
}

bool isOnScreen(const Rectangle& frame, const Rectangle& strip, const Screen& screen)
{
    const double left = strip[0] + frame[0], above = strip[1] + frame[1];
    return frame[2] > 0 && frame[3] > 0 && left >= 0 && above >= 0 && left + frame[2] <= screen.width
        && above + frame[3] <= screen.height;
}

/// One line for each view or pair of views that does not lie as it should.
std::vector<std::string> complaints(const Support::View& strip, const Screen& screen)
{
    std::vector<std::string> lines;
    const auto complain = [&](const Support::View& view, const std::string& what) {
        lines.push_back(view.id + " " + Json(view.frame).dump() + what);
    };
    std::vector<const Support::View*> shown;
    for (const Support::View& view : strip.children) {
        if (showsSomething(view))
            shown.push_back(&view);
    }
    for (const auto* view : shown) {
        if (!isOnScreen(view->frame, strip.frame, screen))
            complain(*view, " lies beyond the screen");
        for (const auto* other : shown) {
            const bool apart = !overlap(drawn(*view), drawn(*other));
            if (view->id < other->id && !apart && !drawnTogether.contains({view->id, other->id}))
                complain(*view, " overlaps " + other->id + " " + Json(other->frame).dump());
        }
    }
    if (shown.size() < 5)
        lines.push_back("hardly anything is shown");
    return lines;
}

}

TEST(StripLayout, NothingOverlapsAndNothingLiesBeyondTheScreen)
{
    const Json event = Json::array({{{"title", "Dentist with a long name"}, {"start", "2020-11-16T09:30:00"}}});
    auto weather = sunnyWeather;
    weather["image"] = LYR_GOLDEN_FOLDER "/weather.png";
    int walks = 0;
    for (const Screen& screen : screens) {
        auto phone = settled(stripPhone()
                                 .weather(weather)
                                 .screen(screen.width, screen.height, 1)
                                 .alarm("2020-11-16T06:30:00")
                                 .events(event)
                                 .battery({{"level", 0.87}, {"state", "charging"}}));
        for (const char* weather : {"0", "1"}) {
            for (const char* battery : {"1", "2", "3"}) {
                for (const char* sun : {"1", "2", "3", "4"}) {
                    change(phone, {{"highLowOption", weather}, {"battOption", battery}, {"sunOption", sun}});
                    const Support::View strip(phone.call("view.tree", {{"id", "_widgetView"}}));
                    EXPECT_EQ(complaints(strip, screen), std::vector<std::string>())
                        << screen.width << " points, weather " << weather << ", battery " << battery << ", middle "
                        << sun;
                    ++walks;
                }
            }
        }
    }
    EXPECT_EQ(walks, 7 * 6 * 4);
}
