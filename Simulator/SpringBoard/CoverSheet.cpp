// How the cover sheet is built, laid out and charged.
#include "Simulator/SpringBoard/CoverSheet.hpp"

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/Blocks.hpp"
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
constexpr double passcodeFontSize = 20;
constexpr double passcodeTop = 120;
constexpr double passcodeHeight = 30;

}

NS::Object CSCoverSheetViewController::idleTimerController()
{
    if (!m_idleTimerController)
        m_idleTimerController
            = makeObject<"initWithCoverSheetViewController:">("SBDashBoardIdleTimerController", self());
    return m_idleTimerController;
}

/// Transparent, and nothing to touch.
static UI::View makeContainer(const char* identifier)
{
    const UI::View container = makeView("UIView", {}, identifier);
    container.setUserInteractionEnabled(false);
    return container;
}

void CSCoverSheetView::addParts()
{
    slideable = makeContainer("stock.slideable");
    modal = makeContainer("stock.modal");
    modal.setHidden(true);
    addSubview(slideable);
    addSubview(modal);
}

void CSCoverSheetView::placeParts()
{
    const CGSize size = bounds().size;
    slideable.setFrame(CGRectMake(slide, 0, size.width, size.height));
    modal.setFrame(bounds());
}

void CSCoverSheetViewController::loadView()
{
    setView(makeView("CSCoverSheetView", ScreenLayout::current().bounds(), "stock.coverSheet"));
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

void CSCoverSheetViewController::placeParts()
{
    const ScreenLayout layout = ScreenLayout::current();
    const CSCoverSheetView* sheet = sheetView();
    const auto slid = [sheet](CGRect frame) {
        frame.origin.x += sheet ? sheet->slide : 0;
        return frame;
    };
    m_padlock.setFrame(layout.padlock());
    // Whoever scales the clock does not change its place.
    placeUntransformed(self().send<UI::View, "dateView">(), slid(layout.dateView()));
    combinedListController.view().setFrame(slid(layout.notificationList()));
    quickActionsController.view().setFrame(slid(layout.quickActions()));
    teachableMomentsController.view().setFrame(slid(layout.hint()));
    const CGRect list = layout.notificationList();
    m_axon.setFrame(CGRectMake(list.origin.x, list.origin.y, list.size.width, axonHeight));
    m_chargingView.setFrame(centred({layout.size.width, chargingViewHeight}, layout.bounds()));
}

CSCoverSheetView* CSCoverSheetViewController::sheetView()
{
    return standInOrNull<CSCoverSheetView>(self<UI::ViewController>().view());
}

void CSCoverSheetViewController::activatePage(unsigned long page, bool, ObjC::BlockArgument completion)
{
    const double width = ScreenLayout::current().size.width;
    if (CSCoverSheetView* sheet = sheetView())
        sheet->slide = (static_cast<double>(indexOfMainPage()) - static_cast<double>(page)) * width;
    self<UI::ViewController>().view().setNeedsLayout();
    Loop::shared().schedule(
        0, [block = KeptBlock<void()>(completion.block)] { block(); }, WorkKind::mainQueue);
}

/// The keypad covers the page, and the clock and what is below it give way.
void CSCoverSheetViewController::setPasscodeLockVisible(bool visible, bool)
{
    if (visible == isPasscodeLockVisible())
        return;
    const CSCoverSheetView* sheet = sheetView();
    const UI::View modal = sheet ? sheet->modal : UI::View();
    modal.setHidden(!visible);
    if (visible) {
        m_passcode = makeLabel("Enter Passcode", passcodeFontSize, FontWeight::regular, UI::Color::whiteColor());
        m_passcode.setAccessibilityIdentifier("stock.passcode"_ns);
        m_passcode.setFrame(CGRectMake(0, passcodeTop, ScreenLayout::current().size.width, passcodeHeight));
        modal.addSubview(m_passcode);
        self<UI::ViewController>().view().bringSubviewToFront(modal);
    } else {
        m_passcode.removeFromSuperview();
        m_passcode = {};
    }
    showStockContent(!visible);
}

void CSCoverSheetViewController::showStockContent(bool shown)
{
    dateViewController.send<void, "setContentAlpha:withSubtitleVisible:">(shown ? 1.0 : 0.0, shown);
    for (const auto& controller : {combinedListController, quickActionsController, teachableMomentsController})
        controller.view().setAlpha(shown);
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

void CSCoverSheetViewController::transitionChargingViewOrPack(
    bool visible, bool suppressedByPack, bool showsBattery, bool animated)
{
    transitionChargingView(visible && !suppressedByPack, showsBattery, animated);
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

static const StandInClass csCoverSheetView("CSCoverSheetView", "UIView", [](Binder<CSCoverSheetView>& binder) {
    binder.def<"layoutSubviews", &CSCoverSheetView::layoutSubviews>()
        .readonly<"slideableContentView", &CSCoverSheetView::slideable>()
        .readonly<"modalPresentationView", &CSCoverSheetView::modal>()
        .add();
});

static const StandInClass csCoverSheetViewControllerBase(
    "CSCoverSheetViewControllerBase", "UIViewController", [](Binder<UIViewController>& binder) {
        using Base = UIViewController;
        binder.def<"loadView", &Base::loadView>()
            .def<"viewDidLoad", &Base::viewDidLoad>()
            .def<"viewWillAppear:", &Base::ignoreAnimated>()
            .def<"viewDidAppear:", &Base::ignoreAnimated>()
            .def<"viewWillDisappear:", &Base::ignoreAnimated>()
            .def<"viewDidDisappear:", &Base::ignoreAnimated>()
            .def<"viewWillLayoutSubviews", &Base::ignoreNotice>()
            .def<"viewDidLayoutSubviews", &Base::viewDidLayoutSubviews>()
            .def<"_canShowWhileLocked", &Base::isWelcomeWhileLocked>()
            .add();
    });

static const StandInClass csCoverSheetViewController(
    "CSCoverSheetViewController", "UIViewController", [](Binder<CSCoverSheetViewController>& binder) {
        using Sheet = CSCoverSheetViewController;
        binder.def<"_canShowWhileLocked", &Sheet::isWelcomeWhileLocked>()
            .def<"loadView", &Sheet::loadView>()
            .def<"viewDidLoad", &Sheet::viewDidLoad>()
            .def<"viewWillAppear:", &Sheet::viewWillAppear>()
            .def<"viewDidAppear:", &Sheet::ignoreAnimated>()
            .def<"viewWillDisappear:", &Sheet::viewWillDisappear>()
            .def<"activatePage:animated:withCompletion:", &Sheet::activatePage>()
            .def<"_indexOfMainPage", &Sheet::indexOfMainPage>()
            .def<"_indexOfCameraPage", &Sheet::indexOfCameraPage>()
            .def<"isPasscodeLockVisible", &Sheet::isPasscodeLockVisible>()
            .def<"setPasscodeLockVisible:animated:", &Sheet::setPasscodeLockVisible>()
            .def<"dateView", &Sheet::dateView>()
            .readonly<"dateViewController", &Sheet::dateViewController>()
            .def<"idleTimerController", &Sheet::idleTimerController>()
            .def<"_transitionChargingViewToVisible:showBattery:animated:", &Sheet::transitionChargingView>()
            .def<"_transitionChargingViewToVisible:suppressedByPack:showBattery:animated:",
                &Sheet::transitionChargingViewOrPack>()
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
