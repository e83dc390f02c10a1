#include "Simulator/UIKit/PickerWheel.hpp"

#include "Simulator/QuartzCore/LayerMotion.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Simulator {

namespace {

constexpr double frame = 1.0 / 60;
/// A wheel that is let go runs on as far as its speed takes it in this time.
constexpr double inertia = 0.35;
/// A finger that rested this long before it was lifted gives no speed.
constexpr double rest = 0.1;
/// Beyond the first and the last row the wheel follows the finger only so far.
constexpr double stretch = 0.35;
constexpr double shortestRun = 0.25;
constexpr double longestRun = 1.5;
constexpr double secondsOfATap = 0.3;

}

void PickerWheel::setRowCount(long count)
{
    stop();
    rowCount_ = std::max(count, 0L);
    offset_ = clamped(offset_);
}

long PickerWheel::clamped(double row) const
{
    return std::clamp(std::lround(row), 0L, std::max(rowCount_ - 1, 0L));
}

long PickerWheel::selectedRow() const
{
    return rowCount_ == 0 ? -1 : clamped(isRunning_ ? runTo_ : offset_);
}

void PickerWheel::select(long row, bool animated)
{
    const long target = clamped(static_cast<double>(row));
    if (animated) {
        runTo(target, secondsOfATap, false);
        return;
    }
    stop();
    offset_ = target;
    turns_.turned();
}

void PickerWheel::hold()
{
    stop();
    unboundOffset_ = offset_;
    speed_ = 0;
    lastDrag_ = Loop::shared().uptime();
}

void PickerWheel::drag(double rows)
{
    const double now = Loop::shared().uptime();
    const double elapsed = now - std::exchange(lastDrag_, now);
    if (elapsed > 0)
        speed_ = 0.6 * rows / elapsed + 0.4 * speed_;
    unboundOffset_ += rows;
    const double bound = std::clamp(unboundOffset_, 0.0, std::max(rowCount_ - 1.0, 0.0));
    offset_ = bound + (unboundOffset_ - bound) * stretch;
    turns_.turned();
}

void PickerWheel::release()
{
    const bool hasRested = Loop::shared().uptime() - lastDrag_ > rest;
    const double distance = hasRested ? 0 : speed_ * inertia;
    const long target = clamped(offset_ + distance);
    runTo(target, std::clamp(std::abs(target - offset_) * 0.1, shortestRun, longestRun), true);
}

void PickerWheel::tap(long rowsBelow)
{
    runTo(clamped(offset_ + static_cast<double>(rowsBelow)), secondsOfATap, true);
}

void PickerWheel::runTo(long row, double seconds, bool isChoice)
{
    stop();
    isRunning_ = true;
    isChoice_ = isChoice;
    runBegin_ = Loop::shared().uptime();
    runSeconds_ = seconds;
    runFrom_ = offset_;
    runTo_ = static_cast<double>(row);
    timer_ = Loop::shared().schedule(
        frame, [this] { tick(); }, WorkKind::Animation);
}

void PickerWheel::tick()
{
    timer_ = 0;
    const double fraction = (Loop::shared().uptime() - runBegin_) / runSeconds_;
    isRunning_ = fraction < 1;
    offset_ = isRunning_ ? runFrom_ + (runTo_ - runFrom_) * progress(AnimationCurve::easeOut, fraction) : runTo_;
    if (isRunning_)
        timer_ = Loop::shared().schedule(
            frame, [this] { tick(); }, WorkKind::Animation);
    // Nothing of the wheel is used after the calls: whoever is told may let the picker go.
    const auto turns = turns_;
    const bool isChosen = !isRunning_ && isChoice_ && rowCount_ > 0;
    const long row = clamped(runTo_);
    turns.turned();
    if (isChosen)
        turns.chosen(row);
}

void PickerWheel::stop()
{
    Loop::shared().cancel(std::exchange(timer_, 0));
    isRunning_ = false;
}

}
