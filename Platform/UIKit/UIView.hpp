// The base of everything on the screen.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Platform/QuartzCore/CALayer.hpp"
#include "Platform/UIKit/UIColor.hpp"

namespace UI {

class Responder : public ObjC::Class_<Responder, NS::Object, "UIResponder"> {
public:
    using Class_::Class_;
};

class View : public ObjC::Class_<View, Responder, "UIView"> {
public:
    using Class_::Class_;

    CGRect frame() const { return send<CGRect, "frame">(); }
    void setFrame(CGRect frame) const { send<void, "setFrame:">(frame); }
    CGRect bounds() const { return send<CGRect, "bounds">(); }
    void setBounds(CGRect bounds) const { send<void, "setBounds:">(bounds); }
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
    void setUserInteractionEnabled(bool enabled) const { send<void, "setUserInteractionEnabled:">(enabled); }
    CA::Layer layer() const { return send<CA::Layer, "layer">(); }

    View superview() const { return send<View, "superview">(); }
    NS::Array subviews() const { return send<NS::Array, "subviews">(); }
    View window() const { return send<View, "window">(); }
    void addSubview(const View& view) const { send<void, "addSubview:">(view); }
    void insertSubviewAtIndex(const View& view, long index) const { send<void, "insertSubview:atIndex:">(view, index); }
    void removeFromSuperview() const { send<void, "removeFromSuperview">(); }
    void setNeedsLayout() const { send<void, "setNeedsLayout">(); }
    void layoutIfNeeded() const { send<void, "layoutIfNeeded">(); }

    /// The name by which user-interface tests address the view.
    NS::String accessibilityIdentifier() const { return send<NS::String, "accessibilityIdentifier">(); }
    void setAccessibilityIdentifier(const NS::String& identifier) const
    {
        send<void, "setAccessibilityIdentifier:">(identifier);
    }
};

}
