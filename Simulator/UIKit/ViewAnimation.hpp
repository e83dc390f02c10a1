// The class methods of views that show a change as a motion.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace Simulator {

void animateWithDelay(double duration, double delay, UI::AnimationOptions options, void* animations, void* completion);
void animateWithCompletion(double duration, void* animations, void* completion);
void animate(double duration, void* animations);
void transition(
    const UI::View& view, double duration, UI::AnimationOptions options, void* animations, void* completion);

}
