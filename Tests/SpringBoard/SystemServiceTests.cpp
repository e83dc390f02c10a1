// Restarting the shell.
#include "Platform/SpringBoard/FBSystemService.hpp"

#include "ShellTest.hpp"

using namespace Simulator;

class SystemService : public ShellTest { };

TEST_F(SystemService, AsksForANewShellAndRecordsIt)
{
    int requests = 0;
    relaunchRequested() = [&requests] { ++requests; };
    FB::SystemService::sharedInstance().exitAndRelaunch(true);
    relaunchRequested() = nullptr;
    FB::SystemService::sharedInstance().exitAndRelaunch(true);
    EXPECT_EQ(requests, 1);
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0]["kind"], "relaunch");
}
