// Delayed calls on the main queue, and calls that happen once.
#pragma once

#include <cstdint>

using dispatch_queue_t = struct dispatch_queue_s*;
using dispatch_time_t = std::uint64_t;
using dispatch_once_t = long;

extern "C" {
extern struct dispatch_queue_s _dispatch_main_q;
dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t nanoseconds);
void dispatch_after_f(dispatch_time_t when, dispatch_queue_t, void* context, void (*work)(void*));
/// Calls `work` at the first use of the token, which is zero before and stays where it is for good.
void dispatch_once_f(dispatch_once_t* token, void* context, void (*work)(void*));
}

namespace Dispatch {

inline constexpr std::int64_t nanosecondsPerMillisecond = 1'000'000;

/// Runs `work` with `context` on the main queue after a delay.
inline void afterMilliseconds(std::int64_t delay, void* context, void (*work)(void*))
{
    dispatch_after_f(dispatch_time(0, delay * nanosecondsPerMillisecond), &_dispatch_main_q, context, work);
}

}
