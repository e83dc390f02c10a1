// Runs the changes, lets the layers follow, and tells of the end by the loop.
#include "Simulator/UIKit/ViewAnimation.hpp"

#include "Simulator/Loop/Loop.hpp"
#include "Simulator/QuartzCore/LayerTransaction.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/Blocks.hpp"

#include <cmath>

namespace Simulator {

namespace {

constexpr unsigned curveShift = 16;
constexpr unsigned long curveMask = 3;

AnimationCurve curveOf(UI::AnimationOptions options)
{
    return static_cast<AnimationCurve>(static_cast<unsigned long>(options) >> curveShift & curveMask);
}

double secondsOf(double value)
{
    return value > 0 && std::isfinite(value) ? value : 0;
}

void record(double duration, double delay, UI::AnimationOptions options)
{
    ActivityLog::shared().record(
        "animation", {{"duration", duration}, {"delay", delay}, {"options", static_cast<unsigned long>(options)}});
}

/// Runs the changes and answers whether a layer moves by them.
bool runAnimations(double duration, double delay, UI::AnimationOptions options, void* animations)
{
    LayerTransaction transaction;
    KeptBlock<void()>{animations}();
    return duration > 0 && transaction.animate(delay, duration, curveOf(options));
}

/// Under a real clock somebody may be watching: the loop has something to do for each frame, after which it is drawn.
void keepFramesComing(double end)
{
    constexpr double frame = 1.0 / 60;
    Loop& loop = Loop::shared();
    if (loop.clockKind() == ClockKind::realTime && loop.uptime() < end)
        loop.schedule(
            frame, [end] { keepFramesComing(end); }, WorkKind::animation);
}

void runCompletion(double seconds, void* completion)
{
    const KeptBlock<void(bool)> block(completion);
    Loop::shared().schedule(
        seconds, [block] { block(true); }, WorkKind::animation);
}

}

/// What moves nothing is over at once, and told in the next turn of the loop.
void animateWithDelay(double duration, double delay, UI::AnimationOptions options, void* animations, void* completion)
{
    duration = secondsOf(duration);
    delay = secondsOf(delay);
    record(duration, delay, options);
    const bool moves = runAnimations(duration, delay, options, animations);
    if (moves)
        keepFramesComing(Loop::shared().uptime() + delay + duration);
    runCompletion(moves ? delay + duration : 0, completion);
}

void animateWithCompletion(double duration, void* animations, void* completion)
{
    animateWithDelay(duration, 0, UI::AnimationOptions::curveEaseInOut, animations, completion);
}

void animate(double duration, void* animations)
{
    animateWithCompletion(duration, animations, nullptr);
}

/// The new content is there at once; only what the changes move takes its time.
void transition(const UI::View&, double duration, UI::AnimationOptions options, void* animations, void* completion)
{
    duration = secondsOf(duration);
    record(duration, 0, options);
    runAnimations(duration, 0, options, animations);
    runCompletion(duration, completion);
}

}
