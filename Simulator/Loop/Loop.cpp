// The run loop's clock and its ordered queue of work.
#include "Simulator/Loop/Loop.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace Simulator {

namespace {

constexpr double nanosecondsPerSecond = 1e9;
constexpr double longestDelay = 100.0 * 365 * 86400;
constexpr double longestStep = 366.0 * 86400;
constexpr std::int64_t shortestInterval = 100'000;
/// Work that keeps queueing itself for "now" would stop a virtual clock for ever; on a phone such work takes time.
constexpr int deepestImmediateChain = 1000;
constexpr double secondsFrom1970To2001 = 978307200;

std::int64_t nanoseconds(double seconds, double longest)
{
    if (!(seconds > 0))
        return 0;
    return std::llround(std::min(seconds, longest) * nanosecondsPerSecond);
}

std::int64_t steadyNanoseconds()
{
    using namespace std::chrono;
    return duration_cast<std::chrono::nanoseconds>(steady_clock::now().time_since_epoch()).count();
}

double hostTime()
{
    using namespace std::chrono;
    return duration<double>(system_clock::now().time_since_epoch()).count() - secondsFrom1970To2001;
}

}

struct Loop::Work {
    Callback callback;
    Nanoseconds interval; // 0 for work that runs once
    WorkKind kind;
    int immediateDepth; // how many callbacks queued one another for the same moment
};

Loop& Loop::shared()
{
    // Never destroyed: platform objects that outlive main() still cancel their timers.
    static Loop* loop = new Loop;
    return *loop;
}

Loop::Loop()
{
    reset(hostTime());
}

Loop::~Loop() = default;

void Loop::reset(double now, ClockKind kind)
{
    auto dropped = std::exchange(m_queue, {});
    m_keys.clear();
    m_repeatingCount = 0;
    m_clockKind = kind;
    m_offset = kind == ClockKind::realTime ? -steadyNanoseconds() : 0;
    m_start = m_wall = std::isfinite(now) ? now : 0;
}

void Loop::setClockKind(ClockKind kind)
{
    const Nanoseconds before = elapsed();
    m_clockKind = kind;
    m_offset = 0;
    m_offset = before - elapsed();
}

Loop::Nanoseconds Loop::elapsed() const
{
    return m_offset + (m_clockKind == ClockKind::realTime ? steadyNanoseconds() : 0);
}

double Loop::now() const
{
    return m_wall + uptime();
}

double Loop::uptime() const
{
    return static_cast<double>(elapsed()) / nanosecondsPerSecond;
}

void Loop::setNow(double now)
{
    if (std::isfinite(now))
        m_wall = now - uptime();
}

TimerId Loop::schedule(double delay, Callback callback, WorkKind kind)
{
    return enqueue(nanoseconds(delay, longestDelay), 0, std::move(callback), kind);
}

TimerId Loop::scheduleRepeating(double interval, Callback callback, WorkKind kind)
{
    const Nanoseconds step = std::max(nanoseconds(interval, longestDelay), shortestInterval);
    return enqueue(step, step, std::move(callback), kind);
}

TimerId Loop::scheduleRepeating(double firstDelay, double interval, Callback callback, WorkKind kind)
{
    const Nanoseconds step = std::max(nanoseconds(interval, longestDelay), shortestInterval);
    return enqueue(nanoseconds(firstDelay, longestDelay), step, std::move(callback), kind);
}

TimerId Loop::enqueue(Nanoseconds delay, Nanoseconds interval, Callback callback, WorkKind kind)
{
    int depth = delay < shortestInterval ? m_immediateDepth + 1 : 0;
    if (depth > deepestImmediateChain) {
        delay = shortestInterval;
        --depth;
    }
    const Key key{elapsed() + delay, ++m_lastId};
    m_queue.emplace(key, std::make_shared<Work>(Work{std::move(callback), interval, kind, depth}));
    m_keys.emplace(key.second, key);
    m_repeatingCount += interval > 0;
    return key.second;
}

bool Loop::cancel(TimerId id)
{
    const auto found = m_keys.find(id);
    if (found == m_keys.end())
        return false;
    const auto entry = m_queue.find(found->second);
    // What the callback holds is let go last: that may cancel further work.
    const auto work = std::move(entry->second);
    m_repeatingCount -= work->interval > 0;
    m_queue.erase(entry);
    m_keys.erase(found);
    return true;
}

bool Loop::isScheduled(TimerId id) const
{
    return m_keys.contains(id);
}

std::optional<double> Loop::dueIn(TimerId id) const
{
    const auto found = m_keys.find(id);
    if (found == m_keys.end())
        return std::nullopt;
    return std::max(0.0, static_cast<double>(found->second.first - elapsed()) / nanosecondsPerSecond);
}

void Loop::moveTo(Nanoseconds moment)
{
    m_offset += std::max<Nanoseconds>(0, moment - elapsed());
}

/// A repeating callback is queued again before it runs, so that it can cancel itself. Late ones skip what they missed.
void Loop::runFirst()
{
    const auto scope = m_makeScope ? m_makeScope() : nullptr;
    const auto first = m_queue.begin();
    const auto [due, id] = first->first;
    const auto work = first->second;
    m_queue.erase(first);
    moveTo(due);
    if (work->interval > 0) {
        const Nanoseconds missed = std::max<Nanoseconds>(0, elapsed() - due) / work->interval;
        const Key next{due + (missed + 1) * work->interval, id};
        m_queue.emplace(next, work);
        m_keys[id] = next;
    } else {
        m_keys.erase(id);
    }
    const int outerDepth = std::exchange(m_immediateDepth, work->immediateDepth);
    if (work->callback)
        work->callback();
    m_immediateDepth = outerDepth;
}

void Loop::advance(double seconds)
{
    const Nanoseconds end = elapsed() + nanoseconds(seconds, longestStep);
    while (!m_queue.empty() && m_queue.begin()->first.first <= end)
        runFirst();
    moveTo(end);
}

double Loop::settle(double boundSeconds)
{
    const Nanoseconds begin = elapsed();
    const Nanoseconds end = begin + nanoseconds(boundSeconds, longestStep);
    while (!onlyRepeatingIsPending() && m_queue.begin()->first.first <= end)
        runFirst();
    if (!onlyRepeatingIsPending())
        moveTo(end);
    return static_cast<double>(elapsed() - begin) / nanosecondsPerSecond;
}

std::size_t Loop::runDue()
{
    const Nanoseconds end = elapsed();
    std::size_t count = 0;
    for (; !m_queue.empty() && m_queue.begin()->first.first <= end; ++count)
        runFirst();
    return count;
}

std::optional<double> Loop::nextDue() const
{
    if (m_queue.empty())
        return std::nullopt;
    return std::max(0.0, static_cast<double>(m_queue.begin()->first.first - elapsed()) / nanosecondsPerSecond);
}

std::size_t Loop::pending(WorkKind kind) const
{
    return std::ranges::count_if(m_queue, [kind](const auto& entry) { return entry.second->kind == kind; });
}

std::size_t Loop::pendingRepeating() const
{
    return m_repeatingCount;
}

}
