// What owns a view and follows its life: loading, appearance, children.
#pragma once

#include "Platform/UIKit/UIViewController.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <vector>

namespace Simulator {

struct UIViewController : UIResponder {
    enum class Appearance { disappeared, appearing, appeared, disappearing };

    ~UIViewController() override;
    UI::Responder nextResponder() const override;

    void init() { }
    /// The view, loaded when first asked for: `loadView`, then `viewDidLoad`, by message.
    UI::View view();
    UI::View viewIfLoaded() const { return m_viewObject; }
    bool isViewLoaded() const { return static_cast<bool>(m_viewObject); }
    void loadViewIfNeeded() { view(); }
    void setView(const UI::View& view);
    void loadView();
    /// As those of views: for a kind of controller that inherits viewDidLoad or viewDidLayoutSubviews.
    virtual void addParts() { }
    virtual void placeParts() { }
    void viewDidLoad() { addParts(); }
    void viewDidLayoutSubviews() { placeParts(); }
    /// Whether it may be in a window that shows while the phone is locked.
    bool canShowWhileLocked() const { return false; }
    bool isWelcomeWhileLocked() const { return true; }
    /// Whether its views are in such a window.
    virtual bool isInSecureWindow() const { return parent && parent->isInSecureWindow(); }
    void ignoreNotice() { }
    void ignoreAnimated(bool) { }
    void ignoreParent(const UI::ViewController&) { }
    void ignoreTraits(const NS::Object&) { }
    NS::Object traitCollection() const;

    /// How a container leads its child, and the shell its own controllers, through `viewWillAppear:` and the like.
    void beginAppearanceTransition(bool isAppearing, bool animated);
    void endAppearanceTransition();
    /// A child whose view comes into or leaves the view of a container that is on the screen appears or disappears.
    void viewMovedToWindow();

    NS::Array childViewControllers() const;
    UI::ViewController parentViewController() const;
    void addChildViewController(const UI::ViewController& child);
    void removeFromParentViewController();

    NS::String title;
    UI::ModalPresentationStyle modalPresentationStyle = UI::ModalPresentationStyle::fullScreen;
    UIViewController* parent = nullptr;
    std::vector<UI::ViewController> children;
    Appearance appearance = Appearance::disappeared;
    bool appearanceIsAnimated = false;

private:
    bool isViewInParent() const;

    UI::View m_viewObject;
    bool m_isLoading = false;
};

}
