// The two round buttons at the bottom: flashlight and camera.
#pragma once

#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

struct CSQuickActionsButton : UIView {
    void layoutSubviews();
    void showSymbol(const char* symbol);

private:
    UI::View pane;
    UI::View glyph;
};

struct CSQuickActionsViewController : UIViewController {
    void viewDidLoad();
    void viewWillAppear(bool animated);
    void viewDidLayoutSubviews();
    bool hasFlashlight() const;
    bool hasCamera() const;

private:
    void updateVisibility();

    UI::View flashlight;
    UI::View camera;
};

}
