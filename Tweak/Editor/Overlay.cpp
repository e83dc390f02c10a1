#include "Tweak/Editor/Overlay.hpp"

#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Clock/ScreenWidth.hpp"
#include "Tweak/Editor/EditState.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/PanelGeometry.hpp"

#include <algorithm>

namespace LYR {

namespace {

constexpr CGFloat margin = 10;
constexpr CGFloat panelHeight = 240;
constexpr CGFloat buttonHeight = 40;
constexpr CGFloat tabWidth = 85;
constexpr CGFloat doneWidth = 90;
// Above the bottom of the screen; a parked panel is below that of every one.
constexpr CGFloat panelRise = 345;
constexpr CGFloat buttonsRise = 395;
constexpr CGFloat parking = 1200;

constexpr const ObjC::Variable<UI::Button>* tabButtons[] = {&_timeButton, &_dateButton, &_widgetButton};

/// A panel on a tablet is as wide as the screen is high.
void placeOverlay(CGFloat panelTop, CGFloat buttonsTop)
{
    auto layout = screenLayout();
    if (!layout)
        return;
    CGFloat middle = UI::Screen::mainScreen().bounds().size.width / 2;
    CGFloat x = middle - layout->width / 2 + margin;
    CGFloat width = layout->width - 2 * margin;
    _optionView->setFrame(CGRectMake(x, panelTop, width, panelHeight));
    CGFloat outside = panelOutsideScreen();
    placePanel({outside, width - 2 * outside});
    _done->setFrame(CGRectMake(x + width - doneWidth, buttonsTop, doneWidth, buttonHeight));
    for (const auto* button : tabButtons) {
        (*button)->setFrame(CGRectMake(x, buttonsTop, tabWidth, buttonHeight));
        x += tabWidth;
    }
    // On the narrowest screens the last tab lies over a part of it.
    CGFloat covered = std::max<CGFloat>(x - _done->frame().origin.x, 0);
    _done->setContentEdgeInsets({0, covered, 0, 0});
}

/// Back to front.
template <class Action>
void forEachView(Action action)
{
    action(_optionView.reference());
    action(_done.reference());
    for (const auto* button : tabButtons)
        action(button->reference());
}

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
