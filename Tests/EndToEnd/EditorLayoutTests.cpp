// Where the editor's controls lie: on every panel, segment, screen and appearance each is on the panel, apart from the
// others, and shows its text to the end.
#include "Tests/EndToEnd/EditorScenario.hpp"

#include <set>

namespace {

using Support::View;

struct Screen {
    double width, height;
};

const Screen screens[]
    = {{320, 568}, {375, 667}, {375, 812}, {390, 844}, {414, 896}, {768, 1024}, {1024, 768}, {834, 1194}, {1366, 1024}};

void PrintTo(const Screen& screen, std::ostream* stream)
{
    *stream << screen.width << "x" << screen.height;
}

/// One over the other by design: the opacity's strip on its pattern, with its thumb.
const std::set<std::string> strip = {"_alphaCheckBoard", "_alphaView", "_sliderAlpha"};

bool lieApart(const Rectangle& one, const Rectangle& other)
{
    return one[0] + one[2] <= other[0] || other[0] + other[2] <= one[0] || one[1] + one[3] <= other[1]
        || other[1] + other[3] <= one[1];
}

bool isTruncated(const View& view)
{
    return view.json.value("truncated", false);
}

/// A text that shrinks must stay readable.
void expectReadable(Phone& phone, const View& label)
{
    if (label.json.value("lines", 0) != 1 || label.id.empty())
        return;
    const Json wanted = phone.send({{"id", label.id}}, "sizeThatFits:", {{0, 0}});
    EXPECT_LE(wanted.at(0), label.frame[2] * 1.2) << label.id << " shrinks too much";
}

class EditorLayout : public ::testing::TestWithParam<Screen> {
protected:
    /// The part of the panel that the screen shows, in the panel's coordinates.
    static Rectangle shownPart(const View& panel)
    {
        const double outside = std::max(0.0, -panel.frame[0]);
        return {outside, 0, panel.frame[2] - 2 * outside, panel.frame[3]};
    }

    static void expectGoodOrder(Phone& phone, const View& panel)
    {
        const Rectangle area = shownPart(panel);
        std::vector<View> shown;
        std::copy_if(panel.children.begin(), panel.children.end(), std::back_inserter(shown),
            [](const View& view) { return !view.hidden; });
        EXPECT_GE(shown.size(), 4u);
        for (std::size_t i = 0; i < shown.size(); ++i) {
            const View& view = shown[i];
            const auto& [x, y, width, height] = view.frame;
            EXPECT_TRUE(x >= area[0] && y >= 0 && x + width <= area[0] + area[2] && y + height <= area[3])
                << view.id << " lies outside the panel";
            EXPECT_GT(width * height, 0) << view.id;
            EXPECT_FALSE(isTruncated(view)) << view.id;
            expectReadable(phone, view);
            for (const View& part : view.children)
                EXPECT_FALSE(isTruncated(part)) << "in " << view.id << ": " << part.json.value("text", "");
            for (std::size_t j = 0; j < i; ++j) {
                const bool isStrip = strip.contains(view.id) && strip.contains(shown[j].id);
                EXPECT_TRUE(isStrip || lieApart(view.frame, shown[j].frame)) << view.id << " over " << shown[j].id;
            }
        }
    }
};

View panelOf(Phone& phone)
{
    return View(phone.call("view.tree", {{"id", "_optionView"}}));
}

const Json weather = {{"temperature", "21°"}, {"high", "24"}, {"low", "15"}, {"conditions", "Partly Cloudy"},
    {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}};

}

TEST_P(EditorLayout, EachControlLiesOnThePanelApartFromTheOthersAndIsWhole)
{
    for (const char* style : {"light", "dark"}) {
        auto phone
            = editing(eveningPhone().screen(GetParam().width, GetParam().height, 1).style(style).weather(weather));
        for (const EditorTab& tab : editorTabs) {
            for (int segment = 0; segment < static_cast<int>(tab.segments.size()); ++segment) {
                choose(phone, tab, segment);
                SCOPED_TRACE(tab.button + (" " + tab.segments[segment]) + " " + style);
                expectGoodOrder(phone, panelOf(phone));
            }
        }
    }
}

