// The cover sheet: the controller that holds all of the lock screen, and the manager that presents it.
#pragma once

#include "Platform/ObjC/Block.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

/// The lock screen's view. What slides when another page comes, and what covers the page, have places of their own.
struct CSCoverSheetView : UIView {
    void addParts() override;
    void placeParts() override;
    void layoutSubviews() { placeParts(); }

    UI::View slideable;
    UI::View modal;
    /// How far the page is from its place.
    double slide = 0;
};

/// From left to right.
enum class CoverSheetPage : unsigned long { today = 0, main = 1, camera = 2 };

struct CSCoverSheetViewController : UIViewController {
    bool isInSecureWindow() const override { return true; }
    void loadView();
    void viewDidLoad();
    void viewWillAppear(bool) { }
    void viewWillDisappear(bool) { }
    void placeParts() override;
    UI::View dateView();
    /// Shows the charging view for a moment, or takes it away.
    void transitionChargingView(bool visible, bool showsBattery, bool animated);

    void activatePage(unsigned long page, bool animated, ObjC::BlockArgument completion);
    unsigned long indexOfMainPage() const { return static_cast<unsigned long>(CoverSheetPage::main); }
    unsigned long indexOfCameraPage() const { return static_cast<unsigned long>(CoverSheetPage::camera); }
    bool isPasscodeLockVisible() const { return static_cast<bool>(m_passcode); }
    void setPasscodeLockVisible(bool visible, bool animated);

    /// The same since system 16, for a battery pack too.
    void transitionChargingViewOrPack(bool visible, bool suppressedByPack, bool showsBattery, bool animated);

    UI::ViewController dateViewController;
    UI::ViewController combinedListController;
    UI::ViewController quickActionsController;
    UI::ViewController teachableMomentsController;
    NS::Object idleTimerController();

private:
    void addChild(const UI::ViewController& child);
    void hideChargingView();
    /// Null where somebody gave the controller another kind of view.
    CSCoverSheetView* sheetView();
    void showStockContent(bool shown);

    UI::View m_passcode;
    UI::View m_padlock;
    UI::View m_axon;
    UI::View m_chargingView;
    NS::Object m_idleTimerController;
};

struct SBCoverSheetPresentationManager : StandIn {
    using Root = SBCoverSheetPresentationManager;

    /// Made when first asked for; a new one once the last was dropped.
    UI::ViewController coverSheetViewController();
    void dropCoverSheet() { m_coverSheet = {}; }

private:
    UI::ViewController m_coverSheet;
};

}
