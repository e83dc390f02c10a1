// Layout by rules, as far as edges that lie on edges of the superview or of siblings.
#pragma once

#include "Platform/UIKit/NSLayoutConstraint.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct UIView;

enum class LayoutEdge { leading, trailing, top, bottom };

struct NSLayoutAnchor : StandIn {
    using Root = NSLayoutAnchor;

    NS::LayoutConstraint constraintEqualTo(const NS::LayoutAnchor& other) const;
    NS::LayoutConstraint constraintEqualToWithConstant(const NS::LayoutAnchor& other, double constant) const;

    NS::Object view;
    LayoutEdge edge = LayoutEdge::leading;
};

NS::LayoutAnchor makeAnchor(const UI::View& view, LayoutEdge edge);

/// One edge of a view lies on an edge of another, a constant away.
struct NSLayoutConstraint : StandIn {
    using Root = NSLayoutConstraint;

    static void activateConstraints(const NS::Array& constraints);
    static void deactivateConstraints(const NS::Array& constraints);
    void setActive(bool active);
    void setConstant(double constant);

    /// Retained only while inactive: a view keeps the active constraints that place it.
    UIView* placed = nullptr;
    UI::View keptWhileInactive;
    /// Not retained, and only compared with what is found in the tree.
    const UIView* other = nullptr;
    LayoutEdge placedEdge = LayoutEdge::leading;
    LayoutEdge otherEdge = LayoutEdge::leading;
    double constant = 0;
    bool active = false;
};

/// The view goes: its constraints place nothing any more.
void releaseConstraints(UIView& view);

/// Places the view by its constraints; without any it stays where it is.
void applyConstraints(UIView& view);

}
