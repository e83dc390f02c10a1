#include "Tweak/Editor/EditMode.hpp"

#include "Tweak/CoverSheet/AdjustmentHooks.hpp"
#include "Tweak/Editor/Appearance.hpp"
#include "Tweak/Editor/ColourSheet.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/Feedback.hpp"
#include "Tweak/Editor/Overlay.hpp"
#include "Tweak/Editor/Wells.hpp"
#include "Tweak/Lifecycle/IdleTimer.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/Views.hpp"

namespace LYR {

namespace {

/// A press this close to the bottom belongs to the system's own gestures.
constexpr CGFloat deadBand = 200;

const NS::String& reason()
{
    return "LYR"_ns;
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
    _widgetButton->setHidden(false);
    _widgetButton->setAlpha(1);
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

// A press in the dead band has already hidden the list and holds the screen lit: only Done takes that back.
void CSCoverSheetViewController_showLongPress(
    CS::CoverSheetViewController, SEL, UI::LongPressGestureRecognizer recognizer)
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

void CSCoverSheetViewController_doneButton(CS::CoverSheetViewController, SEL, ObjC::Object)
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
    _colorWellSheet->closeView();
    releaseScreen();
    _notifVC->scrollView().setHidden(false);
    setActiveTab(std::nullopt);
    takeOverlayAway(true);
    removeLongPress();
}

}
