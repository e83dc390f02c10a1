// UIViewController: loading, appearance, presentation.
#include "Recorder.hpp"
#include "UIKitTest.hpp"

namespace Simulator {

using Calls = std::vector<std::string>;

class ViewController : public UIKitTest {
protected:
    ViewController() { takeRecordedCalls(); }
    static UI::ViewController recordingController() { return makeOf<UI::ViewController>(recordingControllerClass()); }
};

TEST_F(ViewController, LoadsItsViewWhenFirstAskedForIt)
{
    const auto controller = recordingController();
    EXPECT_FALSE((controller.send<bool, "isViewLoaded">()));
    EXPECT_FALSE((controller.send<UI::View, "viewIfLoaded">()));
    EXPECT_TRUE(takeRecordedCalls().empty());
    const auto view = controller.view();
    EXPECT_EQ(view.frame(), CGRectMake(0, 0, 375, 812));
    EXPECT_EQ(takeRecordedCalls(), Calls{"viewDidLoad"});
    EXPECT_EQ(controller.view(), view);
    EXPECT_TRUE(takeRecordedCalls().empty());
}

TEST_F(ViewController, LoadViewMakesTheView)
{
    static UI::View* made = nullptr;
    const auto own = makeView({{1, 2}, {3, 4}});
    made = const_cast<UI::View*>(&own);
    const Class type = ObjC::ClassBuilder("LoadingController", objc_getClass("UIViewController")).build();
    class_addMethod(type, ObjC::selector<"loadView">(),
        reinterpret_cast<IMP>(+[](id self, SEL) { UI::ViewController(self).setView(*made); }), "v@:");
    EXPECT_EQ(makeOf<UI::ViewController>(type).view(), own);
}

TEST_F(ViewController, AViewThatLoadViewForgetsToMakeIsNil)
{
    const Class type = ObjC::ClassBuilder("ForgetfulController", objc_getClass("UIViewController"))
                           .method<"loadView", &recordCall>()
                           .build();
    EXPECT_FALSE(makeOf<UI::ViewController>(type).view());
}

TEST_F(ViewController, AppearanceGoesToChildrenWhoseViewsAreInIt)
{
    const auto parent = UI::ViewController::make();
    const auto child = recordingController();
    parent.addChildViewController(child);
    EXPECT_EQ(takeRecordedCalls(), Calls{"willMoveToParentViewController: something"});
    parent.view().addSubview(child.view());
    takeRecordedCalls();
    parent.send<void, "beginAppearanceTransition:animated:">(true, false);
    parent.send<void, "endAppearanceTransition">();
    EXPECT_EQ(takeRecordedCalls(), (Calls{"viewWillAppear:", "viewDidAppear:"}));
    parent.send<void, "beginAppearanceTransition:animated:">(false, false);
    parent.send<void, "endAppearanceTransition">();
    EXPECT_EQ(takeRecordedCalls(), (Calls{"viewWillDisappear:", "viewDidDisappear:"}));
}

TEST_F(ViewController, AChildAppearsWhenItsViewComesIntoAShownContainer)
{
    const auto window = makeWindow();
    const auto parent = UI::ViewController::make();
    window.addSubview(parent.view());
    parent.send<void, "beginAppearanceTransition:animated:">(true, false);
    parent.send<void, "endAppearanceTransition">();
    const auto child = recordingController();
    parent.addChildViewController(child);
    child.view();
    takeRecordedCalls();
    parent.view().addSubview(child.view());
    EXPECT_EQ(takeRecordedCalls(), (Calls{"viewWillAppear:", "viewDidAppear:"}));
    child.view().removeFromSuperview();
    EXPECT_EQ(takeRecordedCalls(), (Calls{"viewWillDisappear:", "viewDidDisappear:"}));
}

TEST_F(ViewController, AChildHasOneParent)
{
    const auto first = UI::ViewController::make(), second = UI::ViewController::make();
    const auto child = recordingController();
    first.addChildViewController(child);
    second.addChildViewController(child);
    child.addChildViewController(second);
    second.addChildViewController(second);
    second.addChildViewController({});
    EXPECT_EQ((first.send<NS::Array, "childViewControllers">().count()), 0u);
    EXPECT_EQ((second.send<NS::Array, "childViewControllers">().count()), 1u);
    EXPECT_EQ((child.send<UI::ViewController, "parentViewController">()), second);
    takeRecordedCalls();
    child.send<void, "removeFromParentViewController">();
    EXPECT_FALSE((child.send<UI::ViewController, "parentViewController">()));
    EXPECT_EQ(takeRecordedCalls(), Calls{"didMoveToParentViewController: nil"});
}

TEST_F(ViewController, TheResponderChainGoesThroughTheController)
{
    const auto outer = makeView();
    const auto controller = UI::ViewController::make();
    outer.addSubview(controller.view());
    const auto leaf = makeView();
    controller.view().addSubview(leaf);
    const auto next = [](const ObjC::Object& responder) { return responder.send<ObjC::Object, "nextResponder">(); };
    EXPECT_EQ(next(leaf), controller.view());
    EXPECT_EQ(next(controller.view()), controller);
    EXPECT_EQ(next(controller), outer);
}

TEST_F(ViewController, KeepsTheStyleThatItWasGivenForItsPresentation)
{
    const auto controller = UI::ViewController::make();
    const auto style = [&] { return controller.send<UI::ModalPresentationStyle, "modalPresentationStyle">(); };
    EXPECT_EQ(style(), UI::ModalPresentationStyle::fullScreen);
    controller.setModalPresentationStyle(UI::ModalPresentationStyle::formSheet);
    EXPECT_EQ(style(), UI::ModalPresentationStyle::formSheet);
}

TEST_F(ViewController, AViewOutlivesItsController)
{
    auto controller = UI::ViewController::make();
    const auto view = controller.view();
    controller = {};
    pool.reset();
    EXPECT_FALSE((view.send<ObjC::Object, "nextResponder">()));
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIViewController"), 0);
}

}
