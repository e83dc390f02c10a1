// Owns the stock clock and gives it the time.
#pragma once

#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

struct SBFLockScreenDateViewController : UIViewController {
    void loadView();
    void viewDidLoad() { }
    void viewWillAppear(bool animated);
    void viewWillDisappear(bool) { }
    /// The view itself, an SBFLockScreenDateView.
    UI::View dateView();
    void updateView();
};

}
