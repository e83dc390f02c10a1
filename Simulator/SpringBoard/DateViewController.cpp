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

    void viewWillAppear(bool) { self<SB::FLockScreenDateViewController>().updateView(); }
    /// The view itself, an SBFLockScreenDateView.
    UI::View dateView() { return self<UI::ViewController>().view(); }
    void setContentAlpha(double alpha, bool subtitleVisible)
    {
        const UI::View view = dateView();
        if (view.respondsTo<"setContentAlpha:withSubtitleVisible:">())
            view.send<void, "setContentAlpha:withSubtitleVisible:">(alpha, subtitleVisible);
        else
            view.send<void, "setTimeAlpha:subtitleAlpha:">(alpha, subtitleVisible ? alpha : 0.0);
    }
    /// Since system 16 a timer's text comes this way.
    void updateTimerWithText(const NS::String&) { }
    void updateView() { self<SB::FLockScreenDateViewController>().dateView().send<void, "setDate:">(NS::Date::date()); }
};

}

static const StandInClass sbfLockScreenDateViewController(
    "SBFLockScreenDateViewController", "UIViewController", [](Binder<SBFLockScreenDateViewController>& binder) {
        binder.def<"loadView", &SBFLockScreenDateViewController::loadView>()
            .def<"viewWillAppear:", &SBFLockScreenDateViewController::viewWillAppear>()
            .def<"setContentAlpha:withSubtitleVisible:", &SBFLockScreenDateViewController::setContentAlpha>()
            .def<"updateTimerWithText:", &SBFLockScreenDateViewController::updateTimerWithText>()
            .def<"dateView", &SBFLockScreenDateViewController::dateView>()
            .def<"_canShowWhileLocked", &SBFLockScreenDateViewController::isWelcomeWhileLocked>()
            .def<"_updateView", &SBFLockScreenDateViewController::updateView>()
            .add();
    });

}
