#include "Tweak/Widgets/BatterySlot.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/UIKit/UIDevice.hpp"
#include "Tweak/CoverSheet/AdjustmentHooks.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/TemplateImage.hpp"
#include "Tweak/Views.hpp"
#include "Tweak/Widgets/StripColours.hpp"

#include <algorithm>
#include <cmath>

namespace LYR {

namespace {

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

NS::String percentage(float level)
{
    return NS::String::fromInteger(static_cast<long>(level * 100)).stringByAppendingString("%"_ns);
}

UI::Image batteryIcon(const NS::String& name)
{
    return resourceIcon(LYR_PREFIX "/Library/Application Support/lyr.bundle/Battery16/"_ns.stringByAppendingString(name)
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
    auto text = percentage(charge.level);
    _batteryLabel->setText(text);
    _batteryBarLabel->setText(text);
    _batteryBarName->setText(UI::Device::currentDevice().name());
}

/// What shows the charge is yellow in low-power mode.
void colour()
{
    for (const auto* view : {&_BG, &_BC, &_BC2, &_phoneImage, &_batteryBarBackground})
        (*view)->setTintColor(stripIconColour());
    auto level = _isLPM ? UI::Color::systemYellowColor() : stripIconColour();
    _BL->setTintColor(level);
    _batteryBarIndicator->setTintColor(level);
}

}

void refreshBatterySlot()
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
