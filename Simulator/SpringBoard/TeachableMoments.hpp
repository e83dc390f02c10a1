// The hint at the bottom of the lock screen that says how to open the phone.
#pragma once

#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

struct CSTeachableMomentsContainerViewController : UIViewController {
    void viewDidLoad();
    void viewWillAppear(bool animated);
    void viewDidLayoutSubviews();
    void updateText(const NS::String& text);

private:
    UI::View label;
};

}
