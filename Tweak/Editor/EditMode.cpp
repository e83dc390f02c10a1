// Into the editor by a long press on the lock screen, and out of it by Done.
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"

namespace LYR {

LYR_VARIABLE(ObjC::Variable<CS::CoverSheetViewController>, _pressLong);
LYR_VARIABLE(ObjC::Variable<UI::LongPressGestureRecognizer>, _longPress);
LYR_VARIABLE(double, _allowableMovement, 100);
LYR_VARIABLE(bool, _timePress, false);
LYR_VARIABLE(bool, _datePress, false);
LYR_VARIABLE(bool, _widgetPress, false);

namespace {

/// A press this close to the bottom belongs to the system's own gestures.
constexpr CGFloat deadBand = 200;

constexpr PerTab<bool*> flags{{&_timePress, &_datePress, &_widgetPress}};

const NS::String& reason()
{
    return "LYR"_ns;
}

/// What keeps the screen lit while the user edits: the lock screen's own provider, wherever this system keeps it; nil
/// if nowhere.
SB::DashBoardIdleTimerProvider GetDashBoardIdleTimerProvider()
{
    using Provider = SB::DashBoardIdleTimerProvider;
    auto manager = SB::CoverSheetPresentationManager::sharedInstance();
    if (manager.respondsTo<"dashBoardViewController">())
        return manager.dashBoardViewController().safeValueForKey<Provider>("_dashBoardIdleTimerProvider"_ns);
    if (manager.respondsTo<"coverSheetViewController">())
        return manager.coverSheetViewController().idleTimerController().safeValueForKey<Provider>(
            "_idleTimerProvider"_ns);
    return {};
}

/// Lets the screen go dark by itself again.
void releaseScreen()
{
    GetDashBoardIdleTimerProvider().removeDisabledIdleTimerAssertionReason(reason());
}

/// What the user picks in the editor comes from the stored colours and the picked font.
void chooseEditedSources()
{
    constexpr struct {
        const char* key;
        const char* value;
    } sources[]
        = {{"colorTime", "4"}, {"colorDate", "4"}, {"colorWidget", "5"}, {"colorTextWidget", "4"}, {"customFont", "5"}};
    for (const auto& source : sources)
        _preferences->setObject(NS::String::fromUTF8(source.value), NS::String::fromUTF8(source.key));
}

void open()
{
    addOverlay();
    showOverlay();
    setActiveTab(Tab::time);
    updateButtonAppearance();
    chooseEditedSources();
}

void takeOverlayAway(bool)
{
    hideOverlay();
    tabButton(Tab::widget).setHidden(false);
    tabButton(Tab::widget).setAlpha(1);
    removeOverlay();
    removeWidgetButton();
    _timeBorderView->setHidden(true);
    _dateBorderView->setHidden(true);
}

void finishClosing(bool finished)
{
    takeOverlayAway(finished);
    dateView->updateTime();
}

/// Called at every state of the long press. One in the dead band has already hidden the list and
/// holds the screen lit: only Done takes that back.
void showLongPress(UI::LongPressGestureRecognizer recognizer)
{
    if (!_enabledCustom)
        return;
    GetDashBoardIdleTimerProvider().addDisabledIdleTimerAssertionReason(reason());
    if (recognizer.state() != UI::GestureRecognizerState::began)
        return;
    dateView->updateView();
    _notifVC->scrollView().setHidden(true);
    auto view = _pressLong->view();
    if (recognizer.locationInView(view).y > view.bounds().size.height - deadBand)
        return;
    playTap();
    prepareWells();
    animateOverlay(open);
}

constexpr Action actions[] = {action<"showLongPress:", showLongPress>(ActionGroup::editing)};

}

constinit const Area editModeArea{{}, actions};

bool isActive(Tab tab)
{
    return *flags[tab];
}

std::optional<Tab> activeTab()
{
    for (Tab tab : allTabs) {
        if (isActive(tab))
            return tab;
    }
    return std::nullopt;
}

void setActiveTab(std::optional<Tab> active)
{
    for (Tab tab : allTabs)
        *flags[tab] = tab == active;
}

void installLongPress()
{
    if (_longPress || !_pressLong)
        return;
    _longPress = UI::LongPressGestureRecognizer::withTarget(_pressLong, ObjC::selector<"showLongPress:">());
    _longPress->setAllowableMovement(_allowableMovement);
    _pressLong->view().addGestureRecognizer(_longPress);
}

void removeLongPress()
{
    if (!_longPress)
        return;
    _longPress->view().removeGestureRecognizer(_longPress);
    _longPress = UI::LongPressGestureRecognizer();
}

void pressDone()
{
    releaseScreen();
    dateView->updateView();
    _notifVC->scrollView().setHidden(false);
    setActiveTab(std::nullopt);
    animateOverlay(parkOverlay, finishClosing);
    installLongPress();
}

void leaveEditor()
{
    releaseScreen();
    _alertView->setHidden(true);
    setActiveTab(std::nullopt);
    animateOverlay(parkOverlay, takeOverlayAway);
}

void closeEditorAtOnce()
{
    if (!_pressLong)
        return;
    closeColourSheet();
    releaseScreen();
    _notifVC->scrollView().setHidden(false);
    setActiveTab(std::nullopt);
    takeOverlayAway(true);
    removeLongPress();
}

}
