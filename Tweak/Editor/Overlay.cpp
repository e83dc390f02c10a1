// The panel and the row of buttons above it: on the screen, off it, and on the way.
#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/ScreenWidth.hpp"

#include <algorithm>

namespace LYR {

LYR_VIEW(UI::Button, _done);
LYR_VIEW(UI::Button, _timeButton);
LYR_VIEW(UI::Button, _dateButton);
LYR_VIEW(UI::Button, _widgetButton);

namespace {

constexpr CGFloat margin = 10;
constexpr CGFloat buttonHeight = 40;
constexpr int buttonRadius = 12;
constexpr CGFloat tabWidth = 85;
constexpr CGFloat doneWidth = 90;
/// Above the bottom of the screen; a parked panel is below that of every one.
constexpr CGFloat panelRise = 345;
constexpr CGFloat buttonsRise = 395;
constexpr CGFloat parking = 1200;

template <Tab tab>
void pressTab()
{
    setActiveTab(tab);
    updateButtonAppearance();
    dateView->updateTime();
}

constexpr Placing tabAt(int index)
{
    return fromLeft(index * tabWidth, tabWidth, 0, buttonHeight);
}

constexpr Control controls[] = {
    {.slot = _done, .make = textButton<"Done", buttonRadius>, .placing = fromRight(0, doneWidth, 0, buttonHeight),
        .action = action<"doneButton:", pressDone>(ActionGroup::editing)},
    {.slot = _timeButton, .make = textButton<"Time", buttonRadius>, .placing = tabAt(0),
        .action = action<"timePressButton:", pressTab<Tab::time>>(ActionGroup::tabs)},
    {.slot = _dateButton, .make = textButton<"Date", buttonRadius>, .placing = tabAt(1),
        .action = action<"datePressButton:", pressTab<Tab::date>>(ActionGroup::tabs)},
    {.slot = _widgetButton, .make = textButton<"Widget", buttonRadius>, .placing = tabAt(2),
        .action = action<"widgetPressButton:", pressTab<Tab::widget>>(ActionGroup::tabs)},
};

constexpr Action actions[] = {action<"updateButtonAppearance", updateButtonAppearance>(ActionGroup::tabs)};

/// A panel on a tablet is as wide as the screen is high.
void placeOverlay(CGFloat panelTop, CGFloat buttonsTop)
{
    auto layout = screenLayout();
    if (!layout)
        return;
    CGFloat middle = UI::Screen::mainScreen().bounds().size.width / 2;
    Slot slot{middle - layout->width / 2 + margin, layout->width - 2 * margin};
    _optionView->setFrame(CGRectMake(slot.x, panelTop, slot.width, panelHeight));
    CGFloat outside = panelOutsideScreen();
    placePanel({outside, slot.width - 2 * outside});
    place(controls, slot, buttonsTop);
    // On the narrowest screens the last tab lies over a part of it.
    CGRect last = _widgetButton->frame();
    CGFloat covered = std::max<CGFloat>(last.origin.x + last.size.width - _done->frame().origin.x, 0);
    _done->setContentEdgeInsets({0, covered, 0, 0});
}

/// Back to front.
template <class Action>
void forEachView(Action action)
{
    action(_optionView.reference());
    for (const Control& button : controls)
        action(button.slot.view());
}

}

constinit const Area tabArea{controls, actions};

const UI::Button& tabButton(Tab tab)
{
    constexpr PerTab<const ObjC::Variable<UI::Button>*> buttons{{&_timeButton, &_dateButton, &_widgetButton}};
    return buttons[tab]->reference();
}

void animateOverlay(void (*changes)(), void (*completion)(bool))
{
    UI::View::animateWithDuration(0.5, 0, UI::AnimationOptions::curveEaseIn, changes,
        completion ? ObjC::Block<void(bool)>(completion) : ObjC::Block<void(bool)>());
}

CGFloat panelOutsideScreen()
{
    return std::max<CGFloat>(-_optionView->frame().origin.x, 0);
}

void addOverlay()
{
    auto cover = _pressLong->view();
    forEachView([&](const UI::View& view) { cover.addSubview(view); });
}

void showOverlay()
{
    forEachView([](const UI::View& view) {
        view.setHidden(false);
        view.setAlpha(1);
    });
    CGFloat height = UI::Screen::mainScreen().bounds().size.height;
    placeOverlay(height - panelRise, height - buttonsRise);
}

void parkOverlay()
{
    placeOverlay(parking, parking);
}

void hideOverlay()
{
    _alertView->setHidden(true);
    for (const UI::View& view : {UI::View(_done), UI::View(_timeButton), UI::View(_dateButton), _optionView.get()}) {
        view.setHidden(true);
        view.setAlpha(0);
    }
}

void removeOverlay()
{
    for (const UI::View& view : {_optionView.get(), UI::View(_done), UI::View(_timeButton), UI::View(_dateButton)})
        view.removeFromSuperview();
}

void removeWidgetButton()
{
    _widgetButton->removeFromSuperview();
}

}
