// Layout by rules: edges of views held together.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace NS {

class LayoutConstraint : public ObjC::Class_<LayoutConstraint, Object, "NSLayoutConstraint"> {
public:
    using Class_::Class_;

    static void activateConstraints(const Array& constraints) { sendClass<void, "activateConstraints:">(constraints); }
    static void deactivateConstraints(const Array& constraints)
    {
        sendClass<void, "deactivateConstraints:">(constraints);
    }
    bool isActive() const { return send<bool, "isActive">(); }
    void setActive(bool active) const { send<void, "setActive:">(active); }
    CGFloat constant() const { return send<CGFloat, "constant">(); }
    void setConstant(CGFloat constant) const { send<void, "setConstant:">(constant); }
};

/// An edge of a view, to make constraints of.
class LayoutAnchor : public ObjC::Class_<LayoutAnchor, Object, "NSLayoutAnchor"> {
public:
    using Class_::Class_;

    LayoutConstraint constraintEqualToAnchor(const LayoutAnchor& other) const
    {
        return send<LayoutConstraint, "constraintEqualToAnchor:">(other);
    }
    LayoutConstraint constraintEqualToAnchor(const LayoutAnchor& other, CGFloat constant) const
    {
        return send<LayoutConstraint, "constraintEqualToAnchor:constant:">(other, constant);
    }
};

}

namespace UI {

inline NS::LayoutAnchor View::leadingAnchor() const
{
    return send<NS::LayoutAnchor, "leadingAnchor">();
}
inline NS::LayoutAnchor View::trailingAnchor() const
{
    return send<NS::LayoutAnchor, "trailingAnchor">();
}
inline NS::LayoutAnchor View::topAnchor() const
{
    return send<NS::LayoutAnchor, "topAnchor">();
}
inline NS::LayoutAnchor View::bottomAnchor() const
{
    return send<NS::LayoutAnchor, "bottomAnchor">();
}

}
