// Windows. One without a place of its own covers the screen.
#include "Simulator/UIKit/UIWindow.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

namespace Simulator {

void UIWindow::init()
{
    ObjC::sendMessage<id>(object(), ObjC::selector<"initWithFrame:">(), CGRect{{}, screenSettings().size});
}

void UIWindow::setRootViewController(const UI::ViewController& controller)
{
    rootViewController.view().removeFromSuperview();
    rootViewController = controller;
    const UI::View view = controller.view();
    view.setFrame(properties.bounds);
    view.send<void, "setAutoresizingMask:">(static_cast<unsigned long>(flexibleWidth | flexibleHeight));
    self<UI::View>().addSubview(view);
}

static const StandInClass uiWindow("UIWindow", "UIView", [](Binder<UIWindow>& binder) {
    binder.init<"init", &UIWindow::init>()
        .def<"makeKeyAndVisible", &UIWindow::makeKeyAndVisible>()
        .def<"setRootViewController:", &UIWindow::setRootViewController>()
        .readonly<"rootViewController", &UIWindow::rootViewController>()
        .property<"windowLevel", "setWindowLevel:", &UIWindow::windowLevel>()
        .add();
});

}
