// The home screen behind the cover sheet.
#pragma once

#include "Simulator/UIKit/UIViewController.hpp"

#include <vector>

namespace Simulator {

struct SBHomeScreenViewController : UIViewController {
    void loadView();
    void viewDidLoad();
    void viewWillAppear(bool) { }
    void viewDidLayoutSubviews();

private:
    UI::View dock;
    std::vector<UI::View> icons;
};

}
