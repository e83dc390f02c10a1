// Layout: sizes that follow the superview, the passes through the tree, and coordinates of one view in another.
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/NSLayoutConstraint.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

#include <array>

namespace Simulator {

namespace {

/// A view that asks for layout each time it is laid out would never be done.
constexpr int mostPasses = 16;

/// One axis of a frame in its superview: the margin before, the length, the margin after.
struct Axis {
    double before;
    double length;
    double after;

    /// The flexible ones of the three share a change in proportion to what they are.
    void stretch(double change, std::array<bool, 3> flexible)
    {
        const std::array<double*, 3> parts = {&before, &length, &after};
        double total = 0;
        int count = 0;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            total += flexible[i] ? *parts[i] : 0;
            count += flexible[i];
        }
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (flexible[i])
                *parts[i] += total > 0 ? change * *parts[i] / total : change / count;
        }
    }
};

void layOut(const UI::View& object)
{
    auto& view = standIn<UIView>(object.raw());
    view.needsLayout = false;
    const auto controller = view.controller ? view.controller->self() : ObjC::Object();
    controller.send<void, "viewWillLayoutSubviews">();
    object.send<void, "layoutSubviews">();
    for (const UI::View& child : std::vector(view.children))
        applyConstraints(standIn<UIView>(child.raw()));
    controller.send<void, "viewDidLayoutSubviews">();
}

/// Whether any view needed it.
bool layoutPass(const UI::View& object)
{
    auto& view = standIn<UIView>(object.raw());
    bool didLayout = view.needsLayout;
    if (view.needsLayout)
        layOut(object);
    for (const UI::View& child : std::vector(view.children))
        didLayout |= layoutPass(child);
    return didLayout;
}

}

void layoutTree(UIView& root)
{
    const auto kept = root.self<UI::View>();
    for (int pass = 0; pass < mostPasses && layoutPass(kept); ++pass) { }
}

void UIView::layoutIfNeeded()
{
    UIView* top = this;
    while (top->parent && top->parent->needsLayout)
        top = top->parent;
    layoutTree(*top);
}

void UIView::boundsChangedFrom(CGSize previous)
{
    const CGSize current = properties.bounds.size;
    if (previous == current)
        return;
    needsLayout = true;
    for (const UI::View& child : std::vector(children))
        standIn<UIView>(child.raw()).followSuperviewSize(previous, current);
}

void UIView::followSuperviewSize(CGSize previous, CGSize current)
{
    if (!autoresizingMask)
        return;
    const CGRect old = frame();
    Axis across{old.origin.x, old.size.width, previous.width - old.origin.x - old.size.width};
    Axis down{old.origin.y, old.size.height, previous.height - old.origin.y - old.size.height};
    const auto has = [this](Autoresizing part) { return (autoresizingMask & part) != 0; };
    across.stretch(
        current.width - previous.width, {has(flexibleLeftMargin), has(flexibleWidth), has(flexibleRightMargin)});
    down.stretch(
        current.height - previous.height, {has(flexibleTopMargin), has(flexibleHeight), has(flexibleBottomMargin)});
    const CGRect followed{{across.before, down.before}, {across.length, down.length}};
    if (followed != old)
        self<UI::View>().setFrame(followed);
}

void UIView::sizeToFit()
{
    const auto view = self<UI::View>();
    const CGSize size = view.send<CGSize, "sizeThatFits:">(properties.bounds.size);
    if (transform() == CGAffineTransformIdentity)
        view.setFrame({frame().origin, size});
    else
        view.setBounds({properties.bounds.origin, size});
}

Graphics::AffineTransform UIView::transformToRoot() const
{
    Graphics::AffineTransform result;
    for (const UIView* view = this; view; view = view->parent) {
        const LayerProperties& layer = view->properties;
        const auto center = toGraphics(layer.bounds).center();
        result = result.concat(Graphics::AffineTransform::translation(-center.x, -center.y))
                     .concat(toGraphics(layer.transform))
                     .concat(Graphics::AffineTransform::translation(layer.position.x, layer.position.y));
    }
    return result;
}

/// From one view's coordinates to another's; null stands for the top of the other's tree.
static Graphics::AffineTransform between(const UIView* from, const UIView* to)
{
    const auto up = from ? from->transformToRoot() : Graphics::AffineTransform();
    const auto down = to ? to->transformToRoot().inverted() : Graphics::AffineTransform();
    return down ? up.concat(*down) : up;
}

static CGPoint converted(CGPoint point, const Graphics::AffineTransform& transform)
{
    const auto result = transform.apply(Graphics::Point{point.x, point.y});
    return {result.x, result.y};
}

CGPoint UIView::convertPointToView(CGPoint point, const UI::View& view) const
{
    return converted(point, between(this, standInOrNull<UIView>(view)));
}

CGPoint UIView::convertPointFromView(CGPoint point, const UI::View& view) const
{
    return converted(point, between(standInOrNull<UIView>(view), this));
}

CGRect UIView::convertRectToView(CGRect rect, const UI::View& view) const
{
    return fromGraphics(between(this, standInOrNull<UIView>(view)).apply(toGraphics(rect)));
}

CGRect UIView::convertRectFromView(CGRect rect, const UI::View& view) const
{
    return fromGraphics(between(standInOrNull<UIView>(view), this).apply(toGraphics(rect)));
}

}
