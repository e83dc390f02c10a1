// A button of two states on the lock screen: low-power mode.
#include "Platform/SpringBoard/_CDBatterySaver.hpp"
#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/ScreenWidth.hpp"
#include "Tweak/State.hpp"
#include "Tweak/StockMotion.hpp"

#include <dlfcn.h>

namespace LYR {

LYR_VIEW(UI::Button, _buttonCL);
LYR_VIEW(UI::Button, _buttonCL2);

namespace {

constexpr CGFloat side = 32;
/// Below the strip's battery, at the right margin.
constexpr Placing belowBattery = fromRight(15, side, 220, side);

UI::View makeSaverButton(const UI::Color& colour)
{
    auto button = UI::Button::buttonWithType(UI::ButtonType::system);
    button.setImage(UI::Image::systemImageNamed("battery.25"_ns));
    button.setTintColor(colour);
    button.setBackgroundColor(UI::Color::colorWithWhite(0.25, 1));
    button.layer().setCornerRadius(side / 2);
    return button;
}

/// The frameworks of the switch, which nothing else need have brought into the process.
void openPowerFrameworks()
{
    for (const char* framework : {"/System/Library/PrivateFrameworks/CoreDuet.framework/CoreDuet",
             "/System/Library/PrivateFrameworks/LowPowerMode.framework/LowPowerMode"})
        dlopen(framework, RTLD_LAZY);
}

/// Whether this system has a switch that we know.
bool setLowPowerMode(bool on)
{
    openPowerFrameworks();
    if (auto saver = CD::BatterySaver::batterySaver()) {
        saver.setMode(on);
        return true;
    }
    auto mode = PM::LowPowerMode::sharedInstance();
    return mode && mode.setPowerMode(on, "LYR"_ns);
}

/// The one button gives way to the other without a motion, and stays where nothing was switched.
void swapAfter(bool on, void (*swap)())
{
    if (!setLowPowerMode(on))
        return;
    UI::View::animateWithDuration(0, 0, UI::AnimationOptions::transitionCrossDissolve, swap);
}

void show(bool on)
{
    _buttonCL->setHidden(on);
    _buttonCL2->setHidden(!on);
}

template <bool on>
void showSwitched()
{
    dateView->updateTime();
    show(on);
    playTap();
}

template <bool on>
void switchMode()
{
    swapAfter(on, showSwitched<on>);
}

constexpr Control controls[] = {
    {.slot = _buttonCL,
        .make = [] { return makeSaverButton(UI::Color::whiteColor()); },
        .placing = belowBattery,
        .action = action<"didPressButtonCL:", switchMode<true>>(ActionGroup::batterySaver)},
    {.slot = _buttonCL2,
        .make = [] { return makeSaverButton(UI::Color::systemYellowColor()); },
        .placing = belowBattery,
        .action = action<"didPressButtonCL2:", switchMode<false>>(ActionGroup::batterySaver)},
};

}

constinit const Area batterySaverArea{controls};

void placeBatterySaverButtons()
{
    if (!screenLayout())
        return;
    for (const Control& button : controls)
        button.slot.view().setTransform(CGAffineTransformIdentity);
    place(controls, {0, UI::Screen::mainScreen().bounds().size.width});
    moveBatterySaverButtons();
}

void moveBatterySaverButtons()
{
    for (const Control& button : controls) {
        button.slot.view().setAlpha(stockMotion.timeAlpha);
        button.slot.view().setTransform(stockMotion.transform());
    }
}

void hideBatterySaverButtons()
{
    setHidden(controls, true);
}

void showBatterySaverState()
{
    show(_isLPM);
}

}
