// The base of everything on the screen: geometry, appearance, the tree of views and their layout.
#pragma once

#include "Platform/UIKit/NSLayoutConstraint.hpp"
#include "Platform/UIKit/UIGestureRecognizer.hpp"
#include "Platform/UIKit/UIViewController.hpp"
#include "Simulator/Graphics/Layer.hpp"
#include "Simulator/QuartzCore/CALayer.hpp"
#include "Simulator/UIKit/UIResponder.hpp"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <vector>

namespace Simulator {

struct UIViewController;
struct UIWindow;

/// Which of a view's margins and sides give way when the superview's size changes.
enum Autoresizing : unsigned long {
    flexibleLeftMargin = 1,
    flexibleWidth = 2,
    flexibleRightMargin = 4,
    flexibleTopMargin = 8,
    flexibleHeight = 16,
    flexibleBottomMargin = 32
};

struct UIView : UIResponder {
    ~UIView() override;

    /// What the view itself shows between its background and its subviews; kinds of views override it.
    virtual Graphics::LayerContent layerContent() const { return {}; }
    /// Adds to what the layer's own properties make of it: its looks, or layers between its content and its subviews.
    virtual void decorate(Graphics::Layer&) const { }
    /// A kind of view whose class has no initialiser of its own adds its parts here, and places them in `placeParts`
    /// where it has no layoutSubviews: what a class inherits on the phone, it inherits here.
    virtual void addParts() { }
    virtual void placeParts() { }
    /// Adds what the control protocol tells of this kind of view.
    virtual void describe(nlohmann::json&) const { }
    UI::Responder nextResponder() const override;

    void init();
    void initWithFrame(CGRect frame);

    CGRect frame() const { return properties.frame(); }
    void setFrame(CGRect frame);
    CGRect bounds() const { return properties.bounds; }
    void setBounds(CGRect bounds);
    CGPoint center() const { return properties.position; }
    void setCenter(CGPoint center);
    CGAffineTransform transform() const { return properties.transform; }
    void setTransform(CGAffineTransform transform);

    bool isHidden() const { return properties.hidden; }
    void setHidden(bool hidden) { properties.hidden = hidden; }
    double alpha() const { return properties.opacity; }
    void setAlpha(double alpha);
    bool clipsToBounds() const { return properties.masksToBounds; }
    void setClipsToBounds(bool clips) { properties.masksToBounds = clips; }
    UI::Color backgroundColor() const;
    void setBackgroundColor(const UI::Color& color);
    /// Its own, or the nearest ancestor's, or the system's blue.
    UI::Color tintColor() const;
    void setTintColor(const UI::Color& color);
    CA::Layer layer();
    /// Null while nobody has asked for the layer.
    const CALayer* layerIfMade() const;
    NS::Object traitCollection() const;

    UI::View superview() const { return parent ? parent->self<UI::View>() : UI::View(); }
    NS::Array subviews() const;
    UI::View window() const;
    void addSubview(const UI::View& view);
    void insertSubviewAtIndex(const UI::View& view, long index);
    void insertSubviewBelow(const UI::View& view, const UI::View& sibling);
    void insertSubviewAbove(const UI::View& view, const UI::View& sibling);
    void removeFromSuperview();
    void bringSubviewToFront(const UI::View& view);
    void sendSubviewToBack(const UI::View& view);
    void exchangeSubviews(long first, long second);
    bool isDescendantOfView(const UI::View& view) const;
    UI::View viewWithTag(long tag) const;

    void setNeedsLayout() { needsLayout = true; }
    void layoutIfNeeded();
    void layoutSubviews() { placeParts(); }
    CGSize sizeThatFits(CGSize) const { return properties.bounds.size; }
    void sizeToFit();
    CGSize intrinsicContentSize() const { return {-1, -1}; }

    CGPoint convertPointToView(CGPoint point, const UI::View& view) const;
    CGPoint convertPointFromView(CGPoint point, const UI::View& view) const;
    CGRect convertRectToView(CGRect rect, const UI::View& view) const;
    CGRect convertRectFromView(CGRect rect, const UI::View& view) const;

    /// The frontmost view inside that takes a touch at the point; nil for none.
    UI::View hitTest(CGPoint point, const NS::Object& event) const;
    bool pointInside(CGPoint point, const NS::Object& event) const;
    void addGestureRecognizer(const UI::GestureRecognizer& recognizer);
    void removeGestureRecognizer(const UI::GestureRecognizer& recognizer);
    NS::Array gestureRecognizers() const;

    NS::LayoutAnchor leadingAnchor() const;
    NS::LayoutAnchor trailingAnchor() const;
    NS::LayoutAnchor topAnchor() const;
    NS::LayoutAnchor bottomAnchor() const;

    /// Notices to kinds of views, by message; the base does nothing.
    void ignoreNotice() { }
    void ignoreView(const UI::View&) { }
    void ignoreTraits(const NS::Object&) { }

    /// The window at the top of the tree; null if the tree hangs in none.
    UIWindow* windowReference() const;
    bool isOrIsInside(const UIView& other) const;
    /// From the coordinates of the bounds to those of the topmost view.
    Graphics::AffineTransform transformToRoot() const;

    LayerProperties properties;
    UI::Color background;
    UI::Color tint;
    NS::String accessibilityIdentifier;
    bool opaque = true;
    bool userInteractionEnabled = true;
    bool needsLayout = true;
    long tag = 0;
    long contentMode = 0;
    unsigned long autoresizingMask = 0;
    /// Not retained: a view keeps its subviews, not the reverse.
    UIView* parent = nullptr;
    UIViewController* controller = nullptr;
    /// Back to front.
    std::vector<UI::View> children;
    std::vector<UI::GestureRecognizer> recognizers;
    /// The active ones that place this view.
    std::vector<NS::LayoutConstraint> constraints;
    bool translatesAutoresizingMaskIntoConstraints = true;

private:
    void insert(const UI::View& view, std::size_t index);
    void detach();
    std::optional<std::size_t> indexOf(const UI::View& view) const;
    std::size_t positionBeside(const UI::View& view, const UI::View& sibling, std::size_t above) const;
    void notifyTintChange();
    void boundsChangedFrom(CGSize previous);
    /// The properties, about to be changed: an animation that is being made takes note.
    LayerProperties& changing();
    void followSuperviewSize(CGSize previous, CGSize current);

    CA::Layer m_layerObject;
};

/// Lays out all views of the tree that need it, until none does.
void layoutTree(UIView& root);

}
