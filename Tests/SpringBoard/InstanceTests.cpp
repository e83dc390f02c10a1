// The shell's current objects by the names of their classes.
#include "ShellTest.hpp"

using namespace Simulator;

class Instances : public ShellTest { };

TEST_F(Instances, AreFoundAmongControllersViewsAndOnlyObjects)
{
    start();
    for (const char* name :
        {"CSCoverSheetViewController", "SBFLockScreenDateViewController", "SBFLockScreenDateView",
            "SBFLockScreenDateSubtitleDateView", "NCNotificationStructuredListViewController",
            "CSCombinedListViewController", "CSQuickActionsViewController", "CSTeachableMomentsContainerViewController",
            "NCNotificationListSectionHeaderView", "NCNotificationListSectionRevealHintView", "_UIBatteryView",
            "SBHomeScreenViewController", "SBLockScreenManager", "SBBacklightController", "SpringBoard", "AXNView",
            "SBCoverSheetPresentationManager", "FBSystemService", "UIDevice", "UIScreen"})
        EXPECT_EQ(std::string(class_getName(object_getClass(shell().instance(name).raw()))), name);
}

TEST_F(Instances, MayBeOfADerivedClass)
{
    start();
    EXPECT_EQ(shell().instance("SBFLockScreenDateSubtitleView").raw(), view("stock.subtitle").raw());
    EXPECT_EQ(shell().instance("UIApplication").raw(), shell().instance("SpringBoard").raw());
}

TEST_F(Instances, AreNilForWhatIsNotThere)
{
    start();
    EXPECT_FALSE(shell().instance("NoSuchClass"));
    EXPECT_FALSE(shell().instance("SBLockScreenTimerDialView"));
    EXPECT_FALSE(shell().instance(""));
}
