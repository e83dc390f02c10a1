// The stock clock: its view, its label, its controller.
#pragma once

#include "Platform/UIKit/UILabel.hpp"
#include "Platform/UIKit/UIViewController.hpp"

namespace SB {

class UILegibilityLabel : public ObjC::Class_<UILegibilityLabel, UI::View, "SBUILegibilityLabel"> {
public:
    using Class_::Class_;
    NS::String string() const { return send<NS::String, "string">(); }
    void setString(const NS::String& text) const { send<void, "setString:">(text); }
    void setTextAlignment(UI::TextAlignment alignment) const { send<void, "setTextAlignment:">(alignment); }
};

class FLockScreenDateView : public ObjC::Class_<FLockScreenDateView, UI::View, "SBFLockScreenDateView"> {
public:
    using Class_::Class_;
};

class FLockScreenDateSubtitleView
    : public ObjC::Class_<FLockScreenDateSubtitleView, UI::View, "SBFLockScreenDateSubtitleView"> {
public:
    using Class_::Class_;
};

class FLockScreenDateViewController
    : public ObjC::Class_<FLockScreenDateViewController, UI::ViewController, "SBFLockScreenDateViewController"> {
public:
    using Class_::Class_;
    FLockScreenDateView dateView() const { return send<FLockScreenDateView, "dateView">(); }
    void updateView() const { send<void, "_updateView">(); }
    /// The extension's own: a full refresh of everything it shows.
    void updateTime() const { send<void, "updateTime">(); }
};

}
