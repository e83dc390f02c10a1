// A finger on the stock lock screen, and on controls put there by hand.
#include "Tests/EndToEnd/Scenario.hpp"

namespace {

constexpr int badParameters = -32602;
constexpr int notFound = -32002;

class Touch : public ::testing::Test {
protected:
    Touch()
        : phone(eveningPhone().withoutExtension().start())
    {
    }
    /// A new view of the class on the cover sheet, under that id.
    Json put(const std::string& className, const std::string& id, const Rectangle& frame)
    {
        phone.call("objc.new", {{"class", className}, {"name", id}});
        const Json view{{"named", id}};
        phone.send(view, "setFrame:", {frame});
        phone.send(view, "setAccessibilityIdentifier:", Json::array({id}));
        phone.send({{"id", "stock.coverSheet"}}, "addSubview:", Json::array({view}));
        return view;
    }
    /// Takes the view away when the control sends the event.
    void removeAt(const Json& control, const std::string& id, int event)
    {
        phone.send(control, "addTarget:action:forControlEvents:", {{{"id", id}}, "removeFromSuperview", event});
    }
    int errorOf(const std::string& method, const Json& parameters) { return phone.errorCode(method, parameters); }

    Phone phone;
    static constexpr int touchUpInside = 1 << 6;
    static constexpr int valueChanged = 1 << 12;
};

TEST_F(Touch, ATapOperatesWhatIsUnderIt)
{
    const Json button = put("UIButton", "button", {100, 300, 100, 40});
    put("UIView", "goes", {0, 0, 10, 10});
    removeAt(button, "goes", touchUpInside);
    phone.tapAt(50, 320);
    EXPECT_TRUE(phone.has("goes"));
    phone.tapAt(150, 320);
    EXPECT_FALSE(phone.has("goes"));
}

TEST_F(Touch, ATapOnAViewTouchesItsMiddleAndWhatCoversIt)
{
    const Json button = put("UIButton", "button", {100, 300, 100, 40});
    put("UIView", "goes", {0, 0, 10, 10});
    removeAt(button, "goes", touchUpInside);
    put("UIView", "cover", {140, 310, 20, 20});
    phone.tap("button");
    EXPECT_TRUE(phone.has("goes"));
    phone.send({{"named", "cover"}}, "removeFromSuperview");
    phone.tap("button");
    EXPECT_FALSE(phone.has("goes"));
}

TEST_F(Touch, APressTakesItsTime)
{
    EXPECT_EQ(phone.errorCode("touch.press", {{"at", {180, 400}}, {"seconds", 90}}), badParameters);
    phone.pressAt(180, 400, 60);
    EXPECT_EQ(phone.info().at("time"), "2020-11-15T21:42:00");
}

TEST_F(Touch, ALongPressIsRecognisedOnTheLockScreen)
{
    phone.call("objc.new", {{"class", "UILongPressGestureRecognizer"}, {"name", "press"}});
    phone.send({{"named", "press"}}, "addTarget:action:", {{{"id", "stock.padlock"}}, "removeFromSuperview"});
    phone.send({{"id", "stock.coverSheet"}}, "addGestureRecognizer:", Json::array({{{"named", "press"}}}));
    phone.pressAt(180, 400, 0.4);
    phone.drag({180, 400}, {180, 420}, 0.6);
    EXPECT_TRUE(phone.has("stock.padlock"));
    phone.pressAt(180, 400);
    EXPECT_FALSE(phone.has("stock.padlock"));
}

TEST_F(Touch, ADragMovesASlider)
{
    const Json slider = put("UISlider", "slider", {50, 300, 228, 34});
    phone.send(slider, "setMaximumValue:", {200});
    phone.drag({64, 317}, {164, 317});
    EXPECT_EQ(phone.range("slider").value, 100);
    EXPECT_EQ(phone.range("slider").maximum, 200);
}

TEST_F(Touch, AFingerCanBeMovedStepByStep)
{
    const Json slider = put("UISlider", "slider", {50, 300, 228, 34});
    phone.down(64, 317);
    EXPECT_EQ(phone.send(slider, "isTracking"), true);
    phone.move(114, 317);
    EXPECT_EQ(phone.range("slider").value, 0.25);
    phone.up(164, 317);
    EXPECT_EQ(phone.send(slider, "isTracking"), false);
}

TEST_F(Touch, SaysWhatIsWrongWithATouch)
{
    put("UIView", "hidden", {0, 0, 10, 10});
    phone.send({{"named", "hidden"}}, "setHidden:", {true});
    EXPECT_EQ(errorOf("touch.tap", {{"id", "nothing"}}), notFound);
    EXPECT_EQ(errorOf("touch.tap", {{"id", "hidden"}}), badParameters);
    EXPECT_EQ(errorOf("touch.tap", Json::object()), badParameters);
    EXPECT_EQ(errorOf("touch.tap", {{"id", "stock.padlock"}, {"at", {1, 2}}}), badParameters);
    EXPECT_EQ(errorOf("touch.tap", {{"at", {1}}}), badParameters);
    EXPECT_EQ(errorOf("touch.tap", {{"at", {"x", 2}}}), badParameters);
    EXPECT_EQ(errorOf("touch.drag", {{"from", {1, 2}}}), badParameters);
    EXPECT_EQ(errorOf("touch.move", {{"at", {1, 2}}}), badParameters);
    EXPECT_EQ(errorOf("touch.up", {{"at", {1, 2}}}), badParameters);
    phone.down(10, 10);
    EXPECT_EQ(errorOf("touch.down", {{"at", {1, 2}}}), badParameters);
    EXPECT_EQ(errorOf("touch.tap", {{"at", {1, 2}}}), badParameters);
    phone.up(10, 10);
    phone.tapAt(-500, 5000);
}

TEST_F(Touch, SettingAControlSendsItsActions)
{
    const Json slider = put("UISlider", "slider", {50, 300, 228, 34});
    put("UIView", "goes", {0, 0, 10, 10});
    removeAt(slider, "goes", valueChanged);
    phone.setControl("slider", 0.5);
    EXPECT_EQ(phone.range("slider").value, 0.5);
    EXPECT_FALSE(phone.has("goes"));
    phone.trackControl("slider", 0.75);
    EXPECT_EQ(phone.send(slider, "isTracking"), true);
    phone.setControl("slider", 0.75);
    EXPECT_EQ(phone.send(slider, "isTracking"), false);
}

TEST_F(Touch, EachControlTakesItsKindOfValue)
{
    put("UIStepper", "stepper", {50, 200, 0, 0});
    const Json segments = put("UISegmentedControl", "segments", {50, 300, 200, 32});
    for (const char* title : {"One", "Two"})
        phone.send(segments, "insertSegmentWithTitle:atIndex:animated:", {{{"text", title}}, 9, false});
    put("UIColorWell", "well", {50, 400, 40, 40});
    phone.setControl("stepper", 42);
    phone.setControl("segments", 1);
    phone.setControl("well", "#FF8000FF");
    EXPECT_EQ(phone.range("stepper").value, 42);
    EXPECT_EQ(phone.range("stepper").step, 1);
    EXPECT_EQ(phone.segments("segments").segments, (std::vector<std::string>{"One", "Two"}));
    EXPECT_EQ(phone.segments("segments").selected, 1);
    EXPECT_EQ(phone.colourWell("well").selected, "#FF8000FF");
}

TEST_F(Touch, SaysWhatIsWrongWithAControlsValue)
{
    put("UISlider", "slider", {50, 300, 228, 34});
    put("UISegmentedControl", "segments", {50, 300, 200, 32});
    put("UIColorWell", "well", {50, 400, 40, 40});
    put("UIPickerView", "picker", {50, 450, 200, 216});
    const auto errorOfValue = [this](const std::string& id, const Json& value) {
        return errorOf("control.set", {{"id", id}, {"value", value}});
    };
    EXPECT_EQ(errorOfValue("nothing", 1), notFound);
    EXPECT_EQ(errorOfValue("stock.padlock", 1), badParameters);
    EXPECT_EQ(errorOfValue("slider", 2), badParameters);
    EXPECT_EQ(errorOfValue("slider", "0.5"), badParameters);
    EXPECT_EQ(errorOfValue("segments", 0), badParameters);
    EXPECT_EQ(errorOfValue("well", "red"), badParameters);
    EXPECT_EQ(errorOfValue("well", 5), badParameters);
    EXPECT_EQ(errorOfValue("picker", 0), badParameters);
    EXPECT_EQ(errorOf("control.set", {{"id", "slider"}}), badParameters);
    EXPECT_EQ(phone.range("slider").value, 0);
    EXPECT_EQ(phone.picker("picker").rows, 0);
    EXPECT_EQ(phone.picker("picker").selected, -1);
}

TEST_F(Touch, AColourIsChosenOnTheSystemsSheet)
{
    put("UIColorWell", "well", {50, 100, 40, 40});
    phone.tap("well");
    const auto grid = phone.view("system.colourSheet.grid");
    ASSERT_TRUE(grid.onScreen);
    phone.tap("system.colourSheet.grid");
    EXPECT_NE(phone.colourWell("well").selected, std::nullopt);
    phone.tap("system.colourSheet.close");
    EXPECT_FALSE(phone.has("system.colourSheet"));
}

TEST_F(Touch, ADarkScreenTakesNoTouch)
{
    const Json button = put("UIButton", "button", {100, 300, 100, 40});
    put("UIView", "goes", {0, 0, 10, 10});
    removeAt(button, "goes", touchUpInside);
    phone.call("phone.lock");
    phone.tapAt(150, 320);
    EXPECT_TRUE(phone.has("goes"));
    phone.call("phone.wake");
    phone.tapAt(150, 320);
    EXPECT_FALSE(phone.has("goes"));
}

}
