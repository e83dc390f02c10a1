// Small changes to the stock lock screen: list, charging view, quick actions, hint texts, header, low-power flag.
#pragma once

#include "Platform/Foundation/NSTimer.hpp"
#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"
#include "Platform/SpringBoard/NCNotificationList.hpp"

namespace LYR {

void NCNotificationStructuredListViewController_viewDidLoad(NC::StructuredListViewController self, SEL cmd);
UIEdgeInsets CSCombinedListViewController_listViewDefaultContentInsets(UI::ViewController self, SEL cmd);
UI::View CSCoverSheetViewController_dateView(CS::CoverSheetViewController self, SEL cmd);
void CSCoverSheetViewController_transitionChargingView(
    CS::CoverSheetViewController self, SEL cmd, bool visible, bool showBattery, bool animated);
void CSCoverSheetViewController_transitionChargingViewOrPack(
    CS::CoverSheetViewController self, SEL cmd, bool visible, bool suppressedByPack, bool showBattery, bool animated);
bool CSQuickActionsViewController_hasFlashlight(UI::ViewController self, SEL cmd);
bool CSQuickActionsViewController_hasCamera(UI::ViewController self, SEL cmd);
void NCNotificationListSectionRevealHintView_didMoveToWindow(NC::RevealHintView self, SEL cmd);
void NCNotificationListSectionRevealHintView_configureTitle(NC::RevealHintView self, SEL cmd);
void UIBatteryView_setSaverModeActive(UI::View self, SEL cmd, bool active);
void CSTeachableMomentsContainerViewController_updateText(UI::ViewController self, SEL cmd, NS::String text);

void NCNotificationListSectionHeaderView_layoutSubviews(UI::View self, SEL cmd);
CGRect NCNotificationListSectionHeaderView_frame(UI::View self, SEL cmd);
bool NCNotificationListSectionHeaderView_hidden(UI::View self, SEL cmd);

AXN::View AXNView_initWithFrame(AXN::View self, SEL cmd, CGRect frame);
/// Added: notes whether the view has anything to show.
void AXNView_axonCheck(AXN::View self, SEL cmd, NS::Timer timer);

}
