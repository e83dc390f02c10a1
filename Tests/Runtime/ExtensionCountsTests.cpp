// The counts of what the extension does.
#include "Simulator/Runtime/ExtensionCounts.hpp"

#include "Simulator/Base/Phone.hpp"

#include <gtest/gtest.h>

using namespace Simulator;

namespace {

class Counts : public testing::Test {
protected:
    Phone phone;
    ExtensionCounts& counts = ExtensionCounts::shared();
};

}

TEST_F(Counts, AreTakenByNameAndStartAgainFromZero)
{
    counts.add(Count::fileOpens);
    counts.add(Count::alarmReads, 3);
    EXPECT_EQ(counts.take(),
        (ExtensionCounts::Json{{"fontRegistrations", 0}, {"fileOpens", 1}, {"calendarStores", 0},
            {"calendarQueries", 0}, {"weatherRequests", 0}, {"alarmReads", 3}, {"preferenceReads", 0}}));
    EXPECT_EQ(counts.take().at("alarmReads"), 0);
}

TEST_F(Counts, LeaveOutWhatTheShellDoesOnItsOwnAccount)
{
    {
        const OwnWork outer;
        {
            const OwnWork inner;
            counts.add(Count::fileOpens);
        }
        counts.add(Count::fileOpens);
    }
    counts.add(Count::fileOpens);
    EXPECT_EQ(counts.take().at("fileOpens"), 1);
}
