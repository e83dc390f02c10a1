// The base of everything on the screen.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Platform/ObjC/Block.hpp"
#include "Platform/QuartzCore/CALayer.hpp"
#include "Platform/UIKit/UIColor.hpp"

namespace NS {
class LayoutAnchor;
}

namespace UI {

class GestureRecognizer;

/// How an animation goes; some of them together are joined with `|`.
enum class AnimationOptions : unsigned long {
    layoutSubviews = 1 << 0,
    allowUserInteraction = 1 << 1,
    beginFromCurrentState = 1 << 2,
    curveEaseInOut = 0 << 16,
    curveEaseIn = 1 << 16,
    curveEaseOut = 2 << 16,
    curveLinear = 3 << 16,
    transitionCrossDissolve = 5 << 20
};
constexpr AnimationOptions operator|(AnimationOptions left, AnimationOptions right)
{
    return static_cast<AnimationOptions>(static_cast<unsigned long>(left) | static_cast<unsigned long>(right));
}

enum class ViewContentMode : long { scaleToFill = 0, scaleAspectFit = 1, scaleAspectFill = 2, center = 4 };

/// Which margins and sides give way when the superview's size changes.
enum class ViewAutoresizing : unsigned long {
    none = 0,
    flexibleLeftMargin = 1 << 0,
    flexibleWidth = 1 << 1,
    flexibleRightMargin = 1 << 2,
    flexibleTopMargin = 1 << 3,
    flexibleHeight = 1 << 4,
    flexibleBottomMargin = 1 << 5
};
constexpr ViewAutoresizing operator|(ViewAutoresizing left, ViewAutoresizing right)
{
    return static_cast<ViewAutoresizing>(static_cast<unsigned long>(left) | static_cast<unsigned long>(right));
}

class Responder : public ObjC::Class_<Responder, NS::Object, "UIResponder"> {
public:
    using Class_::Class_;
};

class View : public ObjC::Class_<View, Responder, "UIView"> {
public:
    using Class_::Class_;

    static View withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
    CGRect frame() const { return send<CGRect, "frame">(); }
    void setFrame(CGRect frame) const { send<void, "setFrame:">(frame); }
    CGRect bounds() const { return send<CGRect, "bounds">(); }
    void setBounds(CGRect bounds) const { send<void, "setBounds:">(bounds); }
    CGPoint center() const { return send<CGPoint, "center">(); }
    void setCenter(CGPoint center) const { send<void, "setCenter:">(center); }
    void setTransform(CGAffineTransform transform) const { send<void, "setTransform:">(transform); }
    CGAffineTransform transform() const { return send<CGAffineTransform, "transform">(); }
    bool isHidden() const { return send<bool, "isHidden">(); }
    void setHidden(bool hidden) const { send<void, "setHidden:">(hidden); }
    CGFloat alpha() const { return send<CGFloat, "alpha">(); }
    void setAlpha(CGFloat alpha) const { send<void, "setAlpha:">(alpha); }
    Color backgroundColor() const { return send<Color, "backgroundColor">(); }
    void setBackgroundColor(const Color& color) const { send<void, "setBackgroundColor:">(color); }
    Color tintColor() const { return send<Color, "tintColor">(); }
    void setTintColor(const Color& color) const { send<void, "setTintColor:">(color); }
    void setClipsToBounds(bool clips) const { send<void, "setClipsToBounds:">(clips); }
    void setContentMode(ViewContentMode mode) const { send<void, "setContentMode:">(mode); }
    void setAutoresizingMask(ViewAutoresizing mask) const { send<void, "setAutoresizingMask:">(mask); }
    /// A view without it, and all that is in it, is never touched.
    void setUserInteractionEnabled(bool enabled) const { send<void, "setUserInteractionEnabled:">(enabled); }
    CA::Layer layer() const { return send<CA::Layer, "layer">(); }

    View superview() const { return send<View, "superview">(); }
    NS::Array subviews() const { return send<NS::Array, "subviews">(); }
    View window() const { return send<View, "window">(); }
    void addSubview(const View& view) const { send<void, "addSubview:">(view); }
    void insertSubviewAtIndex(const View& view, long index) const { send<void, "insertSubview:atIndex:">(view, index); }
    void bringSubviewToFront(const View& view) const { send<void, "bringSubviewToFront:">(view); }
    void removeFromSuperview() const { send<void, "removeFromSuperview">(); }
    void sizeToFit() const { send<void, "sizeToFit">(); }
    void setNeedsLayout() const { send<void, "setNeedsLayout">(); }
    void layoutIfNeeded() const { send<void, "layoutIfNeeded">(); }

    void addGestureRecognizer(const GestureRecognizer& recognizer) const;
    void removeGestureRecognizer(const GestureRecognizer& recognizer) const;
    NS::Array gestureRecognizers() const { return send<NS::Array, "gestureRecognizers">(); }

    /// Layout by constraints needs it off.
    void setTranslatesAutoresizingMaskIntoConstraints(bool translates) const
    {
        send<void, "setTranslatesAutoresizingMaskIntoConstraints:">(translates);
    }
    NS::LayoutAnchor leadingAnchor() const;
    NS::LayoutAnchor trailingAnchor() const;
    NS::LayoutAnchor topAnchor() const;
    NS::LayoutAnchor bottomAnchor() const;

    /// Shows what `animations` changes as a motion of that many seconds. The values themselves change at once.
    static void animateWithDuration(double duration, double delay, AnimationOptions options,
        const ObjC::Block<void()>& animations, const ObjC::Block<void(bool finished)>& completion = nullptr)
    {
        sendClass<void, "animateWithDuration:delay:options:animations:completion:">(
            duration, delay, options, animations.raw(), completion.raw());
    }
    static void transitionWithView(const View& view, double duration, AnimationOptions options,
        const ObjC::Block<void()>& animations, const ObjC::Block<void(bool finished)>& completion = nullptr)
    {
        sendClass<void, "transitionWithView:duration:options:animations:completion:">(
            view, duration, options, animations.raw(), completion.raw());
    }

    /// The name by which user-interface tests address the view.
    NS::String accessibilityIdentifier() const { return send<NS::String, "accessibilityIdentifier">(); }
    void setAccessibilityIdentifier(const NS::String& identifier) const
    {
        send<void, "setAccessibilityIdentifier:">(identifier);
    }
};

}
