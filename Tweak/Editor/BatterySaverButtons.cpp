#include "Tweak/Editor/BatterySaverButtons.hpp"

#include "Platform/SpringBoard/_CDBatterySaver.hpp"
#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/CoverSheet/AdjustmentHooks.hpp"
#include "Tweak/Clock/ScreenWidth.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/Feedback.hpp"
#include "Tweak/Views.hpp"

namespace LYR {

namespace {

constexpr CGFloat side = 32;
/// Below the strip's battery, at the right margin.
constexpr CGFloat top = 220;
constexpr CGFloat margin = 15;

void build(ObjC::Variable<UI::Button>& variable, const NS::String& name, const NS::String& symbol, SEL action,
    const UI::Color& colour, const CS::CoverSheetViewController& controller)
{
    auto button = UI::Button::buttonWithType(UI::ButtonType::system);
    button.setImage(UI::Image::systemImageNamed(symbol));
    button.setTintColor(colour);
    button.setBackgroundColor(UI::Color::colorWithWhite(0.25, 1));
    button.layer().setCornerRadius(side / 2);
    button.addTarget(controller, action, UI::ControlEvents::touchUpInside);
    if (screenLayout()) {
        CGFloat right = UI::Screen::mainScreen().bounds().size.width - margin;
        button.setFrame(CGRectMake(right - side, top, side, side));
    }
    controller.view().addSubview(button);
    keepView(variable, button, name);
}

/// The one button gives way to the other without a motion.
void swapAfter(int mode, void (*swap)())
{
    CD::BatterySaver::batterySaver().setMode(mode);
    UI::View::animateWithDuration(0, 0, UI::AnimationOptions::transitionCrossDissolve, swap);
}

void showAsOn()
{
    dateView->updateTime();
    _buttonCL->setHidden(true);
    _buttonCL2->setHidden(false);
    playTap();
}

void showAsOff()
{
    dateView->updateTime();
    _buttonCL->setHidden(false);
    _buttonCL2->setHidden(true);
    playTap();
}

}

void buildBatterySaverButtons(const CS::CoverSheetViewController& controller)
{
    build(_buttonCL, "_buttonCL"_ns, "battery.25"_ns, ObjC::selector<"didPressButtonCL:">(), UI::Color::whiteColor(),
        controller);
    build(_buttonCL2, "_buttonCL2"_ns, "battery.25"_ns, ObjC::selector<"didPressButtonCL2:">(),
        UI::Color::systemYellowColor(), controller);
    showBatterySaverState();
}

void showBatterySaverState()
{
    _buttonCL->setHidden(_isLPM);
    _buttonCL2->setHidden(!_isLPM);
}

void CSCoverSheetViewController_didPressButtonCL(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    swapAfter(1, showAsOn);
}

void CSCoverSheetViewController_didPressButtonCL2(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    swapAfter(0, showAsOff);
}

}
