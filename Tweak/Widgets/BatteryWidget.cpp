// The battery, as a glyph with its charge, under a phone, or as a bar.
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/UIKit/UIDevice.hpp"
#include "Product/Choices.hpp"
#include "Product/Names.hpp"
#include "Tweak/TemplateImage.hpp"
#include "Tweak/Widgets/StripColours.hpp"
#include "Tweak/Widgets/Widget.hpp"

#include <algorithm>
#include <cmath>

namespace LYR {

/// The glyph: outline, level, a bolt for each place.
LYR_VIEW(UI::ImageView, _phoneImage);
LYR_VIEW(UI::ImageView, _BG);
LYR_VIEW(UI::ImageView, _BL);
LYR_VIEW(UI::ImageView, _BC);
LYR_VIEW(UI::ImageView, _BC2);
LYR_VIEW(UI::Label, _batteryLabel);
/// The bar.
LYR_VIEW(UI::ImageView, _batteryBarBackground);
LYR_VIEW(UI::ImageView, _batteryBarIndicator);
LYR_VIEW(UI::Label, _batteryBarName);
LYR_VIEW(UI::Label, _batteryBarLabel);

namespace {

using UI::TextAlignment;
constexpr StripView views[] = {
    pictureOf(_phoneImage),
    pictureOf(_BG),
    pictureOf(_BL),
    pictureOf(_BC),
    pictureOf(_BC2),
    // The parts of the bar keep their ends round at every length.
    pictureOf(_batteryBarBackground, UI::ViewContentMode::scaleToFill),
    pictureOf(_batteryBarIndicator, UI::ViewContentMode::scaleToFill),
    labelOf(_batteryLabel, 14, TextAlignment::center),
    labelOf(_batteryBarName, 12, TextAlignment::left),
    labelOf(_batteryBarLabel, 12, TextAlignment::right),
};

constexpr Place placesWithPercentage[] = {
    aboutMiddle(_BG, 0, 32, 12, 16),
    aboutMiddle(_BL, 0, 32, 12, 16),
    aboutMiddle(_BC, 0, 32, 12, 16),
    throughout(_batteryLabel, 0, 0, 33, 19),
};
constexpr Presentation percentage{1, placesWithPercentage};

/// The bolt stands at the right end of its picture, beside where the battery is; over the phone it is in the middle.
constexpr CGFloat boltFromMiddle = -12;
constexpr Place placesUnderPhone[] = {
    aboutMiddle(_phoneImage, 0, 32, 4, 32),
    aboutMiddle(_BC2, boltFromMiddle, 32, 12, 16),
    aboutMiddle(_BG, 0, 32, 40, 16),
    aboutMiddle(_BL, 0, 32, 40, 16),
};
constexpr Presentation phone{1, placesUnderPhone};

constexpr Place placesOfBar[] = {
    throughout(_batteryBarName, 1, 0, 5, 18),
    throughout(_batteryBarBackground, 0, 0, 23, 16),
    throughout(_batteryBarIndicator, 0, 0, 23, 16),
    throughout(_batteryBarLabel, -7, 0, 39, 18),
};
constexpr Presentation bar{2, placesOfBar};

#define LYR_PRESENTATION(name, ...) &name,
constexpr const Presentation* presentations[] = {LYR_BATTERY_OPTIONS(LYR_PRESENTATION)};
#undef LYR_PRESENTATION

/// The picture of this step stands for charges up to the limit.
struct Step {
    double limit;
    int number;
};

constexpr Step steps[] = {{0.10, 5}, {0.15, 10}, {0.20, 15}, {0.25, 20}, {0.30, 25}, {0.35, 30}, {0.40, 35}, {0.45, 40},
    {0.50, 45}, {0.55, 50}, {0.60, 55}, {0.65, 60}, {0.70, 65}, {0.75, 70}, {0.80, 75}, {0.85, 80}, {0.90, 85},
    {0.95, 90}};
constexpr int fullStep = 100;

/// The device reports single precision and the limits are double, so that a charge of 0.1 lies above the first.
int stepFor(float level)
{
    double charge = level;
    for (const Step& step : steps) {
        if (charge <= step.limit)
            return step.number;
    }
    return fullStep;
}

struct Charge {
    /// From 0 to 1; −1 while it is not known.
    float level;
    bool charging;
};

Charge currentCharge()
{
    auto device = UI::Device::currentDevice();
    device.setBatteryMonitoringEnabled(true);
    float level = device.batteryLevel();
    auto state = device.batteryState();
    return {std::isfinite(level) ? std::clamp(level, -1.0f, 1.0f) : -1.0f,
        state == UI::DeviceBatteryState::charging || state == UI::DeviceBatteryState::full};
}

NS::String percentageText(float level)
{
    return NS::String::fromInteger(static_cast<long>(level * 100)).stringByAppendingString("%"_ns);
}

UI::Image batteryIcon(const NS::String& name)
{
    return resourceIcon(LYR_PREFIX LYR_RESOURCES "Battery16/"_ns.stringByAppendingString(name)
            .stringByAppendingString(".png"_ns));
}

void showPictures(const Charge& charge)
{
    auto step = NS::String::fromInteger(stepFor(charge.level));
    auto kind = charge.charging ? "Charging"_ns : "Battery"_ns;
    _BG->setImage(batteryIcon(charge.charging ? "ChargingBG"_ns : "BG"_ns));
    _BL->setImage(batteryIcon(kind.stringByAppendingString(step)));
    auto bolt = charge.charging ? batteryIcon("bolt"_ns) : UI::Image();
    _BC->setImage(bolt);
    _BC2->setImage(bolt);
    _phoneImage->setImage(batteryIcon("phone"_ns));
    _batteryBarBackground->setImage(batteryIcon("Background"_ns));
    _batteryBarIndicator->setImage(batteryIcon(step));
}

void showTexts(const Charge& charge)
{
    auto text = percentageText(charge.level);
    _batteryLabel->setText(text);
    _batteryBarLabel->setText(text);
    _batteryBarName->setText(UI::Device::currentDevice().name());
}

/// What shows the charge is yellow in low-power mode.
void colour()
{
    for (const UI::ImageView* view : {&_BG.reference(), &_BC.reference(), &_BC2.reference(), &_phoneImage.reference(),
             &_batteryBarBackground.reference()})
        view->setTintColor(stripIconColour());
    auto level = _isLPM ? UI::Color::systemYellowColor() : stripIconColour();
    _BL->setTintColor(level);
    _batteryBarIndicator->setTintColor(level);
}

}

constinit const Widget batteryWidget{views, &_battOption, 1, presentations};

void prepareBattery()
{
    auto bolt = batteryIcon("Bolt"_ns);
    _BC->setImage(bolt);
    _BC2->setImage(bolt);
}

void fillBattery()
{
    auto charge = currentCharge();
    showPictures(charge);
    showTexts(charge);
    colour();
    placeBatteryIndicator();
}

void placeBatteryIndicator()
{
    CGRect frame = _batteryBarBackground->frame();
    frame.size.width *= std::max(currentCharge().level, 0.0f);
    _batteryBarIndicator->setFrame(frame);
}

}
