// Owns the stock clock and gives it the time.
#include "Platform/Foundation/NSDate.hpp"
#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

namespace {

struct SBFLockScreenDateViewController : UIViewController {
    void loadView()
    {
        setView(makeView("SBFLockScreenDateView", ScreenLayout::current().dateView(), "stock.dateView"));
    }

    void viewDidLoad() { }
    void viewWillAppear(bool) { self<SB::FLockScreenDateViewController>().updateView(); }
    void viewWillDisappear(bool) { }
    /// The view itself, an SBFLockScreenDateView.
    UI::View dateView() { return self<UI::ViewController>().view(); }
    void updateView() { self<SB::FLockScreenDateViewController>().dateView().send<void, "setDate:">(NS::Date::date()); }
};

}

static const StandInClass sbfLockScreenDateViewController(
    "SBFLockScreenDateViewController", "UIViewController", [](Binder<SBFLockScreenDateViewController>& binder) {
        binder.def<"loadView", &SBFLockScreenDateViewController::loadView>()
            .def<"viewDidLoad", &SBFLockScreenDateViewController::viewDidLoad>()
            .def<"viewWillAppear:", &SBFLockScreenDateViewController::viewWillAppear>()
            .def<"viewWillDisappear:", &SBFLockScreenDateViewController::viewWillDisappear>()
            .def<"dateView", &SBFLockScreenDateViewController::dateView>()
            .def<"_updateView", &SBFLockScreenDateViewController::updateView>()
            .add();
    });

}
