// The log of what the extension asked for, which nobody has to take.
#include "Simulator/Runtime/ActivityLog.hpp"

#include <gtest/gtest.h>

#include <malloc.h>

using Simulator::ActivityLog;

namespace {

constexpr auto most = ActivityLog::mostRecords;

void recordNumbers(ActivityLog& log, std::size_t first, std::size_t last)
{
    for (std::size_t number = first; number <= last; ++number)
        log.record("sound", {{"id", number}});
}

std::size_t usedMemory()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

}

TEST(ActivityLog, KeepsRecordsInOrderUntilTheyAreTaken)
{
    ActivityLog log;
    log.setClock([] { return 1.5; });
    log.record("sound", {{"id", 7}});
    log.record("relaunch");
    EXPECT_EQ(log.dropped(), 0u);
    EXPECT_EQ(
        log.take(), ActivityLog::Fields::parse(R"([{"at":1.5,"kind":"sound","id":7},{"at":1.5,"kind":"relaunch"}])"));
    EXPECT_TRUE(log.take().empty());
}

TEST(ActivityLog, KeepsTheLastHundredThousandRecordsAndCountsTheOthers)
{
    EXPECT_EQ(most, 100'000u);
    ActivityLog log;
    recordNumbers(log, 1, most);
    EXPECT_EQ(log.dropped(), 0u);
    recordNumbers(log, most + 1, most + 5);
    EXPECT_EQ(log.dropped(), 5u);
    const auto records = log.take();
    ASSERT_EQ(records.size(), most);
    EXPECT_EQ(records.front()["id"], 6);
    EXPECT_EQ(records.back()["id"], most + 5);
}

TEST(ActivityLog, CountsAnewAfterRecordsWereTaken)
{
    ActivityLog log;
    recordNumbers(log, 1, most + 1);
    log.take();
    EXPECT_EQ(log.dropped(), 0u);
    recordNumbers(log, 1, 2);
    EXPECT_EQ(log.dropped(), 0u);
    EXPECT_EQ(log.take().size(), 2u);
}

TEST(ActivityLog, TakesNoMoreMemoryOnceItIsFull)
{
    ActivityLog log;
    recordNumbers(log, 1, most);
    const auto before = usedMemory();
    recordNumbers(log, 1, 2 * most);
    EXPECT_LT(usedMemory(), before + (std::size_t(1) << 20));
}

TEST(ActivityLog, GoesOverToALaterProcessWithItsCount)
{
    ActivityLog log;
    recordNumbers(log, 1, most + 3);
    ActivityLog later;
    later.restore(ActivityLog::Fields::parse(log.handOver().dump()));
    EXPECT_EQ(log.dropped(), 0u);
    EXPECT_TRUE(log.take().empty());
    EXPECT_EQ(later.dropped(), 3u);
    recordNumbers(later, 1, 1);
    EXPECT_EQ(later.dropped(), 4u);
    EXPECT_EQ(later.take().front()["id"], 5);
}
