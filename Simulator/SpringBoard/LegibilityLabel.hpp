// The stock shell's label that stays legible on any wallpaper.
#pragma once

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Simulator/UIKit/UILabel.hpp"

namespace Simulator {

/// On the phone it is no label but a view that draws one; here the label's drawing is its own.
struct SBUILegibilityLabel : UILabel {
    void initWithFrame(CGRect frame);
    void initWithString(const NS::Object& settings, double strength, const NS::String& string, const UI::Font& font);
};

/// White, centred, without text.
SB::UILegibilityLabel makeLegibilityLabel(double fontSize, double weight, const char* identifier);

}
