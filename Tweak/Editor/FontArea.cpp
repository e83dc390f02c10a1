// The font of time and date: a wheel of all that are installed, and the size with its button to apply it.
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Storing.hpp"
#include "Tweak/Fonts.hpp"
#include "Tweak/State.hpp"

#include <algorithm>

namespace LYR {

LYR_VIEW(UI::PickerView, _pickerView1);
LYR_VIEW(UI::Label, _stepperLabel2);
LYR_VIEW(UI::Label, _stepperLabel);
LYR_VIEW(UI::Stepper, _stepperView);
LYR_VIEW(UI::Button, _stepperButton);
LYR_VIEW(UI::Button, _alertOpen);

namespace {

constexpr CGFloat rowSize = 20;
constexpr double smallestSize = 1;
constexpr double largestSize = 150;

constexpr EditedSetting sizes{{&_sizeTimeLabel, &_sizeDateLabel, nullptr}};
constexpr PerTab<const char*> pickedFontKeys{{Product::pickedTimeFontKey, Product::pickedDateFontKey, nullptr}};
constexpr PerTab<const char*> sizeTitles{{"Time Font Size", "Date Font Size", "Time Font Size"}};

NS::String fontName(long row)
{
    return row < 0 ? NS::String() : availableFonts->at<NS::String>(static_cast<unsigned long>(row));
}

/// Nil where there is none of that name.
UI::Font fontNamed(const NS::String& name)
{
    return name ? UI::Font::fontWithName(name, rowSize) : UI::Font();
}

/// Fonts that were registered since the last request appear at once.
long fontCount()
{
    return static_cast<long>(rebuildAvailableFonts());
}

/// The name of the font, in that font.
UI::Label fontRow(long row)
{
    auto label = makeWheelRow();
    auto name = fontName(row);
    auto font = fontNamed(name);
    label.setFont(font ? font : UI::Font::systemFontOfSize(rowSize));
    label.setText(name);
    label.sizeToFit();
    return label;
}

void chooseFont(long row)
{
    auto font = fontNamed(fontName(row));
    if (!font)
        return;
    for (Tab tab : allTabs) {
        if (const char* key = pickedFontKeys[tab]; key && isActive(tab))
            _preferences->setObject(font.fontName(), NS::String::fromUTF8(key));
    }
    dateView->updateTime();
}

constexpr Wheel fontWheel{fontCount, fontRow, chooseFont};

/// The font that was picked; the one that the element is written in where none was.
NS::String fontOf(Tab tab)
{
    if (auto picked = _preferences->objectForKey(NS::String::fromUTF8(pickedFontKeys[tab])).as<NS::String>())
        return picked;
    return (tab == Tab::time ? _timeLabel.reference() : _dateLabel.reference()).font().fontName();
}

long rowOfFont(const NS::String& name)
{
    auto count = static_cast<long>(availableFonts->count());
    for (long row = 0; name && row < count; ++row) {
        if (fontName(row).isEqualToString(name))
            return row;
    }
    return 0;
}

void showFont(Tab tab)
{
    if (!pickedFontKeys[tab] || _pickerView1->isHidden())
        return;
    _pickerView1->reloadAllComponents();
    _pickerView1->selectRow(rowOfFont(fontOf(tab)), 0, false);
}

UI::View sizeStepper()
{
    auto stepper = UI::Stepper::make();
    stepper.setMinimumValue(smallestSize);
    stepper.setMaximumValue(largestSize);
    stepper.setStepValue(1);
    return stepper;
}

void showSize(Tab tab)
{
    if (const ObjectSetting* size = sizes[tab])
        _stepperView->setValue(size->intValue());
}

/// The size shows when it is applied or the label is next laid out.
void changeSize(UI::Stepper stepper)
{
    playClick();
    auto text = NS::String::fromInteger(static_cast<long>(std::clamp(stepper.value(), smallestSize, largestSize)));
    _stepperLabel->setText(text);
    forActive(sizes, [&text](ObjectSetting& setting) {
        setting.assign(text);
        store(text, setting);
        announceSettings();
    });
}

UI::View applyButton()
{
    auto button = makeButton("Apply", nullptr, 8);
    button.setBackgroundColor(UI::Color::systemFillColor());
    return button;
}

void applySize()
{
    playTap();
    dateView->updateTime();
}

void openNotice()
{
    showNotice(true);
}

constexpr Control controls[] = {
    {.slot = _pickerView1,
        .make = makeWheel,
        .placing = throughout(12, 12, 48, 134),
        .fill = showFont,
        .wheel = &fontWheel},
    {.slot = _stepperLabel2,
        .make = label<"", 11>,
        .placing = fromLeft(12, 88, 184, 14),
        .fill = [](Tab) { _stepperLabel2->setText(""_ns); }},
    {.slot = _stepperLabel,
        .make = label<"", 14>,
        .placing = fromLeft(12, 88, 198, 24),
        .fill = [](Tab tab) { _stepperLabel->setText(NS::String::fromUTF8(sizeTitles[tab])); }},
    {.slot = _stepperView,
        .make = sizeStepper,
        .placing = fromLeft(104, 94, 194, 32),
        .action = action<"valueChange:", changeSize>(ActionGroup::fontSize),
        .fill = showSize},
    {.slot = _stepperButton,
        .make = applyButton,
        .placing = fromRight(44, 52, 194, 32),
        .action = action<"stepperUpdate:", applySize>(ActionGroup::fontSize)},
    {.slot = _alertOpen,
        .make = symbolButton<"info.circle">,
        .placing = fromRight(8, 32, 194, 32),
        .action = action<"showAlert:", openNotice>(ActionGroup::notice)},
};

}

constinit const Area fontArea{controls};

}
