// How the cover sheet is built, laid out and charged.
#include "Simulator/SpringBoard/CoverSheet.hpp"

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/ChargingView.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

namespace {

constexpr double chargingSeconds = 3;
constexpr double chargingViewHeight = 90;
constexpr double axonHeight = 60;

}

void CSCoverSheetViewController::init()
{
    idleTimerController = makeObject("SBDashBoardIdleTimerController");
}

void CSCoverSheetViewController::loadView()
{
    setView(makeView("UIView", ScreenLayout::current().bounds(), "stock.coverSheet"));
}

void CSCoverSheetViewController::viewDidLoad()
{
    const UI::View view = self<UI::ViewController>().view();
    m_padlock = makeSymbol("lock.fill", {}, UI::Color::whiteColor());
    m_padlock.setAccessibilityIdentifier("stock.padlock"_ns);
    view.addSubview(m_padlock);
    dateViewController = makeController("SBFLockScreenDateViewController");
    combinedListController = makeController("CSCombinedListViewController");
    quickActionsController = makeController("CSQuickActionsViewController");
    teachableMomentsController = makeController("CSTeachableMomentsContainerViewController");
    for (const auto& child :
        {combinedListController, dateViewController, quickActionsController, teachableMomentsController})
        addChild(child);
    if (objc_getClass("AXNView")) {
        m_axon = makeView("AXNView", {}, "stock.axon");
        view.addSubview(m_axon);
    }
    self().send<UI::View, "dateView">();
}

void CSCoverSheetViewController::addChild(const UI::ViewController& child)
{
    const auto controller = self<UI::ViewController>();
    controller.addChildViewController(child);
    controller.view().addSubview(child.view());
    child.didMoveToParentViewController(controller);
}

UI::View CSCoverSheetViewController::dateView()
{
    return SB::FLockScreenDateViewController(dateViewController.raw()).dateView();
}

void CSCoverSheetViewController::viewDidLayoutSubviews()
{
    const ScreenLayout layout = ScreenLayout::current();
    m_padlock.setFrame(layout.padlock());
    // Whoever scales the clock does not change its place.
    placeUntransformed(self().send<UI::View, "dateView">(), layout.dateView());
    combinedListController.view().setFrame(layout.notificationList());
    quickActionsController.view().setFrame(layout.quickActions());
    teachableMomentsController.view().setFrame(layout.hint());
    const CGRect list = layout.notificationList();
    m_axon.setFrame(CGRectMake(list.origin.x, list.origin.y, list.size.width, axonHeight));
    m_chargingView.setFrame(centred({layout.size.width, chargingViewHeight}, layout.bounds()));
}

void CSCoverSheetViewController::transitionChargingView(bool visible, bool showsBattery, bool)
{
    hideChargingView();
    if (!visible)
        return;
    const UI::View view = self<UI::ViewController>().view();
    m_chargingView = makeView("CSBatteryChargingView", {}, "stock.charging");
    standIn<CSBatteryChargingView>(m_chargingView.raw()).update();
    m_chargingView.send<void, "setBatteryVisible:">(showsBattery);
    view.addSubview(m_chargingView);
    view.setNeedsLayout();
    combinedListController.view().setAlpha(0);
    Loop::shared().schedule(chargingSeconds, [controller = self(), shown = m_chargingView] {
        // A later one has a time of its own.
        if (standIn<CSCoverSheetViewController>(controller.raw()).m_chargingView == shown)
            controller.send<void, "_transitionChargingViewToVisible:showBattery:animated:">(false, false, true);
    });
}

void CSCoverSheetViewController::hideChargingView()
{
    m_chargingView.removeFromSuperview();
    m_chargingView = {};
    combinedListController.view().setAlpha(1);
}

UI::ViewController SBCoverSheetPresentationManager::coverSheetViewController()
{
    if (!m_coverSheet)
        m_coverSheet = makeController("CSCoverSheetViewController");
    return m_coverSheet;
}

static const StandInClass csCoverSheetViewController(
    "CSCoverSheetViewController", "UIViewController", [](Binder<CSCoverSheetViewController>& binder) {
        using Sheet = CSCoverSheetViewController;
        binder.init<"init", &Sheet::init>()
            .def<"loadView", &Sheet::loadView>()
            .def<"viewDidLoad", &Sheet::viewDidLoad>()
            .def<"viewWillAppear:", &Sheet::viewWillAppear>()
            .def<"viewWillDisappear:", &Sheet::viewWillDisappear>()
            .def<"viewDidLayoutSubviews", &Sheet::viewDidLayoutSubviews>()
            .def<"dateView", &Sheet::dateView>()
            .readonly<"dateViewController", &Sheet::dateViewController>()
            .readonly<"combinedListViewController", &Sheet::combinedListController>()
            .readonly<"quickActionsViewController", &Sheet::quickActionsController>()
            .readonly<"teachableMomentsContainerViewController", &Sheet::teachableMomentsController>()
            .readonly<"idleTimerController", &Sheet::idleTimerController>()
            .def<"_transitionChargingViewToVisible:showBattery:animated:", &Sheet::transitionChargingView>()
            .add();
    });

static const StandInClass sbCoverSheetPresentationManager(
    "SBCoverSheetPresentationManager", "NSObject", [](Binder<SBCoverSheetPresentationManager>& binder) {
        using Manager = SBCoverSheetPresentationManager;
        binder.classMethod<"sharedInstance", &sharedObject<SB::CoverSheetPresentationManager>>()
            .def<"coverSheetViewController", &Manager::coverSheetViewController>()
            .add();
    });

}
