// The notification list: its place, its insets, its header and hint.
#include "ShellTest.hpp"
#include "Spy.hpp"

using namespace Simulator;

namespace {

class NotificationList : public ShellTest {
protected:
    /// Insets as an extension gives them in place of the stock ones.
    static UIEdgeInsets pushedDown(ObjC::Object, SEL) { return {185, 0, 0, 0}; }
};

}

TEST_F(NotificationList, BeginsBelowTheStockClock)
{
    for (const CGSize size : {CGSize{375, 812}, CGSize{320, 568}, CGSize{414, 896}, CGSize{1024, 768}}) {
        start(size);
        const CGRect clock = place("stock.dateView");
        const CGRect first = place("stock.notification");
        EXPECT_GE(first.origin.y, clock.origin.y + clock.size.height);
        EXPECT_EQ(first.origin.x + first.size.width / 2, size.width / 2);
    }
}

TEST_F(NotificationList, IsPlacedByItsContentInsets)
{
    start();
    const CGRect before = place("stock.notification");
    const IMP stock
        = replaceMethod<&NotificationList::pushedDown>("CSCombinedListViewController", "_listViewDefaultContentInsets");
    shell().unlock();
    shell().coverSheet();
    const CGRect after = place("stock.notification");
    EXPECT_EQ(after.origin.y, before.origin.y + 185);
    EXPECT_EQ(after.size, before.size);
    setMethod(objc_getClass("CSCombinedListViewController"), sel_registerName("_listViewDefaultContentInsets"), stock,
        "{UIEdgeInsets=dddd}@:");
}

TEST_F(NotificationList, CanBeHiddenByItsScrollView)
{
    start();
    EXPECT_TRUE(isShown("stock.notification"));
    const ObjC::Object list = shell().instance("NCNotificationStructuredListViewController");
    list.send<UI::View, "scrollView">().setHidden(true);
    EXPECT_FALSE(isShown("stock.notification"));
}

TEST_F(NotificationList, RevealsOlderNotificationsOverTheHomeScreen)
{
    start();
    EXPECT_FALSE(isShown("stock.notificationHeader"));
    shell().unlock();
    shell().coverSheet();
    EXPECT_TRUE(isShown("stock.notificationHeader"));
    EXPECT_EQ(text("stock.notificationHeader.title"), "Notification Center");
    EXPECT_TRUE(isShown("stock.revealHint"));
    EXPECT_EQ(text("stock.revealHint.title"), "No Older Notifications");
    shell().lock();
    shell().wake();
    EXPECT_FALSE(isShown("stock.revealHint"));
}

TEST_F(NotificationList, KeepsTheHintInAVariableThatCanBeReachedByName)
{
    start();
    const auto label = view("stock.revealHint").ivar<UI::View>("_revealHintTitle");
    ASSERT_TRUE(label);
    label.send<void, "setTextAlignment:">(UI::TextAlignment::center);
    label.send<void, "setString:">("That was all"_ns);
    EXPECT_EQ(text("stock.revealHint.title"), "That was all");
}

TEST_F(NotificationList, AnswersWhetherItsHeaderIsHidden)
{
    start();
    const UI::View header = view("stock.notificationHeader");
    EXPECT_FALSE(header.isHidden());
    header.setHidden(true);
    EXPECT_TRUE(header.isHidden());
    EXPECT_FALSE(header.respondsTo<"hidden">()) << "no system has it";
}
