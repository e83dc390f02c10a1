// The order of the rows is the order of installation.
#include "Tweak/Hooks.hpp"

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Tweak/Clock/ClockHooks.hpp"
#include "Tweak/Clock/SubtitleHooks.hpp"
#include "Tweak/CoverSheet/AdjustmentHooks.hpp"
#include "Tweak/CoverSheet/CoverSheetHooks.hpp"
#include "Tweak/Editor/Pickers.hpp"
#include "Tweak/Lifecycle/LifecycleHooks.hpp"

namespace LYR {

namespace {

using ObjC::added;
using ObjC::FixedString;
using ObjC::hooked;
using ObjC::HookRow;
using ObjC::Object;

/// An added method that does nothing yet. The name keeps one function apart from the other.
template <FixedString selectorName, class Result, class... Arguments>
Result silent(Object, SEL, Arguments...)
{
    return Result();
}

template <FixedString className, FixedString selectorName, class Result, class... Arguments>
HookRow reserved()
{
    return added<className, selectorName, &silent<selectorName, Result, Arguments...>>();
}

/// An action that a control sends to the cover sheet.
template <FixedString selectorName>
HookRow coverSheetAction()
{
    return reserved<"CSCoverSheetViewController", selectorName, void, Object>();
}

}

std::span<const HookRow> mainHooks()
{
    static const HookRow rows[] = {
        hooked<"NCNotificationStructuredListViewController", "viewDidLoad",
            NCNotificationStructuredListViewController_viewDidLoad>(),
        hooked<"CSCombinedListViewController", "_listViewDefaultContentInsets",
            CSCombinedListViewController_listViewDefaultContentInsets>(),
        hooked<"CSCoverSheetViewController", "dateView", CSCoverSheetViewController_dateView>(),
        hooked<"CSCoverSheetViewController", "_transitionChargingViewToVisible:showBattery:animated:",
            CSCoverSheetViewController_transitionChargingView>(),
        hooked<"CSCoverSheetViewController", "viewWillAppear:", CSCoverSheetViewController_viewWillAppear>(),
        hooked<"CSCoverSheetViewController", "viewWillDisappear:", CSCoverSheetViewController_viewWillDisappear>(),
        added<"CSCoverSheetViewController", "requestUpdateWidget", CSCoverSheetViewController_requestUpdateWidget>(),
        hooked<"CSCoverSheetViewController", "viewDidLoad", CSCoverSheetViewController_viewDidLoad>(),
        coverSheetAction<"didPressButtonCL:">(),
        coverSheetAction<"didPressButtonCL2:">(),
        coverSheetAction<"showLongPress:">(),
        coverSheetAction<"doneButton:">(),
        coverSheetAction<"timePressButton:">(),
        coverSheetAction<"datePressButton:">(),
        coverSheetAction<"widgetPressButton:">(),
        reserved<"CSCoverSheetViewController", "updateButtonAppearance", void>(),
        coverSheetAction<"showAlert:">(),
        coverSheetAction<"closeAlert:">(),
        coverSheetAction<"openFolderButton:">(),
        reserved<"CSCoverSheetViewController", "linkTapped", void>(),
        coverSheetAction<"sliderValueChangedAlpha:">(),
        coverSheetAction<"sliderValueChangedX:">(),
        coverSheetAction<"sliderValueChangedY:">(),
        coverSheetAction<"SegmentChangeViewValueChanged:">(),
        coverSheetAction<"alignValueChanged:">(),
        coverSheetAction<"styleValueChanged:">(),
        coverSheetAction<"altValueChanged:">(),
        coverSheetAction<"widget1ValueChanged:">(),
        coverSheetAction<"widget2ValueChanged:">(),
        coverSheetAction<"widget3ValueChanged:">(),
        coverSheetAction<"wellButton1:">(),
        coverSheetAction<"wellButton2:">(),
        coverSheetAction<"wellButton3:">(),
        coverSheetAction<"wellButton4:">(),
        coverSheetAction<"wellButton5:">(),
        coverSheetAction<"showWellButton:">(),
        reserved<"CSCoverSheetViewController", "pickerShow", void>(),
        added<"CSCoverSheetViewController",
            "numberOfComponentsInPickerView:", CSCoverSheetViewController_numberOfComponentsInPickerView>(),
        added<"CSCoverSheetViewController",
            "pickerView:numberOfRowsInComponent:", CSCoverSheetViewController_pickerView_numberOfRowsInComponent>(),
        reserved<"CSCoverSheetViewController", "pickerView:viewForRow:forComponent:reusingView:", Object, Object, long,
            long, Object>(),
        reserved<"CSCoverSheetViewController", "pickerView:didSelectRow:inComponent:", void, Object, long, long>(),
        coverSheetAction<"valueChange:">(),
        coverSheetAction<"stepperUpdate:">(),
        hooked<"CSQuickActionsViewController", "hasFlashlight", CSQuickActionsViewController_hasFlashlight>(),
        hooked<"CSQuickActionsViewController", "hasCamera", CSQuickActionsViewController_hasCamera>(),
        hooked<"NCNotificationListSectionRevealHintView", "didMoveToWindow",
            NCNotificationListSectionRevealHintView_didMoveToWindow>(),
        hooked<"_UIBatteryView", "setSaverModeActive:", UIBatteryView_setSaverModeActive>(),
        hooked<"CSTeachableMomentsContainerViewController",
            "_updateText:", CSTeachableMomentsContainerViewController_updateText>(),
        hooked<"SBFLockScreenDateView", "initWithFrame:", SBFLockScreenDateView_initWithFrame>(),
        hooked<"SBFLockScreenDateView", "_updateLabels", SBFLockScreenDateView_updateLabels>(),
        hooked<"SBFLockScreenDateView", "layoutSubviews", SBFLockScreenDateView_layoutSubviews>(),
        hooked<"SBFLockScreenDateViewController", "dateView", SBFLockScreenDateViewController_dateView>(),
        hooked<"SBFLockScreenDateViewController", "viewDidLoad", SBFLockScreenDateViewController_viewDidLoad>(),
        added<"SBFLockScreenDateViewController", "updateTime", SBFLockScreenDateViewController_updateTime>(),
        hooked<"SBFLockScreenDateViewController", "viewWillAppear:", SBFLockScreenDateViewController_viewWillAppear>(),
        hooked<"SBFLockScreenDateViewController",
            "viewWillDisappear:", SBFLockScreenDateViewController_viewWillDisappear>(),
        added<"SBFLockScreenDateViewController", "requestUpdateTime",
            SBFLockScreenDateViewController_requestUpdateTime>(),
        hooked<"SBHomeScreenViewController", "viewWillAppear:", SBHomeScreenViewController_viewWillAppear>(),
        hooked<"SpringBoard", "didReceiveMemoryWarning", SpringBoard_didReceiveMemoryWarning>(),
        hooked<"SpringBoard", "frontDisplayDidChange:", SpringBoard_frontDisplayDidChange>(),
        hooked<"SBFLockScreenDateSubtitleView", "didMoveToWindow", SBFLockScreenDateSubtitleView_didMoveToWindow>(),
        hooked<"SBFLockScreenDateSubtitleView", "setString:", SBFLockScreenDateSubtitleView_setString>(),
        hooked<"SBFLockScreenDateSubtitleDateView", "didMoveToWindow",
            SBFLockScreenDateSubtitleDateView_didMoveToWindow>(),
        hooked<"SBLockScreenTimerDialView", "didMoveToWindow", SBLockScreenTimerDialView_didMoveToWindow>(),
        hooked<"SBLockScreenManager", "lockUIFromSource:withOptions:", SBLockScreenManager_lockUIFromSource>(),
        added<"SBLockScreenManager", "requestUpdateWidget", SBLockScreenManager_requestUpdateWidget>(),
        hooked<"SBBacklightController",
            "turnOnScreenFullyWithBacklightSource:", SBBacklightController_turnOnScreenFully>(),
        added<"SBBacklightController", "requestUpdateWidget", SBBacklightController_requestUpdateWidget>(),
    };
    return rows;
}

std::span<const HookRow> notificationHeaderHooks()
{
    static const HookRow rows[] = {
        hooked<"NCNotificationListSectionHeaderView", "layoutSubviews",
            NCNotificationListSectionHeaderView_layoutSubviews>(),
        hooked<"NCNotificationListSectionHeaderView", "frame", NCNotificationListSectionHeaderView_frame>(),
        hooked<"NCNotificationListSectionHeaderView", "hidden", NCNotificationListSectionHeaderView_hidden>(),
    };
    return rows;
}

std::span<const HookRow> axonHooks()
{
    static const HookRow rows[] = {
        hooked<"AXNView", "initWithFrame:", AXNView_initWithFrame>(),
        added<"AXNView", "axonCheck:", AXNView_axonCheck>(),
    };
    return rows;
}

}
