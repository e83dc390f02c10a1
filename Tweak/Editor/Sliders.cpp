#include "Tweak/Editor/Sliders.hpp"

#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/Feedback.hpp"
#include "Tweak/Editor/NumberText.hpp"
#include "Tweak/Views.hpp"

#include <algorithm>

namespace LYR {

namespace {

constexpr int storedDecimals = 6;
constexpr double smallestSize = 1;
constexpr double largestSize = 150;

/// Stores the value for the active element once the finger has left the slider; what follows is up to the property.
template <class Follow>
void storeWhenReleased(Property property, const UI::Slider& slider, Follow follow)
{
    for (Tab tab : allTabs) {
        auto setting = editedSetting(property, tab);
        if (!setting || !isActive(tab) || slider.isTracking())
            continue;
        store(fixedText(slider.value(), storedDecimals), setting);
        follow();
        dateView->updateTime();
    }
}

}

void slideOffset(Property property, const UI::Slider& slider)
{
    playClick();
    const auto& label = property == Property::x ? _sliderLabelX : _sliderLabelY;
    label->setText(fixedText(slider.value(), 0));
    storeWhenReleased(property, slider, announceSettings);
}

void CSCoverSheetViewController_opacityChanged(CS::CoverSheetViewController, SEL, UI::Slider slider)
{
    playClick();
    storeWhenReleased(Property::opacity, slider, [] {});
}

void CSCoverSheetViewController_fontSizeChanged(CS::CoverSheetViewController, SEL, UI::Stepper stepper)
{
    playClick();
    auto text = NS::String::fromInteger(static_cast<long>(std::clamp(stepper.value(), smallestSize, largestSize)));
    _stepperLabel->setText(text);
    for (Tab tab : allTabs) {
        auto setting = editedSetting(Property::fontSize, tab);
        if (!setting || !isActive(tab))
            continue;
        setting.variable->assign(text);
        store(text, setting);
        announceSettings();
    }
}

void CSCoverSheetViewController_applyFontSize(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    playTap();
    dateView->updateTime();
}

}
