// The main queue's functions on the phone's loop.
#include "FoundationTest.hpp"

#include "Platform/Foundation/Dispatch.hpp"

#include <limits>

using namespace Simulator;

extern "C" {
void dispatch_async_f(dispatch_queue_t, void* context, void (*work)(void*));
void dispatch_once_f(long* token, void* context, void (*work)(void*));
}

class MainQueue : public FoundationTest { };

static void count(void* context)
{
    ++*static_cast<int*>(context);
}

TEST_F(MainQueue, RunsDelayedWorkWhenItIsDue)
{
    int runs = 0;
    Dispatch::afterMilliseconds(250, &runs, count);
    EXPECT_EQ(Loop::shared().pending(WorkKind::delayed), 1u);
    Loop::shared().advance(0.249);
    EXPECT_EQ(runs, 0);
    Loop::shared().advance(0.001);
    EXPECT_EQ(runs, 1);
}

TEST_F(MainQueue, RunsWorkInOrder)
{
    std::string order;
    const auto append = [](void* context) { *static_cast<std::string*>(context) += 'a'; };
    const auto appendLater = [](void* context) { *static_cast<std::string*>(context) += 'b'; };
    Dispatch::afterMilliseconds(1, &order, appendLater);
    dispatch_async_f(&_dispatch_main_q, &order, append);
    EXPECT_EQ(order, "");
    Loop::shared().advance(1);
    EXPECT_EQ(order, "ab");
}

TEST_F(MainQueue, TellsTimesInNanoseconds)
{
    const dispatch_time_t start = dispatch_time(0, 0);
    Loop::shared().advance(2);
    EXPECT_EQ(dispatch_time(0, 500), start + 2'000'000'500u);
    EXPECT_EQ(dispatch_time(100, -40), 60u);
    EXPECT_EQ(dispatch_time(100, -500), 1u);
    EXPECT_EQ(dispatch_time(0, std::numeric_limits<std::int64_t>::max()), ~dispatch_time_t{0});
    EXPECT_EQ(dispatch_time(0, std::numeric_limits<std::int64_t>::min()), 1u);
    EXPECT_EQ(dispatch_time(~dispatch_time_t{0}, -5), ~dispatch_time_t{0});
}

TEST_F(MainQueue, NeverRunsWhatIsDueNever)
{
    int runs = 0;
    dispatch_after_f(~dispatch_time_t{0}, &_dispatch_main_q, &runs, count);
    dispatch_after_f(0, &_dispatch_main_q, &runs, nullptr);
    EXPECT_EQ(Loop::shared().pending(), 0u);
    dispatch_after_f(dispatch_time(0, -1000), &_dispatch_main_q, &runs, count);
    Loop::shared().advance(0);
    EXPECT_EQ(runs, 1);
}

TEST_F(MainQueue, DoesOnceOnlyOnce)
{
    static long token = 0;
    int runs = 0;
    for (int times = 0; times < 3; ++times)
        dispatch_once_f(&token, &runs, count);
    EXPECT_EQ(runs, 1);
}
