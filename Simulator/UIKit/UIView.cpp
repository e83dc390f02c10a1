// A view's geometry and appearance, and its registration.
#include "Simulator/UIKit/UIView.hpp"

#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Foundation/Exceptions.hpp"
#include "Simulator/QuartzCore/LayerTransaction.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/NSLayoutConstraint.hpp"
#include "Simulator/UIKit/NamedColors.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
#include "Simulator/UIKit/UIViewController.hpp"
#include "Simulator/UIKit/ViewAnimation.hpp"

#include <algorithm>

namespace Simulator {

/// A geometry that is no number ends the shell.
static void refuseUnless(bool isFinite, const UIView& view, const char* property)
{
    if (!isFinite)
        raiseException("CALayerInvalidGeometry",
            std::string(property) + " of a " + view.className() + " has a component that is no finite number");
}

UIView::~UIView()
{
    releaseConstraints(*this);
    for (const UI::GestureRecognizer& recognizer : recognizers)
        standIn<UIGestureRecognizer>(recognizer.raw()).viewReference = nullptr;
    for (const UI::View& child : children)
        standIn<UIView>(child.raw()).parent = nullptr;
    if (m_layerObject)
        standIn<CALayer>(m_layerObject.raw()).detachFromView();
}

UI::Responder UIView::nextResponder() const
{
    return controller ? controller->self<UI::Responder>() : superview();
}

void UIView::init()
{
    ObjC::sendMessage<id>(object(), ObjC::selector<"initWithFrame:">(), CGRect());
}

void UIView::initWithFrame(CGRect frame)
{
    refuseUnless(isFinite(frame), *this, "the frame");
    properties.setFrame(frame);
    addParts();
}

LayerProperties& UIView::changing()
{
    noteLayerChange(properties, object());
    return properties;
}

void UIView::setFrame(CGRect frame)
{
    refuseUnless(isFinite(frame), *this, "the frame");
    const CGSize previous = properties.bounds.size;
    changing().setFrame(frame);
    boundsChangedFrom(previous);
}

void UIView::setBounds(CGRect bounds)
{
    refuseUnless(isFinite(bounds), *this, "the bounds");
    const CGRect previous = properties.bounds;
    changing().bounds = bounds;
    needsLayout |= previous.origin != bounds.origin;
    boundsChangedFrom(previous.size);
}

void UIView::setCenter(CGPoint center)
{
    refuseUnless(isFinite(center), *this, "the center");
    changing().position = center;
}

void UIView::setTransform(CGAffineTransform transform)
{
    refuseUnless(toGraphics(transform).isFinite(), *this, "the transform");
    changing().transform = transform;
}

void UIView::setAlpha(double alpha)
{
    if (!std::isnan(alpha))
        changing().opacity = std::clamp(alpha, 0.0, 1.0);
}

UI::Color UIView::backgroundColor() const
{
    // The layer's colour may have been changed behind the view's back.
    const auto* standing = standInOrNull<UIColor>(background);
    const auto* shown = componentsOf(reinterpret_cast<CGColorRef>(properties.backgroundColor.raw()));
    if (!shown || (standing && (standing->light == *shown || standing->dark == *shown)))
        return shown ? background : UI::Color();
    return UIColor::withComponents(*shown, *shown);
}

void UIView::setBackgroundColor(const UI::Color& color)
{
    LayerProperties& changed = changing();
    background = standInOrNull<UIColor>(color) ? color : UI::Color();
    changed.backgroundColor = ObjC::Object(reinterpret_cast<id>(background.CGColor()));
}

UI::Color UIView::tintColor() const
{
    for (const UIView* view = this; view; view = view->parent) {
        if (view->tint)
            return view->tint;
    }
    return namedColor("systemBlueColor");
}

void UIView::setTintColor(const UI::Color& color)
{
    tint = standInOrNull<UIColor>(color) ? color : UI::Color();
    notifyTintChange();
}

void UIView::notifyTintChange()
{
    self().send<void, "tintColorDidChange">();
    for (const UI::View& child : std::vector(children)) {
        auto& view = standIn<UIView>(child.raw());
        if (!view.tint)
            view.notifyTintChange();
    }
}

CA::Layer UIView::layer()
{
    if (!m_layerObject) {
        m_layerObject = CA::Layer::make();
        auto& made = standIn<CALayer>(m_layerObject.raw());
        made.viewProperties = &properties;
        made.viewObject = object();
    }
    return m_layerObject;
}

const CALayer* UIView::layerIfMade() const
{
    return standInOrNull<CALayer>(m_layerObject);
}

NS::Object UIView::traitCollection() const
{
    return currentTraits();
}

static const StandInClass uiView("UIView", "UIResponder", [](Binder<UIView>& binder) {
    binder.init<"init", &UIView::init>()
        .init<"initWithFrame:", &UIView::initWithFrame>()
        .def<"frame", &UIView::frame>()
        .def<"setFrame:", &UIView::setFrame>()
        .def<"bounds", &UIView::bounds>()
        .def<"setBounds:", &UIView::setBounds>()
        .def<"center", &UIView::center>()
        .def<"setCenter:", &UIView::setCenter>()
        .def<"transform", &UIView::transform>()
        .def<"setTransform:", &UIView::setTransform>()
        .def<"isHidden", &UIView::isHidden>()
        .def<"setHidden:", &UIView::setHidden>()
        .def<"alpha", &UIView::alpha>()
        .def<"setAlpha:", &UIView::setAlpha>()
        .def<"clipsToBounds", &UIView::clipsToBounds>()
        .def<"setClipsToBounds:", &UIView::setClipsToBounds>()
        .def<"backgroundColor", &UIView::backgroundColor>()
        .def<"setBackgroundColor:", &UIView::setBackgroundColor>()
        .def<"tintColor", &UIView::tintColor>()
        .def<"setTintColor:", &UIView::setTintColor>()
        .def<"tintColorDidChange", &UIView::ignoreNotice>()
        .def<"layer", &UIView::layer>()
        .def<"traitCollection", &UIView::traitCollection>()
        .def<"traitCollectionDidChange:", &UIView::ignoreTraits>()
        .def<"superview", &UIView::superview>()
        .def<"subviews", &UIView::subviews>()
        .def<"window", &UIView::window>()
        .def<"addSubview:", &UIView::addSubview>()
        .def<"insertSubview:atIndex:", &UIView::insertSubviewAtIndex>()
        .def<"insertSubview:belowSubview:", &UIView::insertSubviewBelow>()
        .def<"insertSubview:aboveSubview:", &UIView::insertSubviewAbove>()
        .def<"removeFromSuperview", &UIView::removeFromSuperview>()
        .def<"bringSubviewToFront:", &UIView::bringSubviewToFront>()
        .def<"sendSubviewToBack:", &UIView::sendSubviewToBack>()
        .def<"exchangeSubviewAtIndex:withSubviewAtIndex:", &UIView::exchangeSubviews>()
        .def<"isDescendantOfView:", &UIView::isDescendantOfView>()
        .def<"viewWithTag:", &UIView::viewWithTag>()
        .def<"willMoveToWindow:", &UIView::ignoreView>()
        .def<"didMoveToWindow", &UIView::ignoreNotice>()
        .def<"willMoveToSuperview:", &UIView::ignoreView>()
        .def<"didMoveToSuperview", &UIView::ignoreNotice>()
        .def<"didAddSubview:", &UIView::ignoreView>()
        .def<"willRemoveSubview:", &UIView::ignoreView>()
        .def<"setNeedsLayout", &UIView::setNeedsLayout>()
        .def<"setNeedsDisplay", &UIView::ignoreNotice>()
        .def<"layoutIfNeeded", &UIView::layoutIfNeeded>()
        .def<"layoutSubviews", &UIView::layoutSubviews>()
        .def<"sizeThatFits:", &UIView::sizeThatFits>()
        .def<"sizeToFit", &UIView::sizeToFit>()
        .def<"intrinsicContentSize", &UIView::intrinsicContentSize>()
        .def<"hitTest:withEvent:", &UIView::hitTest>()
        .def<"pointInside:withEvent:", &UIView::pointInside>()
        .def<"addGestureRecognizer:", &UIView::addGestureRecognizer>()
        .def<"removeGestureRecognizer:", &UIView::removeGestureRecognizer>()
        .def<"gestureRecognizers", &UIView::gestureRecognizers>()
        .def<"leadingAnchor", &UIView::leadingAnchor>()
        .def<"trailingAnchor", &UIView::trailingAnchor>()
        .def<"topAnchor", &UIView::topAnchor>()
        .def<"bottomAnchor", &UIView::bottomAnchor>()
        .property<"translatesAutoresizingMaskIntoConstraints",
            "setTranslatesAutoresizingMaskIntoConstraints:", &UIView::translatesAutoresizingMaskIntoConstraints>()
        .classMethod<"animateWithDuration:delay:options:animations:completion:", &animateWithDelay>()
        .classMethod<"animateWithDuration:animations:completion:", &animateWithCompletion>()
        .classMethod<"animateWithDuration:animations:", &animate>()
        .classMethod<"transitionWithView:duration:options:animations:completion:", &transition>()
        .def<"convertPoint:toView:", &UIView::convertPointToView>()
        .def<"convertPoint:fromView:", &UIView::convertPointFromView>()
        .def<"convertRect:toView:", &UIView::convertRectToView>()
        .def<"convertRect:fromView:", &UIView::convertRectFromView>()
        .property<"isOpaque", "setOpaque:", &UIView::opaque>()
        .property<"isUserInteractionEnabled", "setUserInteractionEnabled:", &UIView::userInteractionEnabled>()
        .property<"tag", "setTag:", &UIView::tag>()
        .property<"contentMode", "setContentMode:", &UIView::contentMode>()
        .property<"autoresizingMask", "setAutoresizingMask:", &UIView::autoresizingMask>()
        .property<"accessibilityIdentifier", "setAccessibilityIdentifier:", &UIView::accessibilityIdentifier>()
        .add();
});

}
