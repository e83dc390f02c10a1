// A button of two states on the lock screen: low-power mode.
#include "Platform/SpringBoard/_CDBatterySaver.hpp"
#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/ScreenWidth.hpp"
#include "Tweak/State.hpp"

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

/// The one button gives way to the other without a motion.
void swapAfter(int mode, void (*swap)())
{
    CD::BatterySaver::batterySaver().setMode(mode);
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
    {.slot = _buttonCL, .make = [] { return makeSaverButton(UI::Color::whiteColor()); }, .placing = belowBattery,
        .action = action<"didPressButtonCL:", switchMode<true>>(ActionGroup::batterySaver)},
    {.slot = _buttonCL2, .make = [] { return makeSaverButton(UI::Color::systemYellowColor()); },
        .placing = belowBattery,
        .action = action<"didPressButtonCL2:", switchMode<false>>(ActionGroup::batterySaver)},
};

}

constinit const Area batterySaverArea{controls};

void placeBatterySaverButtons()
{
    if (screenLayout())
        place(controls, {0, UI::Screen::mainScreen().bounds().size.width});
}

void showBatterySaverState()
{
    show(_isLPM);
}

}
