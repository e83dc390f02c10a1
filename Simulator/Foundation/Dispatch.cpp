// The main queue's C functions on the phone's loop. Every queue is the main one: the shell has a single thread.
#include "Platform/Foundation/Dispatch.hpp"
#include "Simulator/Loop/Loop.hpp"

#include <cmath>
#include <limits>

struct dispatch_queue_s {
    const char* label;
};

namespace {

constexpr dispatch_time_t now = 0;
constexpr dispatch_time_t forever = ~dispatch_time_t{0};
constexpr double nanosecondsPerSecond = 1e9;

/// The phone has been up for a while when the shell starts, so there are times before now.
constexpr double uptimeAtStart = 60;

dispatch_time_t currentTime()
{
    const double uptime = uptimeAtStart + Simulator::Loop::shared().uptime();
    return static_cast<dispatch_time_t>(std::llround(uptime * nanosecondsPerSecond));
}

}

extern "C" {

dispatch_queue_s _dispatch_main_q{"main-thread"};

dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t nanoseconds)
{
    constexpr auto latest = static_cast<dispatch_time_t>(std::numeric_limits<std::int64_t>::max());
    if (when == forever)
        return forever;
    const dispatch_time_t base = when == now ? currentTime() : when;
    if (nanoseconds < 0) {
        const auto back = dispatch_time_t{0} - static_cast<dispatch_time_t>(nanoseconds);
        return back < base ? base - back : 1;
    }
    const auto ahead = static_cast<dispatch_time_t>(nanoseconds);
    return base > latest - ahead ? forever : base + ahead;
}

void dispatch_after_f(dispatch_time_t when, dispatch_queue_t, void* context, void (*work)(void*))
{
    if (when == forever || !work)
        return;
    const dispatch_time_t current = currentTime();
    const double delay = when > current ? static_cast<double>(when - current) / nanosecondsPerSecond : 0;
    Simulator::Loop::shared().schedule(delay, [=] { work(context); });
}

void dispatch_async_f(dispatch_queue_t, void* context, void (*work)(void*))
{
    if (work)
        Simulator::Loop::shared().schedule(
            0, [=] { work(context); }, Simulator::WorkKind::mainQueue);
}

void dispatch_once_f(long* token, void* context, void (*work)(void*))
{
    if (*token == ~0L)
        return;
    *token = ~0L;
    work(context);
}
}

namespace Simulator {

}
