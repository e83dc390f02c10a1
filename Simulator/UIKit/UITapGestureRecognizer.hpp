// One or more short touches.
#pragma once

#include "Simulator/UIKit/UIGestureRecognizer.hpp"

namespace Simulator {

struct UITapGestureRecognizer : UIGestureRecognizer {
    void began(const UITouch& touch) override;
    void moved(const UITouch& touch) override;
    void ended(const UITouch& touch) override;

    unsigned long numberOfTapsRequired = 1;

private:
    CGPoint start;
    double startTime = 0;
};

void registerUITapGestureRecognizer();

}
