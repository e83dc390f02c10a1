// When views are laid out, and in which order.
#include "Recorder.hpp"
#include "UIKitTest.hpp"

namespace Simulator {

using Calls = std::vector<std::string>;

class ViewLayout : public UIKitTest {
protected:
    ViewLayout() { takeRecordedCalls(); }
};

TEST_F(ViewLayout, ANewViewIsLaidOutOnce)
{
    const auto view = makeOf<UI::View>(recordingViewClass());
    view.layoutIfNeeded();
    view.layoutIfNeeded();
    EXPECT_EQ(takeRecordedCalls(), Calls{"layoutSubviews"});
    view.setNeedsLayout();
    EXPECT_TRUE(takeRecordedCalls().empty());
    view.layoutIfNeeded();
    EXPECT_EQ(takeRecordedCalls(), Calls{"layoutSubviews"});
}

TEST_F(ViewLayout, ANewSizeAsksForLayoutAndANewPlaceDoesNot)
{
    const auto view = makeOf<UI::View>(recordingViewClass());
    view.layoutIfNeeded();
    takeRecordedCalls();
    view.setFrame({{50, 50}, {0, 0}});
    view.layoutIfNeeded();
    EXPECT_TRUE(takeRecordedCalls().empty());
    view.setFrame({{50, 50}, {1, 0}});
    view.layoutIfNeeded();
    EXPECT_EQ(takeRecordedCalls(), Calls{"layoutSubviews"});
}

TEST_F(ViewLayout, AControllerIsToldBeforeAndAfterItsViewsLayout)
{
    const auto controller = makeOf<UI::ViewController>(recordingControllerClass());
    const auto view = makeOf<UI::View>(recordingViewClass());
    controller.setView(view);
    view.layoutIfNeeded();
    EXPECT_EQ(takeRecordedCalls(), (Calls{"viewWillLayoutSubviews", "layoutSubviews", "viewDidLayoutSubviews"}));
}

TEST_F(ViewLayout, LayoutBeginsAtTheHighestAncestorThatNeedsIt)
{
    const auto parent = makeOf<UI::View>(recordingViewClass());
    const auto child = makeView();
    parent.addSubview(child);
    takeRecordedCalls();
    child.layoutIfNeeded();
    EXPECT_EQ(takeRecordedCalls(), Calls{"layoutSubviews"});
}

TEST_F(ViewLayout, AViewThatAlwaysAsksAgainDoesNotHang)
{
    static int count = 0;
    const auto insist = [](UI::View self, SEL) {
        ++count;
        self.setNeedsLayout();
    };
    static constexpr auto function = static_cast<void (*)(UI::View, SEL)>(insist);
    const Class type = ObjC::ClassBuilder("InsistingView", objc_getClass("UIView")).build();
    class_addMethod(type, ObjC::selector<"layoutSubviews">(),
        reinterpret_cast<IMP>(+[](id self, SEL selector) { function(UI::View(self), selector); }), "v@:");
    makeOf<UI::View>(type).layoutIfNeeded();
    EXPECT_GE(count, 1);
    EXPECT_LE(count, 100);
}

struct Resizing {
    unsigned long mask;
    CGRect expected;
};

class AutoresizingLayout : public ViewLayout, public ::testing::WithParamInterface<Resizing> { };

TEST_P(AutoresizingLayout, FollowsTheSuperviewsSize)
{
    const auto parent = makeView({{0, 0}, {100, 100}});
    const auto child = makeView({{20, 20}, {60, 60}});
    parent.addSubview(child);
    child.send<void, "setAutoresizingMask:">(GetParam().mask);
    parent.setFrame({{0, 0}, {200, 150}});
    EXPECT_EQ(child.frame(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Masks, AutoresizingLayout,
    ::testing::Values(Resizing{0, {{20, 20}, {60, 60}}},
        Resizing{flexibleWidth | flexibleHeight, {{20, 20}, {160, 110}}},
        Resizing{flexibleLeftMargin | flexibleTopMargin, {{120, 70}, {60, 60}}},
        Resizing{flexibleLeftMargin | flexibleRightMargin, {{70, 20}, {60, 60}}},
        Resizing{flexibleLeftMargin | flexibleWidth | flexibleRightMargin, {{40, 20}, {120, 60}}},
        Resizing{flexibleRightMargin | flexibleBottomMargin, {{20, 20}, {60, 60}}}));

TEST_F(ViewLayout, AViewOfNoWidthGrowsFromNothing)
{
    const auto parent = makeView();
    const auto child = makeView();
    parent.addSubview(child);
    child.send<void, "setAutoresizingMask:">(static_cast<unsigned long>(flexibleWidth | flexibleHeight));
    parent.setFrame({{0, 0}, {200, 150}});
    EXPECT_EQ(child.frame(), CGRectMake(0, 0, 200, 150));
}

TEST_F(ViewLayout, AWindowCoversTheScreenAndItsRootViewToo)
{
    const auto window = makeWindow();
    EXPECT_EQ(window.frame(), CGRectMake(0, 0, 375, 812));
    const auto controller = UI::ViewController::make();
    window.send<void, "setRootViewController:">(controller);
    window.setFrame({{0, 0}, {812, 375}});
    EXPECT_EQ(controller.view().frame(), CGRectMake(0, 0, 812, 375));
    EXPECT_EQ(controller.view().window(), window);
}

}