TEST_P(EditorLayout, TheNoticeIsWhole)
{
    auto phone = editing(editorPhone().screen(GetParam().width, GetParam().height, 1));
    phone.send(coverSheet, "showAlert:", {nullptr});
    const View panel = panelOf(phone);
    const View* notice = panel.find("_alertView");
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->frame, shownPart(panel));
    for (const View& view : notice->children) {
        const auto& [x, y, width, height] = view.frame;
        EXPECT_TRUE(x >= 0 && y >= 0 && x + width <= notice->frame[2] && y + height <= notice->frame[3]) << view.id;
        EXPECT_FALSE(isTruncated(view)) << view.id;
        for (const View& other : notice->children)
            EXPECT_TRUE(&view == &other || lieApart(view.frame, other.frame)) << view.id << " over " << other.id;
    }
}

TEST_P(EditorLayout, TheColourSheetIsOnTheScreenAndWhole)
{
    auto phone = editing(editorPhone().screen(GetParam().width, GetParam().height, 1));
    choose(phone, timeTab, colourSegment);
    phone.tap("_showWell");
    phone.settle(1);
    const View sheet(phone.call("view.tree", {{"id", "colorWellView"}}));
    const View done = phone.view("colorWellDone");
    EXPECT_GE(sheet.frame[0], 0);
    EXPECT_LE(sheet.frame[0] + sheet.frame[2], GetParam().width);
    EXPECT_EQ(done.frame[0] + done.frame[2], sheet.frame[0] + sheet.frame[2]) << "at the panel's right edge";
    EXPECT_EQ(sheet.children.size(), 9u);
    for (const View& view : sheet.children) {
        const auto& [x, y, width, height] = view.frame;
        EXPECT_TRUE(x >= 0 && y >= 0 && x + width <= sheet.frame[2] && y + height <= sheet.frame[3]) << view.id;
        EXPECT_FALSE(isTruncated(view)) << view.json.value("text", "");
        for (const View& other : sheet.children)
            EXPECT_TRUE(&view == &other || lieApart(view.frame, other.frame)) << view.id << " over " << other.id;
    }
}

TEST_P(EditorLayout, TheButtonsAboveThePanelReadToTheirEnds)
{
    auto phone = editing(editorPhone().screen(GetParam().width, GetParam().height, 1));
    for (const char* id : {"_timeButton", "_dateButton", "_widgetButton", "_done"}) {
        const View button(phone.call("view.tree", {{"id", id}}));
        for (const View& part : button.children)
            EXPECT_FALSE(isTruncated(part) && !part.hidden) << id;
    }
    // On the narrowest screens the last tab lies over a part of Done, but not over its title.
    const View done(phone.call("view.tree", {{"id", "_done"}}));
    const auto tab = phone.view("_widgetButton").frame;
    for (const View& part : done.children) {
        if (part.className == "UILabel") {
            EXPECT_GE(done.frame[0] + part.frame[0], tab[0] + tab[2]);
            EXPECT_LE(part.frame[0] + part.frame[2], done.frame[2]);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, EditorLayout, testing::ValuesIn(screens), [](const auto& screen) {
    return std::to_string(static_cast<int>(screen.param.width)) + "x"
        + std::to_string(static_cast<int>(screen.param.height));
});

TEST(EditorLayout, TheTwoOffsetsTracksAreOneAboveTheOther)
{
    auto phone = editing();
    choose(phone, timeTab, positionSegment);
    const auto trackOf = [&phone](const char* slider) {
        Json rectangle = phone.send({{"id", slider}}, "trackRectForBounds:", {phone.view(slider).bounds});
        rectangle[0] = rectangle[0].get<double>() + phone.view(slider).frame[0];
        return std::pair(rectangle[0].get<double>(), rectangle[2].get<double>());
    };
    EXPECT_EQ(trackOf("_sliderX"), trackOf("_sliderY"));
}
