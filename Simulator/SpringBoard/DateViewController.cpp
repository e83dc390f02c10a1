// Owns the stock clock and gives it the time.
#include "Simulator/SpringBoard/DateViewController.hpp"

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/Registrations.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

void SBFLockScreenDateViewController::loadView()
{
    setView(makeView("SBFLockScreenDateView", ScreenLayout::current().dateView(), "stock.dateView"));
}

UI::View SBFLockScreenDateViewController::dateView()
{
    return self<UI::ViewController>().view();
}

void SBFLockScreenDateViewController::viewWillAppear(bool)
{
    self().send<void, "_updateView">();
}

void SBFLockScreenDateViewController::updateView()
{
    self<SB::FLockScreenDateViewController>().dateView().send<void, "setDate:">(NS::Date::date());
}

void registerDateViewController()
{
    Binder<SBFLockScreenDateViewController>("SBFLockScreenDateViewController", "UIViewController")
        .def<"loadView", &SBFLockScreenDateViewController::loadView>()
        .def<"viewDidLoad", &SBFLockScreenDateViewController::viewDidLoad>()
        .def<"viewWillAppear:", &SBFLockScreenDateViewController::viewWillAppear>()
        .def<"viewWillDisappear:", &SBFLockScreenDateViewController::viewWillDisappear>()
        .def<"dateView", &SBFLockScreenDateViewController::dateView>()
        .def<"_updateView", &SBFLockScreenDateViewController::updateView>()
        .add();
}

}
