// Anchors make constraints; active ones give their views a frame at layout.
#include "Simulator/UIKit/NSLayoutConstraint.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Foundation/Exceptions.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace Simulator {

namespace {

NSLayoutConstraint* constraintStandIn(const ObjC::Object& object)
{
    return standInOrNull<NSLayoutConstraint>(object);
}

void setAllActive(const NS::Array& constraints, bool active)
{
    for (unsigned long i = 0; i < constraints.count(); ++i)
        constraints.at<NS::LayoutConstraint>(i).setActive(active);
}

double edgeOf(CGRect rect, LayoutEdge edge)
{
    switch (edge) {
    case LayoutEdge::leading:
        return rect.origin.x;
    case LayoutEdge::trailing:
        return rect.origin.x + rect.size.width;
    case LayoutEdge::top:
        return rect.origin.y;
    case LayoutEdge::bottom:
        return rect.origin.y + rect.size.height;
    }
    return 0;
}

/// Where the other view lies in the superview of the placed one: the superview itself or a view in it.
std::optional<CGRect> placeOf(const UIView* other, const UIView& superview)
{
    if (other == &superview)
        return superview.bounds();
    for (const UI::View& sibling : superview.children) {
        const auto& candidate = standIn<UIView>(sibling.raw());
        if (&candidate == other)
            return candidate.frame();
    }
    return std::nullopt;
}

/// One axis of the frame: both edges make the length, one alone moves it.
void solve(double& origin, double& length, std::optional<double> low, std::optional<double> high)
{
    if (low && high) {
        origin = *low;
        length = std::max(0.0, *high - *low);
    } else if (low)
        origin = *low;
    else if (high)
        origin = *high - length;
}

const UIView& rootOf(const UIView& view)
{
    return view.parent ? rootOf(*view.parent) : view;
}

bool haveCommonAncestor(const UIView& left, const UIView& right)
{
    return &rootOf(left) == &rootOf(right);
}

}

NS::LayoutAnchor makeAnchor(const UI::View& view, LayoutEdge edge)
{
    const ObjC::Object object = newInstance("NSLayoutAnchor");
    auto& anchor = standIn<NSLayoutAnchor>(object.raw());
    anchor.view = view;
    anchor.edge = edge;
    return NS::LayoutAnchor(object.raw());
}

NS::LayoutConstraint NSLayoutAnchor::constraintEqualTo(const NS::LayoutAnchor& anchor) const
{
    return constraintEqualToWithConstant(anchor, 0);
}

NS::LayoutConstraint NSLayoutAnchor::constraintEqualToWithConstant(
    const NS::LayoutAnchor& anchor, double distance) const
{
    const auto* target = standInOrNull<NSLayoutAnchor>(anchor);
    if (!target)
        return {};
    const ObjC::Object object = newInstance("NSLayoutConstraint");
    auto& constraint = standIn<NSLayoutConstraint>(object.raw());
    auto& own = standIn<UIView>(view.raw());
    auto& others = standIn<UIView>(target->view.raw());
    // The view that gave its frame away to constraints is the one that is placed.
    const bool isReversed
        = own.translatesAutoresizingMaskIntoConstraints && !others.translatesAutoresizingMaskIntoConstraints;
    constraint.placed = isReversed ? &others : &own;
    constraint.keptWhileInactive = constraint.placed->self<UI::View>();
    constraint.other = isReversed ? &own : &others;
    constraint.placedEdge = isReversed ? target->edge : edge;
    constraint.otherEdge = isReversed ? edge : target->edge;
    constraint.constant = isReversed ? -distance : distance;
    return NS::LayoutConstraint(object.raw());
}

void NSLayoutConstraint::activateConstraints(const NS::Array& constraints)
{
    setAllActive(constraints, true);
}

void NSLayoutConstraint::deactivateConstraints(const NS::Array& constraints)
{
    setAllActive(constraints, false);
}

void NSLayoutConstraint::setActive(bool wanted)
{
    if (active == wanted || !placed)
        return;
    if (wanted && !haveCommonAncestor(*placed, *other))
        raiseException("NSGenericException", "a constraint between views without a common ancestor was activated");
    active = wanted;
    const auto kept = self<NS::LayoutConstraint>();
    if (placed->parent)
        placed->parent->needsLayout = true;
    if (active) {
        placed->constraints.push_back(kept);
        keptWhileInactive = {};
    } else {
        keptWhileInactive = placed->self<UI::View>();
        std::erase(placed->constraints, kept);
    }
}

void NSLayoutConstraint::setConstant(double distance)
{
    constant = distance;
    if (placed && placed->parent)
        placed->parent->needsLayout = true;
}

void releaseConstraints(UIView& view)
{
    for (const NS::LayoutConstraint& object : view.constraints) {
        auto& constraint = *constraintStandIn(object);
        constraint.placed = nullptr;
        constraint.active = false;
    }
}

void applyConstraints(UIView& view)
{
    if (view.translatesAutoresizingMaskIntoConstraints || view.constraints.empty() || !view.parent)
        return;
    std::array<std::optional<double>, 4> edges;
    for (const NS::LayoutConstraint& object : view.constraints) {
        const auto& constraint = *constraintStandIn(object);
        if (const auto place = placeOf(constraint.other, *view.parent))
            edges[static_cast<std::size_t>(constraint.placedEdge)]
                = edgeOf(*place, constraint.otherEdge) + constraint.constant;
    }
    const CGRect before = view.frame();
    CGRect after = before;
    solve(after.origin.x, after.size.width, edges[0], edges[1]);
    solve(after.origin.y, after.size.height, edges[2], edges[3]);
    if (after != before)
        view.self<UI::View>().setFrame(after);
}

static const StandInClass nsLayoutAnchor("NSLayoutAnchor", "NSObject", [](Binder<NSLayoutAnchor>& binder) {
    binder.def<"constraintEqualToAnchor:", &NSLayoutAnchor::constraintEqualTo>()
        .def<"constraintEqualToAnchor:constant:", &NSLayoutAnchor::constraintEqualToWithConstant>()
        .add();
});

static const StandInClass nsLayoutConstraint("NSLayoutConstraint", "NSObject", [](Binder<NSLayoutConstraint>& binder) {
    using Constraint = NSLayoutConstraint;
    binder.classMethod<"activateConstraints:", &Constraint::activateConstraints>()
        .classMethod<"deactivateConstraints:", &Constraint::deactivateConstraints>()
        .readonly<"isActive", &Constraint::active>()
        .def<"setActive:", &Constraint::setActive>()
        .readonly<"constant", &Constraint::constant>()
        .def<"setConstant:", &Constraint::setConstant>()
        .add();
});

}
