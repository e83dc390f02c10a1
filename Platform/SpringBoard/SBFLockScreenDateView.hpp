// The stock clock: its view, its label, its controller.
#pragma once

#include "Platform/UIKit/UILabel.hpp"
#include "Platform/UIKit/UIViewController.hpp"

namespace SB {

class UILegibilityLabel : public ObjC::PrivateClass_<UILegibilityLabel, UI::View, "SBUILegibilityLabel"> {
public:
    using PrivateClass_::PrivateClass_;
    NS::String string() const { return send<NS::String, "string">(); }
    void setString(const NS::String& text) const { send<void, "setString:">(text); }
    void setTextAlignment(UI::TextAlignment alignment) const { send<void, "setTextAlignment:">(alignment); }
};

class FLockScreenDateSubtitleView
    : public ObjC::PrivateClass_<FLockScreenDateSubtitleView, UI::View, "SBFLockScreenDateSubtitleView"> {
public:
    using PrivateClass_::PrivateClass_;
    UI::View label() const { return ivar<UI::View, "_label">(); }
};

/// With the date in another calendar below it.
class FLockScreenDateSubtitleDateView : public ObjC::PrivateClass_<FLockScreenDateSubtitleDateView,
                                            FLockScreenDateSubtitleView, "SBFLockScreenDateSubtitleDateView"> {
public:
    using PrivateClass_::PrivateClass_;
    UI::View alternateDateLabel() const { return ivar<UI::View, "_alternateDateLabel">(); }
};

class FLockScreenDateView : public ObjC::PrivateClass_<FLockScreenDateView, UI::View, "SBFLockScreenDateView"> {
public:
    using PrivateClass_::PrivateClass_;
    FLockScreenDateSubtitleDateView subtitleView() const
    {
        return ivar<FLockScreenDateSubtitleDateView, "_dateSubtitleView">();
    }
    /// Draws time and date since system 16; nil before.
    UI::ViewController prominentDisplayViewController() const
    {
        return ivar<UI::ViewController, "_prominentDisplayViewController">();
    }
};

class FLockScreenDateViewController
    : public ObjC::PrivateClass_<FLockScreenDateViewController, UI::ViewController, "SBFLockScreenDateViewController"> {
public:
    using PrivateClass_::PrivateClass_;
    FLockScreenDateView dateView() const { return send<FLockScreenDateView, "dateView">(); }
    void updateView() const { send<void, "_updateView">(); }
    /// The extension's own: a full refresh of everything it shows.
    void updateTime() const { send<void, "updateTime">(); }
};

}
