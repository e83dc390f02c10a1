// The cover sheet: the controller that holds all of the lock screen, and the manager that presents it.
#pragma once

#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

struct CSCoverSheetViewController : UIViewController {
    void init();
    void loadView();
    void viewDidLoad();
    void viewWillAppear(bool) { }
    void viewWillDisappear(bool) { }
    void viewDidLayoutSubviews();
    UI::View dateView();
    /// Shows the charging view for a moment, or takes it away.
    void transitionChargingView(bool visible, bool showsBattery, bool animated);

    UI::ViewController dateViewController;
    UI::ViewController combinedListController;
    UI::ViewController quickActionsController;
    UI::ViewController teachableMomentsController;
    NS::Object idleTimerController;

private:
    void addChild(const UI::ViewController& child);
    void hideChargingView();

    UI::View m_padlock;
    UI::View m_axon;
    UI::View m_chargingView;
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
