// Offsets, opacity, and the size of the font.
#pragma once

#include "Tweak/Editor/EditState.hpp"
#include "Tweak/Editor/EditedSettings.hpp"
#include "Platform/UIKit/UISlider.hpp"
#include "Platform/UIKit/UIStepper.hpp"

namespace LYR {

/// Follows the finger in the label, and stores the offset when the finger is lifted.
void slideOffset(Property property, const UI::Slider& slider);

/// Added.
template <Property property>
void CSCoverSheetViewController_offsetChanged(CS::CoverSheetViewController, SEL, UI::Slider slider)
{
    slideOffset(property, slider);
}
void CSCoverSheetViewController_opacityChanged(CS::CoverSheetViewController self, SEL cmd, UI::Slider slider);
/// The size shows when it is applied or the label is next laid out.
void CSCoverSheetViewController_fontSizeChanged(CS::CoverSheetViewController self, SEL cmd, UI::Stepper stepper);
void CSCoverSheetViewController_applyFontSize(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);

}
