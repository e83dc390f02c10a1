// Into the editor by a long press on the lock screen, and out of it by Done.
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/Editor/PressDelegate.hpp"
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

/// The value of the key, where the object can be asked for it without raising; nil otherwise.
SB::DashBoardIdleTimerProvider providerUnder(const NS::String& key, const NS::Object& owner)
{
    if (!owner.respondsTo<"safeValueForKey:">())
        return {};
    return owner.safeValueForKey<SB::DashBoardIdleTimerProvider>(key);
}

/// What keeps the screen lit while the user edits: the lock screen's own provider, wherever this system keeps it; nil
/// if nowhere.
SB::DashBoardIdleTimerProvider GetDashBoardIdleTimerProvider()
{
    auto manager = SB::CoverSheetPresentationManager::sharedInstance();
    if (auto provider = providerUnder("_dashBoardIdleTimerProvider"_ns, manager.dashBoardViewController()))
        return provider;
    auto controller = manager.coverSheetViewController().idleTimerController();
    if (auto provider = providerUnder("_idleTimerProvider"_ns, controller))
        return provider;
    return controller.provider();
}

SB::DashBoardIdleTimerController idleTimerController()
{
    return SB::CoverSheetPresentationManager::sharedInstance().coverSheetViewController().idleTimerController();
}

/// Keeps the screen lit, by the provider, or by the controller where the provider is not to be found.
void holdScreen()
{
    if (auto provider = GetDashBoardIdleTimerProvider())
        provider.addDisabledIdleTimerAssertionReason(reason());
    else
        idleTimerController().addIdleTimerDisabledAssertionReason(reason());
}

/// Lets the screen go dark by itself again.
void releaseScreen()
{
    if (auto provider = GetDashBoardIdleTimerProvider())
        provider.removeDisabledIdleTimerAssertionReason(reason());
    else
        idleTimerController().removeIdleTimerDisabledAssertionReason(reason());
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
    holdScreen();
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

bool isEditing()
{
    return activeTab().has_value();
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
    _longPress->setDelegate(PressDelegate::shared());
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
