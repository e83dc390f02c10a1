// A wheel's offset by hand, by its own run, and at rest on a row.
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
    m_rowCount = std::max(count, 0L);
    m_offset = clamped(m_offset);
}

long PickerWheel::clamped(double row) const
{
    return std::clamp(std::lround(row), 0L, std::max(m_rowCount - 1, 0L));
}

long PickerWheel::selectedRow() const
{
    return m_rowCount == 0 ? -1 : clamped(m_isRunning ? m_runTo : m_offset);
}

void PickerWheel::select(long row, bool animated)
{
    const long target = clamped(static_cast<double>(row));
    if (animated) {
        runTo(target, secondsOfATap, false);
        return;
    }
    stop();
    m_offset = target;
    m_turns.turned();
}

void PickerWheel::hold()
{
    stop();
    m_unboundOffset = m_offset;
    m_speed = 0;
    m_lastDrag = Loop::shared().uptime();
}

void PickerWheel::drag(double rows)
{
    const double now = Loop::shared().uptime();
    const double elapsed = now - std::exchange(m_lastDrag, now);
    if (elapsed > 0)
        m_speed = 0.6 * rows / elapsed + 0.4 * m_speed;
    m_unboundOffset += rows;
    const double bound = std::clamp(m_unboundOffset, 0.0, std::max(m_rowCount - 1.0, 0.0));
    m_offset = bound + (m_unboundOffset - bound) * stretch;
    m_turns.turned();
}

void PickerWheel::release()
{
    const bool hasRested = Loop::shared().uptime() - m_lastDrag > rest;
    const double distance = hasRested ? 0 : m_speed * inertia;
    const long target = clamped(m_offset + distance);
    runTo(target, std::clamp(std::abs(target - m_offset) * 0.1, shortestRun, longestRun), true);
}

void PickerWheel::tap(long rowsBelow)
{
    runTo(clamped(m_offset + static_cast<double>(rowsBelow)), secondsOfATap, true);
}

void PickerWheel::runTo(long row, double seconds, bool isChoice)
{
    stop();
    m_isRunning = true;
    m_isChoice = isChoice;
    m_runBegin = Loop::shared().uptime();
    m_runSeconds = seconds;
    m_runFrom = m_offset;
    m_runTo = static_cast<double>(row);
    m_timer = Loop::shared().schedule(
        frame, [this] { tick(); }, WorkKind::animation);
}

void PickerWheel::tick()
{
    m_timer = 0;
    const double fraction = (Loop::shared().uptime() - m_runBegin) / m_runSeconds;
    m_isRunning = fraction < 1;
    m_offset = m_isRunning ? m_runFrom + (m_runTo - m_runFrom) * progress(AnimationCurve::easeOut, fraction) : m_runTo;
    if (m_isRunning)
        m_timer = Loop::shared().schedule(
            frame, [this] { tick(); }, WorkKind::animation);
    // Nothing of the wheel is used after the calls: whoever is told may let the picker go.
    const auto turns = m_turns;
    const bool isChosen = !m_isRunning && m_isChoice && m_rowCount > 0;
    const long row = clamped(m_runTo);
    turns.turned();
    if (isChosen)
        turns.chosen(row);
}

void PickerWheel::stop()
{
    Loop::shared().cancel(std::exchange(m_timer, 0));
    m_isRunning = false;
}

}
