// System sounds.
#include "CompanionsTest.hpp"

extern "C" void AudioServicesPlaySystemSound(unsigned sound);

using namespace Simulator;

class SystemSounds : public CompanionsTest { };

TEST_F(SystemSounds, AreRecordedByNumber)
{
    AudioServicesPlaySystemSound(1519);
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0]["kind"], "sound");
    EXPECT_EQ(records[0]["id"], 1519);
}
