// The life of a controller and its view.
#include "Simulator/UIKit/UIViewController.hpp"

#include "Simulator/Foundation/Exceptions.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

#include <algorithm>

namespace Simulator {

UIViewController::~UIViewController()
{
    if (auto* view = standInOrNull<UIView>(m_viewObject))
        view->controller = nullptr;
    for (const UI::ViewController& child : children)
        standIn<UIViewController>(child.raw()).parent = nullptr;
}

UI::Responder UIViewController::nextResponder() const
{
    return m_viewObject.superview();
}

UI::View UIViewController::view()
{
    if (m_viewObject || m_isLoading)
        return m_viewObject;
    m_isLoading = true;
    self().send<void, "loadView">();
    m_isLoading = false;
    if (m_viewObject)
        self().send<void, "viewDidLoad">();
    return m_viewObject;
}

void UIViewController::setView(const UI::View& view)
{
    if (auto* previous = standInOrNull<UIView>(m_viewObject))
        previous->controller = nullptr;
    auto* next = standInOrNull<UIView>(view);
    m_viewObject = next ? view : UI::View();
    if (next)
        next->controller = this;
}

void UIViewController::loadView()
{
    const auto made = UI::View::make<"initWithFrame:">(CGRect{{}, screenSettings().size});
    self<UI::ViewController>().setView(made);
}

NS::Object UIViewController::traitCollection() const
{
    return currentTraits();
}

void UIViewController::beginAppearanceTransition(bool isAppearing, bool animated)
{
    const auto controller = self();
    appearance = isAppearing ? Appearance::appearing : Appearance::disappearing;
    appearanceIsAnimated = animated;
    if (isAppearing) {
        view();
        controller.send<void, "viewWillAppear:">(animated);
    } else
        controller.send<void, "viewWillDisappear:">(animated);
    for (const UI::ViewController& child : std::vector(children)) {
        if (standIn<UIViewController>(child.raw()).isViewInParent())
            child.send<void, "beginAppearanceTransition:animated:">(isAppearing, animated);
    }
}

void UIViewController::endAppearanceTransition()
{
    const auto controller = self();
    if (appearance == Appearance::appearing) {
        appearance = Appearance::appeared;
        controller.send<void, "viewDidAppear:">(appearanceIsAnimated);
    } else if (appearance == Appearance::disappearing) {
        appearance = Appearance::disappeared;
        controller.send<void, "viewDidDisappear:">(appearanceIsAnimated);
    }
    for (const UI::ViewController& child : std::vector(children))
        child.send<void, "endAppearanceTransition">();
}

bool UIViewController::isViewInParent() const
{
    return m_viewObject && parent && parent->m_viewObject
        && standIn<UIView>(m_viewObject.raw()).isOrIsInside(standIn<UIView>(parent->m_viewObject.raw()));
}

void UIViewController::viewMovedToWindow()
{
    const bool isShown = isViewInParent() && parent->appearance == Appearance::appeared
        && standIn<UIView>(m_viewObject.raw()).windowReference();
    const bool isOver = !isShown && parent && appearance == Appearance::appeared;
    if (!isOver && !(isShown && appearance == Appearance::disappeared))
        return;
    const auto controller = self();
    controller.send<void, "beginAppearanceTransition:animated:">(isShown, false);
    controller.send<void, "endAppearanceTransition">();
}

NS::Array UIViewController::childViewControllers() const
{
    auto array = NS::MutableArray::make();
    for (const UI::ViewController& child : children)
        array.addObject(child);
    return array;
}

UI::ViewController UIViewController::parentViewController() const
{
    return parent ? parent->self<UI::ViewController>() : UI::ViewController();
}

void UIViewController::addChildViewController(const UI::ViewController& child)
{
    auto* added = standInOrNull<UIViewController>(child);
    for (const UIViewController* ancestor = this; ancestor; ancestor = ancestor->parent) {
        if (ancestor == added)
            return;
    }
    if (!added || added->parent == this)
        return;
    if (isInSecureWindow() && !child.send<bool, "_canShowWhileLocked">())
        raiseException("NSInternalInconsistencyException",
            std::string(class_getName(object_getClass(child.raw())))
                + " joins a window that shows while the phone is locked, and does not say that it may");
    const auto kept = child;
    kept.willMoveToParentViewController(self<UI::ViewController>());
    added->removeFromParentViewController();
    added->parent = this;
    children.push_back(kept);
}

void UIViewController::removeFromParentViewController()
{
    if (!parent)
        return;
    const auto kept = self<UI::ViewController>();
    std::erase(std::exchange(parent, nullptr)->children, kept);
    kept.didMoveToParentViewController({});
}

static const StandInClass uiViewController("UIViewController", "UIResponder", [](Binder<UIViewController>& binder) {
    binder.init<"init", &UIViewController::init>()
        .def<"view", &UIViewController::view>()
        .def<"setView:", &UIViewController::setView>()
        .def<"viewIfLoaded", &UIViewController::viewIfLoaded>()
        .def<"isViewLoaded", &UIViewController::isViewLoaded>()
        .def<"loadViewIfNeeded", &UIViewController::loadViewIfNeeded>()
        .def<"loadView", &UIViewController::loadView>()
        .def<"viewDidLoad", &UIViewController::viewDidLoad>()
        .def<"viewWillAppear:", &UIViewController::ignoreAnimated>()
        .def<"viewDidAppear:", &UIViewController::ignoreAnimated>()
        .def<"viewWillDisappear:", &UIViewController::ignoreAnimated>()
        .def<"viewDidDisappear:", &UIViewController::ignoreAnimated>()
        .def<"viewWillLayoutSubviews", &UIViewController::ignoreNotice>()
        .def<"viewDidLayoutSubviews", &UIViewController::viewDidLayoutSubviews>()
        .def<"didReceiveMemoryWarning", &UIViewController::ignoreNotice>()
        .def<"traitCollection", &UIViewController::traitCollection>()
        .def<"traitCollectionDidChange:", &UIViewController::ignoreTraits>()
        .def<"beginAppearanceTransition:animated:", &UIViewController::beginAppearanceTransition>()
        .def<"endAppearanceTransition", &UIViewController::endAppearanceTransition>()
        .def<"childViewControllers", &UIViewController::childViewControllers>()
        .def<"parentViewController", &UIViewController::parentViewController>()
        .def<"addChildViewController:", &UIViewController::addChildViewController>()
        .def<"removeFromParentViewController", &UIViewController::removeFromParentViewController>()
        .def<"willMoveToParentViewController:", &UIViewController::ignoreParent>()
        .def<"didMoveToParentViewController:", &UIViewController::ignoreParent>()
        .def<"_canShowWhileLocked", &UIViewController::canShowWhileLocked>()
        .property<"title", "setTitle:", &UIViewController::title>()
        .property<"modalPresentationStyle", "setModalPresentationStyle:", &UIViewController::modalPresentationStyle>()
        .add();
});

}
