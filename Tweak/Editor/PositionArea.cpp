// The position of an element: its alignment, and how far it is moved.
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Options.hpp"
#include "Tweak/State.hpp"

namespace LYR {

LYR_VIEW(UI::Label, _alignLabel);
LYR_VIEW(UI::SegmentedControl, _segmentAlign);
LYR_VIEW(UI::Slider, _sliderX);
LYR_VIEW(UI::Label, _sliderLabelX);
LYR_VIEW(UI::Slider, _sliderY);
LYR_VIEW(UI::Label, _sliderLabelY);

namespace {

constexpr Options alignment{Product::choicesOf("alignTime"), {{&_alignTime, &_alignDate, nullptr}}};
constexpr EditedSetting xOffsets{{&_XtimeLabel, &_XdateLabel, &_XwidgetView}};
constexpr EditedSetting yOffsets{{&_YtimeLabel, &_YdateLabel, &_YwidgetView}};

/// The strip has no alignment.
bool hasAlignment(const UI::View&, Tab tab)
{
    return alignment.settings[tab] != nullptr;
}

/// Follows the finger in the label, and stores the offset when the finger is lifted.
template <auto& label, const EditedSetting& offsets>
void slide(UI::Slider slider)
{
    playClick();
    label->setText(fixedText(slider.value(), 0));
    storeWhenReleased(offsets, slider, announceSettings);
}

template <auto& slider, auto& label, const EditedSetting& offsets>
void showOffset(Tab tab)
{
    slider->setValue(static_cast<float>(offsets[tab]->doubleValue()));
    label->setText(fixedText(slider->value(), 0));
}

constexpr Control controls[] = {
    {.slot = _alignLabel, .make = label<"Alignment", 15>, .placing = fromLeft(16, 80, 62, 32), .isShown = hasAlignment},
    segments<_segmentAlign, alignment, "alignValueChanged:", true>(throughout(104, 12, 62, 32), hasAlignment),
    {.slot = _sliderX, .make = slider<-100, 100, 0, "arrow.left.and.right">, .placing = throughout(12, 60, 118, 32),
        .action = action<"sliderValueChangedX:", slide<_sliderLabelX, xOffsets>>(ActionGroup::sliders),
        .fill = showOffset<_sliderX, _sliderLabelX, xOffsets>},
    {.slot = _sliderLabelX, .make = label<"0", 15, UI::TextAlignment::right>, .placing = fromRight(12, 44, 118, 32)},
    // Its symbols are narrower, so that the two tracks are one above the other.
    {.slot = _sliderY, .make = slider<-200, 200, 0, "arrow.up.and.down">, .placing = throughout(19, 67, 174, 32),
        .action = action<"sliderValueChangedY:", slide<_sliderLabelY, yOffsets>>(ActionGroup::sliders),
        .fill = showOffset<_sliderY, _sliderLabelY, yOffsets>},
    {.slot = _sliderLabelY, .make = label<"0", 15, UI::TextAlignment::right>, .placing = fromRight(12, 44, 174, 32)},
};

}

constinit const Area positionArea{controls};

}
