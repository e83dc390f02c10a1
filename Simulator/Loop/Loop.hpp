// The phone's single run loop: it owns the clock, the main queue, timers and animations.
// Main thread only. The clock is virtual (moves when told) or real (moves with the host).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>

namespace Simulator {

using TimerId = std::uint64_t; // 0 is never a timer

enum class ClockKind { virtualTime, realTime };

/// What waits in the loop, told apart so that leak tests can count each.
enum class WorkKind { mainQueue, delayed, timer, animation };

class Loop {
public:
    using Callback = std::function<void()>;

    static Loop& shared();

    Loop();
    ~Loop();
    Loop(const Loop&) = delete;
    Loop& operator=(const Loop&) = delete;

    /// Forgets all work and starts the clock at `now`, seconds since 2001-01-01 UTC.
    void reset(double now, ClockKind kind = ClockKind::virtualTime);
    void setClockKind(ClockKind);
    ClockKind clockKind() const { return m_clockKind; }

    double now() const;
    /// A change of the wall clock: what is scheduled keeps its delay. NaN and infinities are ignored.
    void setNow(double);
    /// The wall clock's value when the phone started.
    double start() const { return m_start; }
    /// Seconds since the start, untouched by changes of the wall clock.
    double uptime() const;

    /// What is made before each callback and goes after it: the shell's autorelease pool.
    using MakeScope = std::shared_ptr<void> (*)();
    void setScope(MakeScope makeScope) { m_makeScope = makeScope; }

    /// Negative and NaN delays mean now. Equal times run in the order of scheduling.
    TimerId schedule(double delay, Callback, WorkKind = WorkKind::delayed);
    /// Keeps to the grid of its first date; a non-positive interval means 0.1 ms, as on the phone.
    TimerId scheduleRepeating(double interval, Callback, WorkKind = WorkKind::timer);
    TimerId scheduleRepeating(double firstDelay, double interval, Callback, WorkKind = WorkKind::timer);
    /// False if it has run, was cancelled or never was.
    bool cancel(TimerId);
    bool isScheduled(TimerId) const;
    /// Seconds until it runs.
    std::optional<double> dueIn(TimerId) const;

    /// Moves the clock ahead and runs all that falls due on the way, each at its own time. At most a year at once.
    void advance(double seconds);
    /// Runs until nothing but repeating work is pending or the bound is reached; answers the seconds it took.
    double settle(double boundSeconds);
    /// Runs what is due at this moment and answers how many callbacks ran. The heartbeat under a real clock.
    std::size_t runDue();
    /// Seconds until the next callback, never negative.
    std::optional<double> nextDue() const;

    std::size_t pending() const { return m_queue.size(); }
    std::size_t pending(WorkKind) const;
    std::size_t pendingRepeating() const;

private:
    using Nanoseconds = std::int64_t;
    /// Equal due times are told apart by the id, which counts up.
    using Key = std::pair<Nanoseconds, TimerId>;
    struct Work;

    TimerId enqueue(Nanoseconds delay, Nanoseconds interval, Callback, WorkKind);
    Nanoseconds elapsed() const;
    void moveTo(Nanoseconds);
    void runFirst();
    bool onlyRepeatingIsPending() const { return m_repeatingCount == m_queue.size(); }

    ClockKind m_clockKind = ClockKind::virtualTime;
    double m_start = 0; // wall clock at the start
    double m_wall = 0; // wall clock at elapsed() == 0
    Nanoseconds m_offset = 0; // what elapsed() has beyond the host's steady clock
    std::map<Key, std::shared_ptr<Work>> m_queue;
    std::unordered_map<TimerId, Key> m_keys;
    std::size_t m_repeatingCount = 0;
    TimerId m_lastId = 0;
    int m_immediateDepth = 0;
    MakeScope m_makeScope = nullptr;
};

}
