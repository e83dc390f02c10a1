// A finger that rests on the screen.
#pragma once

#include "Simulator/Loop/Loop.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"

namespace Simulator {

struct UILongPressGestureRecognizer : UIGestureRecognizer {
    ~UILongPressGestureRecognizer() override;

    void began(const UITouch& touch) override;
    void moved(const UITouch& touch) override;
    void ended(const UITouch& touch) override;
    void reset() override;

    double minimumPressDuration = 0.5;
    double allowableMovement = 10;

private:
    void stopWaiting();

    CGPoint start;
    TimerId timer = 0;
};

void registerUILongPressGestureRecognizer();

}
