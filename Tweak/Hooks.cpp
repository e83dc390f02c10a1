// The order of the rows is the order of installation.
#include "Tweak/Hooks.hpp"

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Tweak/Clock/ClockHooks.hpp"
#include "Tweak/Clock/SubtitleHooks.hpp"
#include "Tweak/CoverSheet/AdjustmentHooks.hpp"
#include "Tweak/CoverSheet/CoverSheetHooks.hpp"
#include "Tweak/Editor/Appearance.hpp"
#include "Tweak/Editor/BatterySaverButtons.hpp"
#include "Tweak/Editor/ColourSheet.hpp"
#include "Tweak/Editor/EditMode.hpp"
#include "Tweak/Editor/FontNotice.hpp"
#include "Tweak/Editor/OptionSegments.hpp"
#include "Tweak/Editor/Pickers.hpp"
#include "Tweak/Editor/Sliders.hpp"
#include "Tweak/Editor/Wells.hpp"
#include "Tweak/Lifecycle/LifecycleHooks.hpp"

namespace LYR {

namespace {

using ObjC::added;
using ObjC::FixedString;
using ObjC::hooked;
using ObjC::HookRow;

/// A method added to the cover sheet's controller: an action of the editor, or an answer to its wheels.
template <FixedString selectorName, auto function>
HookRow action()
{
    return added<"CSCoverSheetViewController", selectorName, function>();
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
        action<"requestUpdateWidget", CSCoverSheetViewController_requestUpdateWidget>(),
        hooked<"CSCoverSheetViewController", "viewDidLoad", CSCoverSheetViewController_viewDidLoad>(),
        action<"didPressButtonCL:", CSCoverSheetViewController_didPressButtonCL>(),
        action<"didPressButtonCL2:", CSCoverSheetViewController_didPressButtonCL2>(),
        action<"showLongPress:", CSCoverSheetViewController_showLongPress>(),
        action<"doneButton:", CSCoverSheetViewController_doneButton>(),
        action<"timePressButton:", CSCoverSheetViewController_pressTab<Tab::time>>(),
        action<"datePressButton:", CSCoverSheetViewController_pressTab<Tab::date>>(),
        action<"widgetPressButton:", CSCoverSheetViewController_pressTab<Tab::widget>>(),
        action<"updateButtonAppearance", CSCoverSheetViewController_updateButtonAppearance>(),
        action<"showAlert:", CSCoverSheetViewController_showAlert>(),
        action<"closeAlert:", CSCoverSheetViewController_closeAlert>(),
        action<"openFolderButton:", CSCoverSheetViewController_openFolderButton>(),
        action<"linkTapped", CSCoverSheetViewController_linkTapped>(),
        action<"sliderValueChangedAlpha:", CSCoverSheetViewController_opacityChanged>(),
        action<"sliderValueChangedX:", CSCoverSheetViewController_offsetChanged<Property::x>>(),
        action<"sliderValueChangedY:", CSCoverSheetViewController_offsetChanged<Property::y>>(),
        action<"SegmentChangeViewValueChanged:", CSCoverSheetViewController_segmentChanged>(),
        action<"alignValueChanged:", CSCoverSheetViewController_optionChanged<Choice::alignment>>(),
        action<"styleValueChanged:", CSCoverSheetViewController_optionChanged<Choice::style>>(),
        action<"altValueChanged:", CSCoverSheetViewController_optionChanged<Choice::calendar>>(),
        action<"widget1ValueChanged:", CSCoverSheetViewController_optionChanged<Choice::weather>>(),
        action<"widget2ValueChanged:", CSCoverSheetViewController_optionChanged<Choice::agenda>>(),
        action<"widget3ValueChanged:", CSCoverSheetViewController_optionChanged<Choice::battery>>(),
        action<"wellButton1:", CSCoverSheetViewController_wellButton<0>>(),
        action<"wellButton2:", CSCoverSheetViewController_wellButton<1>>(),
        action<"wellButton3:", CSCoverSheetViewController_wellButton<2>>(),
        action<"wellButton4:", CSCoverSheetViewController_wellButton<3>>(),
        action<"wellButton5:", CSCoverSheetViewController_wellButton<4>>(),
        action<"showWellButton:", CSCoverSheetViewController_showWellButton>(),
        action<"pickerShow", CSCoverSheetViewController_pickerShow>(),
        action<"numberOfComponentsInPickerView:", CSCoverSheetViewController_numberOfComponentsInPickerView>(),
        action<"pickerView:numberOfRowsInComponent:", CSCoverSheetViewController_pickerView_numberOfRowsInComponent>(),
        action<"pickerView:viewForRow:forComponent:reusingView:", CSCoverSheetViewController_pickerView_viewForRow>(),
        action<"pickerView:didSelectRow:inComponent:", CSCoverSheetViewController_pickerView_didSelectRow>(),
        action<"valueChange:", CSCoverSheetViewController_fontSizeChanged>(),
        action<"stepperUpdate:", CSCoverSheetViewController_applyFontSize>(),
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
