// One interception for each change, in the order of the screen from top to bottom.
#include "Tweak/CoverSheet/AdjustmentHooks.hpp"

#include "Platform/ObjC/Hook.hpp"
#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/RefreshTimers.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"

#include <utility>

namespace LYR {

/// The notification view of the other extension has something to show.
LYR_VARIABLE(bool, _axonVisible, false);

void NCNotificationStructuredListViewController_viewDidLoad(NC::StructuredListViewController self, SEL cmd)
{
    stock<NCNotificationStructuredListViewController_viewDidLoad>(self, cmd);
    _notifVC = self;
}

/// The list makes room for the clock above it.
UIEdgeInsets CSCombinedListViewController_listViewDefaultContentInsets(UI::ViewController self, SEL cmd)
{
    auto insets = stock<CSCombinedListViewController_listViewDefaultContentInsets>(self, cmd);
    insets.top += _yNC.doubleValue();
    return insets;
}

UI::View CSCoverSheetViewController_dateView(CS::CoverSheetViewController self, SEL cmd)
{
    auto view = stock<CSCoverSheetViewController_dateView>(self, cmd);
    coverView = self;
    return view;
}

void CSCoverSheetViewController_transitionChargingView(
    CS::CoverSheetViewController self, SEL cmd, bool visible, bool showBattery, bool animated)
{
    const bool allowed = !_chargeAnim;
    stock<CSCoverSheetViewController_transitionChargingView>(
        self, cmd, visible && allowed, showBattery && allowed, animated && allowed);
}

/// As later systems call it, which know of battery packs.
void CSCoverSheetViewController_transitionChargingViewOrPack(
    CS::CoverSheetViewController self, SEL cmd, bool visible, bool suppressedByPack, bool showBattery, bool animated)
{
    const bool allowed = !_chargeAnim;
    stock<CSCoverSheetViewController_transitionChargingViewOrPack>(
        self, cmd, visible && allowed, suppressedByPack, showBattery && allowed, animated && allowed);
}

/// A phone without one does not get one.
bool CSQuickActionsViewController_hasFlashlight(UI::ViewController self, SEL cmd)
{
    return stock<CSQuickActionsViewController_hasFlashlight>(self, cmd) && !_hiddenFlashlight;
}

bool CSQuickActionsViewController_hasCamera(UI::ViewController self, SEL cmd)
{
    return stock<CSQuickActionsViewController_hasCamera>(self, cmd) && !_hiddenCamera;
}

static void writeHint(const NC::RevealHintView& hint)
{
    if (!_enabledCT2)
        return;
    auto title = hint.ivar<SB::UILegibilityLabel, "_revealHintTitle">();
    auto text = _ctNoOlder.stringValue();
    title.setTextAlignment(UI::TextAlignment::center);
    if (text.length() > 0)
        title.setString(text);
}

void NCNotificationListSectionRevealHintView_didMoveToWindow(NC::RevealHintView self, SEL cmd)
{
    stock<NCNotificationListSectionRevealHintView_didMoveToWindow>(self, cmd);
    writeHint(self);
}

/// The label may be made after the view came to its window.
void NCNotificationListSectionRevealHintView_configureTitle(NC::RevealHintView self, SEL cmd)
{
    stock<NCNotificationListSectionRevealHintView_configureTitle>(self, cmd);
    writeHint(self);
}

void UIBatteryView_setSaverModeActive(UI::View self, SEL cmd, bool active)
{
    stock<UIBatteryView_setSaverModeActive>(self, cmd, active);
    const bool changed = std::exchange(_isLPM, active) != active;
    // In the dark the buttons stay away; the light brings the one of the present mode.
    if (changed && _screenOn)
        showBatterySaverState();
}

void CSTeachableMomentsContainerViewController_updateText(UI::ViewController self, SEL cmd, NS::String text)
{
    stock<CSTeachableMomentsContainerViewController_updateText>(
        self, cmd, _enabledCT ? _customText.stringValue() : text);
}

/// The stock layout is not run: what never shows needs none.
void NCNotificationListSectionHeaderView_layoutSubviews(UI::View self, SEL)
{
    self.setHidden(true);
}

CGRect NCNotificationListSectionHeaderView_frame(UI::View, SEL)
{
    return {};
}

bool NCNotificationListSectionHeaderView_hidden(UI::View, SEL)
{
    return true;
}

AXN::View AXNView_initWithFrame(AXN::View self, SEL cmd, CGRect frame)
{
    NS::Timer::scheduled(1.0, self, ObjC::selector<"axonCheck:">(), true);
    return stockInitializer<AXNView_initWithFrame>(self, cmd, frame);
}

void AXNView_axonCheck(AXN::View self, SEL, NS::Timer)
{
    _axonVisible = self.list().count() != 0;
}

}
