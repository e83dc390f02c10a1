// The tree of views: who is in whom, and the notices that a change of it sends.
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/UIViewController.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

#include <algorithm>

namespace Simulator {

namespace {

void announceWindow(const UI::View& view, const UI::View& window)
{
    view.send<void, "willMoveToWindow:">(window);
    for (const UI::View& child : std::vector(standIn<UIView>(view.raw()).children))
        announceWindow(child, window);
}

void reportWindow(const UI::View& view)
{
    auto& moved = standIn<UIView>(view.raw());
    view.send<void, "didMoveToWindow">();
    if (moved.controller)
        moved.controller->viewMovedToWindow();
    for (const UI::View& child : std::vector(moved.children))
        reportWindow(child);
}

}

NS::Array UIView::subviews() const
{
    auto array = NS::MutableArray::make();
    for (const UI::View& child : children)
        array.addObject(child);
    return array;
}

UIWindow* UIView::windowReference() const
{
    const UIView* top = this;
    while (top->parent)
        top = top->parent;
    return dynamic_cast<UIWindow*>(const_cast<UIView*>(top));
}

UI::View UIView::window() const
{
    const UIWindow* found = windowReference();
    return found ? found->self<UI::View>() : UI::View();
}

bool UIView::isOrIsInside(const UIView& other) const
{
    for (const UIView* view = this; view; view = view->parent) {
        if (view == &other)
            return true;
    }
    return false;
}

bool UIView::isDescendantOfView(const UI::View& view) const
{
    const auto* other = standInOrNull<UIView>(view);
    return other && isOrIsInside(*other);
}

UI::View UIView::viewWithTag(long wanted) const
{
    if (tag == wanted)
        return self<UI::View>();
    for (const UI::View& child : children) {
        if (UI::View found = standIn<UIView>(child.raw()).viewWithTag(wanted))
            return found;
    }
    return {};
}

std::optional<std::size_t> UIView::indexOf(const UI::View& view) const
{
    const auto found = std::ranges::find(children, view);
    return found == children.end() ? std::nullopt : std::optional(std::size_t(found - children.begin()));
}

/// Takes the view out of its superview without a word about windows.
void UIView::detach()
{
    if (!parent)
        return;
    const auto kept = self<UI::View>();
    parent->self().send<void, "willRemoveSubview:">(kept);
    if (!parent)
        return;
    std::erase(parent->children, kept);
    parent->needsLayout = true;
    parent = nullptr;
}

void UIView::insert(const UI::View& view, std::size_t index)
{
    auto* child = standInOrNull<UIView>(view);
    if (!child || isOrIsInside(*child))
        return;
    if (const auto present = indexOf(view)) {
        const auto kept = view;
        children.erase(children.begin() + *present);
        children.insert(children.begin() + std::min(index, children.size()), kept);
        return;
    }
    const auto kept = view;
    const auto keptSelf = self<UI::View>();
    const bool changesWindow = child->windowReference() != windowReference();
    if (changesWindow)
        announceWindow(kept, window());
    kept.send<void, "willMoveToSuperview:">(keptSelf);
    child->detach();
    // Whoever was told may have changed the tree.
    if (child->parent || isOrIsInside(*child))
        return;
    children.insert(children.begin() + std::min(index, children.size()), kept);
    child->parent = this;
    needsLayout = true;
    if (changesWindow)
        reportWindow(kept);
    kept.send<void, "didMoveToSuperview">();
    keptSelf.send<void, "didAddSubview:">(kept);
}

void UIView::addSubview(const UI::View& view)
{
    insert(view, children.size());
}

void UIView::insertSubviewAtIndex(const UI::View& view, long index)
{
    insert(view, static_cast<std::size_t>(std::max(index, 0L)));
}

void UIView::insertSubviewBelow(const UI::View& view, const UI::View& sibling)
{
    insert(view, positionBeside(view, sibling, 0));
}

void UIView::insertSubviewAbove(const UI::View& view, const UI::View& sibling)
{
    insert(view, positionBeside(view, sibling, 1));
}

/// The index at the sibling once the view itself is taken out; the end for a stranger.
std::size_t UIView::positionBeside(const UI::View& view, const UI::View& sibling, std::size_t above) const
{
    const auto position = indexOf(sibling);
    if (!position || view == sibling)
        return children.size();
    const auto present = indexOf(view);
    return *position + above - (present && *present < *position ? 1 : 0);
}

void UIView::removeFromSuperview()
{
    if (!parent)
        return;
    const auto kept = self<UI::View>();
    const bool leavesWindow = windowReference() != nullptr;
    if (leavesWindow)
        announceWindow(kept, {});
    kept.send<void, "willMoveToSuperview:">(UI::View());
    detach();
    if (leavesWindow)
        reportWindow(kept);
    kept.send<void, "didMoveToSuperview">();
}

void UIView::bringSubviewToFront(const UI::View& view)
{
    if (indexOf(view))
        insert(view, children.size());
}

void UIView::sendSubviewToBack(const UI::View& view)
{
    if (indexOf(view))
        insert(view, 0);
}

void UIView::exchangeSubviews(long first, long second)
{
    const auto isIndex = [&](long index) { return index >= 0 && std::size_t(index) < children.size(); };
    if (isIndex(first) && isIndex(second))
        std::swap(children[first], children[second]);
}

}
