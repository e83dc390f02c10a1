// The fixture of the UIKit tests: a phone with a light screen of 375 × 812 points.
#pragma once

#include "Platform/Foundation/CFBase.hpp"
#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Platform/UIKit/UIImageView.hpp"
#include "Platform/UIKit/UILabel.hpp"
#include "Platform/UIKit/UIViewController.hpp"
#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
#include "Simulator/UIKit/UIWindow.hpp"
#include "Tests/Support/PhoneTest.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace Simulator {

class UIKitTest : public PhoneTest {
protected:
    static UI::View makeView(CGRect frame = {}) { return UI::View::make<"initWithFrame:">(frame); }
    static UI::Label makeLabel(CGRect frame = {}) { return UI::Label::make<"initWithFrame:">(frame); }
    static UI::View makeWindow()
    {
        return UI::View(ObjC::Object::adopting(
            ObjC::sendMessage<id>(
                ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass("UIWindow")), ObjC::selector<"alloc">()),
                ObjC::selector<"init">()))
                            .raw());
    }
    static UIWindow& windowOf(const UI::View& window) { return standIn<UIWindow>(window.raw()); }
    static UIView& viewOf(const UI::View& view) { return standIn<UIView>(view.raw()); }
    static std::string textOf(const NS::String& text) { return std::string(text.utf8()); }
};

}
