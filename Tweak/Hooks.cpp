// The order of the rows is the order of installation.
#include "Tweak/Hooks.hpp"

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Platform/Foundation/NSLog.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Tweak/Clock/ClockHooks.hpp"
#include "Tweak/Clock/SubtitleHooks.hpp"
#include "Tweak/CoverSheet/AdjustmentHooks.hpp"
#include "Tweak/CoverSheet/CoverSheetHooks.hpp"
#include "Tweak/CoverSheet/MotionHooks.hpp"
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

/// What the lock screen of one system or another does besides.
std::span<const HookRow> furtherHooks()
{
    static const HookRow rows[] = {
        hooked<"CSCoverSheetViewController", "viewDidAppear:", CSCoverSheetViewController_viewDidAppear>(),
        hooked<"CSCoverSheetView", "layoutSubviews", CSCoverSheetView_layoutSubviews>(),
        hooked<"SBFLockScreenDateView",
            "setContentAlpha:withSubtitleVisible:", SBFLockScreenDateView_setContentAlpha>(),
        hooked<"SBFLockScreenDateView", "setTimeAlpha:subtitleAlpha:", SBFLockScreenDateView_setTimeAlpha>(),
        hooked<"SBFLockScreenDateViewController",
            "updateTimerWithText:", SBFLockScreenDateViewController_updateTimerWithText>(),
        hooked<"NCNotificationListSectionRevealHintView", "_configureRevealHintTitleIfNecessary",
            NCNotificationListSectionRevealHintView_configureTitle>(),
        hooked<"CSCoverSheetViewController", "_transitionChargingViewToVisible:suppressedByPack:showBattery:animated:",
            CSCoverSheetViewController_transitionChargingViewOrPack>(),
        hooked<"SBLockScreenManager",
            "lockUIFromSource:withOptions:completion:", SBLockScreenManager_lockUIFromSourceWithCompletion>(),
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

void noteLeftOut(const HookRow& row)
{
    NS::log("[LYR] not intercepted on this system: "_ns.stringByAppendingString(NS::String::fromUTF8(row.className))
                .stringByAppendingString(" "_ns)
                .stringByAppendingString(NS::String::fromUTF8(row.selectorName)));
}

void install(const char* name, std::span<const HookRow> rows)
{
    hookTables.tables[hookTables.count++] = {name, rows.data(), rows.size()};
    ObjC::install(rows, noteLeftOut);
}

}

constinit HookTables hookTables{};

void installHooks()
{
    if (_enabled) {
        install("main", hooksBeforeEditor());
        install("editor", editorActionRows());
        install("main", hooksAfterEditor());
    }
    if (hideNotifHeader)
        install("notificationHeader", notificationHeaderHooks());
    install("axon", axonHooks());
    if (_enabled)
        install("further", furtherHooks());
}

}
