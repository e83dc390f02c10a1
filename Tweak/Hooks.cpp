// The order of the rows is the order of installation.
#include "Tweak/Hooks.hpp"

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Tweak/Clock/ClockHooks.hpp"
#include "Tweak/Clock/SubtitleHooks.hpp"
#include "Tweak/CoverSheet/AdjustmentHooks.hpp"
#include "Tweak/CoverSheet/CoverSheetHooks.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/Lifecycle/LifecycleHooks.hpp"
#include "Tweak/Settings.hpp"

namespace LYR {

namespace {

using ObjC::added;
using ObjC::hooked;
using ObjC::HookRow;

std::span<const HookRow> hooksBeforeEditor()
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
    };
    return rows;
}

std::span<const HookRow> hooksAfterEditor()
{
    static const HookRow rows[] = {
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

/// What hides the header of the notifications.
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

/// Without that extension there is no such class.
std::span<const HookRow> axonHooks()
{
    static const HookRow rows[] = {
        hooked<"AXNView", "initWithFrame:", AXNView_initWithFrame>(),
        added<"AXNView", "axonCheck:", AXNView_axonCheck>(),
    };
    return rows;
}

}

void installHooks()
{
    if (_enabled) {
        ObjC::install(hooksBeforeEditor());
        installEditorActions();
        ObjC::install(hooksAfterEditor());
    }
    if (hideNotifHeader)
        ObjC::install(notificationHeaderHooks());
    ObjC::install(axonHooks());
}

}
