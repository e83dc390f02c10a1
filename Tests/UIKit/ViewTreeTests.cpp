// Views that are put into each other and taken out.
#include "Recorder.hpp"
#include "UIKitTest.hpp"

namespace Simulator {

using Calls = std::vector<std::string>;

class ViewTree : public UIKitTest {
protected:
    ViewTree() { takeRecordedCalls(); }
    static UI::View recordingView() { return makeOf<UI::View>(recordingViewClass()); }
};

TEST_F(ViewTree, InitGoesThroughInitWithFrameByMessage)
{
    const Class counting = ObjC::ClassBuilder("FrameWatchingView", objc_getClass("UIView"))
                               .method<"didMoveToWindow", &recordCall>()
                               .build();
    static IMP stock = class_getMethodImplementation(objc_getClass("UIView"), ObjC::selector<"initWithFrame:">());
    const auto watch = +[](id self, SEL selector, CGRect frame) -> id {
        recordedCalls().emplace_back(sel_getName(selector));
        return reinterpret_cast<id (*)(id, SEL, CGRect)>(stock)(self, selector, frame);
    };
    class_addMethod(counting, ObjC::selector<"initWithFrame:">(), reinterpret_cast<IMP>(watch),
        "@@:{CGRect={CGPoint=dd}{CGSize=dd}}");
    const auto view = makeOf<UI::View>(counting);
    EXPECT_EQ(takeRecordedCalls(), Calls{"initWithFrame:"});
    EXPECT_EQ(view.frame(), CGRect());
}

TEST_F(ViewTree, SubviewsStandInTheOrderOfTheirInsertion)
{
    const auto root = makeView();
    const auto a = makeView(), b = makeView(), c = makeView(), d = makeView();
    root.addSubview(a);
    root.addSubview(b);
    root.insertSubviewAtIndex(c, 0);
    root.send<void, "insertSubview:belowSubview:">(d, b);
    const auto order = [&] { return viewOf(root).children; };
    EXPECT_EQ(order(), (std::vector{c, a, d, b}));
    root.send<void, "insertSubview:aboveSubview:">(c, a);
    EXPECT_EQ(order(), (std::vector{a, c, d, b}));
    root.send<void, "bringSubviewToFront:">(a);
    root.send<void, "sendSubviewToBack:">(b);
    EXPECT_EQ(order(), (std::vector{b, c, d, a}));
    root.send<void, "exchangeSubviewAtIndex:withSubviewAtIndex:">(0L, 3L);
    EXPECT_EQ(order(), (std::vector{a, c, d, b}));
    root.insertSubviewAtIndex(a, 100);
    root.insertSubviewAtIndex(b, -100);
    EXPECT_EQ(order(), (std::vector{b, c, d, a}));
    EXPECT_EQ(root.subviews().count(), 4u);
    EXPECT_EQ(root.subviews().at<UI::View>(3), a);
}

TEST_F(ViewTree, AViewHasOneSuperview)
{
    const auto first = makeView(), second = makeView(), child = makeView();
    first.addSubview(child);
    second.addSubview(child);
    EXPECT_EQ(first.subviews().count(), 0u);
    EXPECT_EQ(child.superview(), second);
    EXPECT_TRUE((child.send<bool, "isDescendantOfView:">(second)));
    EXPECT_TRUE((child.send<bool, "isDescendantOfView:">(child)));
    EXPECT_FALSE((child.send<bool, "isDescendantOfView:">(first)));
}

TEST_F(ViewTree, AViewNeverComesIntoItself)
{
    const auto outer = makeView(), inner = makeView();
    outer.addSubview(inner);
    inner.addSubview(outer);
    outer.addSubview(outer);
    EXPECT_FALSE(outer.superview());
    EXPECT_EQ(inner.superview(), outer);
}

TEST_F(ViewTree, WhatIsNoViewIsNotAdded)
{
    const auto root = makeView();
    root.addSubview({});
    root.addSubview(UI::View("text"_ns.raw()));
    root.send<void, "bringSubviewToFront:">(makeView());
    root.send<void, "exchangeSubviewAtIndex:withSubviewAtIndex:">(-1L, 5L);
    EXPECT_EQ(root.subviews().count(), 0u);
}

TEST_F(ViewTree, MovingIntoAWindowIsToldInThePhonesOrder)
{
    const auto window = makeWindow();
    const auto view = recordingView();
    window.addSubview(view);
    EXPECT_EQ(takeRecordedCalls(),
        (Calls{
            "willMoveToWindow: something", "willMoveToSuperview: something", "didMoveToWindow", "didMoveToSuperview"}));
    EXPECT_EQ(view.window(), window);
    EXPECT_EQ(window.window(), window);
    view.removeFromSuperview();
    EXPECT_EQ(takeRecordedCalls(),
        (Calls{"willMoveToWindow: nil", "willMoveToSuperview: nil", "didMoveToWindow", "didMoveToSuperview"}));
    EXPECT_FALSE(view.window());
}

TEST_F(ViewTree, AWholeBranchHearsOfItsWindow)
{
    const auto window = makeWindow();
    const auto parent = makeView();
    const auto view = recordingView();
    parent.addSubview(view);
    takeRecordedCalls();
    window.addSubview(parent);
    EXPECT_EQ(takeRecordedCalls(), (Calls{"willMoveToWindow: something", "didMoveToWindow"}));
}

TEST_F(ViewTree, ASuperviewHearsOfItsSubviews)
{
    const auto parent = recordingView();
    const auto child = makeView();
    parent.addSubview(child);
    child.removeFromSuperview();
    EXPECT_EQ(takeRecordedCalls(), (Calls{"didAddSubview: something", "willRemoveSubview: something"}));
}

TEST_F(ViewTree, TintComesFromTheNearestAncestorThatHasOne)
{
    const auto root = makeView(), middle = makeView();
    const auto leaf = recordingView();
    root.addSubview(middle);
    middle.addSubview(leaf);
    takeRecordedCalls();
    EXPECT_EQ(leaf.tintColor(), (UI::Color::sendClass<UI::Color, "systemBlueColor">()));
    root.setTintColor(UI::Color::blackColor());
    EXPECT_EQ(leaf.tintColor(), UI::Color::blackColor());
    EXPECT_EQ(takeRecordedCalls(), Calls{"tintColorDidChange"});
    leaf.setTintColor(UI::Color::whiteColor());
    EXPECT_EQ(leaf.tintColor(), UI::Color::whiteColor());
    EXPECT_EQ(middle.tintColor(), UI::Color::blackColor());
}

TEST_F(ViewTree, AViewIsFoundByItsTag)
{
    const auto root = makeView(), child = makeView();
    root.addSubview(child);
    child.send<void, "setTag:">(42L);
    EXPECT_EQ((root.send<UI::View, "viewWithTag:">(42L)), child);
    EXPECT_FALSE((root.send<UI::View, "viewWithTag:">(43L)));
}

TEST_F(ViewTree, ViewsDieWithTheirTreeAndNotBefore)
{
    pool.emplace();
    const long before = StandInRegistry::shared().liveCount("UIView");
    {
        auto root = makeView();
        {
            const auto child = makeView();
            root.addSubview(child);
            child.addSubview(makeView());
        }
        EXPECT_EQ(StandInRegistry::shared().liveCount("UIView"), before + 3);
        const auto survivor = viewOf(root).children[0];
        root = {};
        pool.reset();
        EXPECT_EQ(StandInRegistry::shared().liveCount("UIView"), before + 2);
        EXPECT_FALSE(survivor.superview());
    }
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIView"), before);
}

TEST_F(ViewTree, AReleasedViewStaysWhileItIsRemoved)
{
    const auto root = makeView();
    root.addSubview(makeView());
    viewOf(viewOf(root).children[0]).removeFromSuperview();
    EXPECT_EQ(root.subviews().count(), 0u);
}

TEST_F(ViewTree, AppearanceChangesAreToldToTheWholeWindow)
{
    const auto window = makeWindow();
    window.addSubview(recordingView());
    takeRecordedCalls();
    changeInterfaceStyle(windowOf(window), InterfaceStyle::dark);
    changeInterfaceStyle(windowOf(window), InterfaceStyle::dark);
    EXPECT_EQ(takeRecordedCalls(), Calls{"traitCollectionDidChange: something"});
    EXPECT_EQ((window.send<NS::Object, "traitCollection">().send<long, "userInterfaceStyle">()), 2);
}

}
