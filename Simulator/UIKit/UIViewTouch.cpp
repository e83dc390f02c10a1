// What a touch means to a view: whether it is inside, which view gets it, and the recognisers that watch it.
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/NSLayoutConstraint.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <ranges>

namespace Simulator {

/// What can hardly be seen cannot be touched.
static constexpr double leastTouchableAlpha = 0.01;

bool UIView::pointInside(CGPoint point, const NS::Object&) const
{
    const CGRect area = properties.bounds;
    return point.x >= area.origin.x && point.y >= area.origin.y && point.x < area.origin.x + area.size.width
        && point.y < area.origin.y + area.size.height;
}

UI::View UIView::hitTest(CGPoint point, const NS::Object& event) const
{
    const auto view = self<UI::View>();
    if (!userInteractionEnabled || isHidden() || alpha() < leastTouchableAlpha
        || !view.send<bool, "pointInside:withEvent:">(point, event))
        return {};
    for (const UI::View& child : std::views::reverse(std::vector(children))) {
        // What is shrunk to nothing has no points.
        const auto& inner = standIn<UIView>(child.raw());
        if (!toGraphics(inner.transform()).inverted())
            continue;
        if (UI::View hit = child.send<UI::View, "hitTest:withEvent:">(inner.convertPointFromView(point, view), event))
            return hit;
    }
    return view;
}

void UIView::addGestureRecognizer(const UI::GestureRecognizer& recognizer)
{
    auto* added = standInOrNull<UIGestureRecognizer>(recognizer);
    if (!added || added->viewReference == this)
        return;
    const auto kept = recognizer;
    if (added->viewReference)
        added->viewReference->removeGestureRecognizer(kept);
    added->viewReference = this;
    recognizers.push_back(kept);
}

void UIView::removeGestureRecognizer(const UI::GestureRecognizer& recognizer)
{
    auto* removed = standInOrNull<UIGestureRecognizer>(recognizer);
    if (!removed || removed->viewReference != this)
        return;
    const auto kept = recognizer;
    removed->viewReference = nullptr;
    std::erase(recognizers, kept);
}

NS::Array UIView::gestureRecognizers() const
{
    auto array = NS::MutableArray::make();
    for (const UI::GestureRecognizer& recognizer : recognizers)
        array.addObject(recognizer);
    return array;
}

NS::LayoutAnchor UIView::leadingAnchor() const
{
    return makeAnchor(self<UI::View>(), LayoutEdge::leading);
}

NS::LayoutAnchor UIView::trailingAnchor() const
{
    return makeAnchor(self<UI::View>(), LayoutEdge::trailing);
}

NS::LayoutAnchor UIView::topAnchor() const
{
    return makeAnchor(self<UI::View>(), LayoutEdge::top);
}

NS::LayoutAnchor UIView::bottomAnchor() const
{
    return makeAnchor(self<UI::View>(), LayoutEdge::bottom);
}

}
