// System-wide notifications: who is called, when, and how often.
#include "Simulator/Companions/DarwinNotifications.hpp"

#include "CompanionsTest.hpp"
#include "Platform/Foundation/CFNotificationCenter.hpp"

#include <vector>

using namespace Simulator;

namespace {

std::vector<std::string>& heard()
{
    static std::vector<std::string> names;
    return names;
}

void hear(CFNotificationCenterRef, void* observer, id name, const void*, id)
{
    const std::string prefix = observer ? static_cast<const char*>(observer) : "";
    heard().push_back(prefix + std::string(NS::String(name).utf8()));
}

void observe(const NS::String& name, CFNotificationCallback callback = hear, const char* observer = nullptr)
{
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), observer, callback, name.raw(),
        nullptr, CFNotificationSuspensionBehavior::coalesce);
}

void post(const NS::String& name)
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDarwinNotifyCenter(), name.raw(), nullptr, nullptr, true);
}

/// Observers stay for good, so each test has names of its own.
class DarwinNotifications : public CompanionsTest {
protected:
    DarwinNotifications() { heard().clear(); }
};

using Names = std::vector<std::string>;

}

TEST_F(DarwinNotifications, ReachObserversOnTheMainQueueInOrderOfRegistration)
{
    observe("order"_ns, hear, "first ");
    observe("order"_ns, hear, "second ");
    observe("another"_ns, hear, "third ");
    post("order"_ns);
    EXPECT_EQ(heard(), Names{});
    Loop::shared().advance(0);
    EXPECT_EQ(heard(), (Names{"first order", "second order"}));
}

TEST_F(DarwinNotifications, AreDeliveredOnceForSeveralPosts)
{
    observe("coalesced"_ns);
    post("coalesced"_ns);
    post("coalesced"_ns);
    post("coalesced"_ns);
    Loop::shared().advance(0);
    EXPECT_EQ(heard(), Names{"coalesced"});
    post("coalesced"_ns);
    Loop::shared().advance(0);
    EXPECT_EQ(heard(), (Names{"coalesced", "coalesced"}));
}

TEST_F(DarwinNotifications, FromOutsideHaveBeenDeliveredOnReturn)
{
    observe("outside"_ns);
    observe("earlier"_ns);
    post("earlier"_ns);
    postDarwinNotification("outside");
    EXPECT_EQ(heard(), (Names{"earlier", "outside"}));
    Loop::shared().advance(1);
    EXPECT_EQ(heard().size(), 2u);
}

TEST_F(DarwinNotifications, ThatCallForThemselvesWaitForTheMainQueue)
{
    observe("echo"_ns, [](CFNotificationCenterRef centre, void* observer, id name, const void* object, id userInfo) {
        hear(centre, observer, name, object, userInfo);
        if (heard().size() < 3)
            post("echo"_ns);
    });
    postDarwinNotification("echo");
    EXPECT_EQ(heard().size(), 1u);
    Loop::shared().advance(0);
    EXPECT_EQ(heard().size(), 3u);
}

TEST_F(DarwinNotifications, PostedFromOutsideByACallbackWaitToo)
{
    observe("nested"_ns, [](CFNotificationCenterRef centre, void* observer, id name, const void* object, id userInfo) {
        hear(centre, observer, name, object, userInfo);
        if (heard().size() < 2)
            postDarwinNotification("nested");
    });
    postDarwinNotification("nested");
    EXPECT_EQ(heard().size(), 1u);
    Loop::shared().advance(0);
    EXPECT_EQ(heard().size(), 2u);
}

TEST_F(DarwinNotifications, OfTheShellAreRecorded)
{
    post("recorded"_ns);
    postDarwinNotification("from elsewhere");
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0]["kind"], "notification");
    EXPECT_EQ(records[0]["name"], "recorded");
}

TEST_F(DarwinNotifications, WithoutANameOrCentreAreIgnored)
{
    CFNotificationCenterPostNotification(nullptr, ("x"_ns).raw(), nullptr, nullptr, true);
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, nullptr, nullptr, true);
    observe(NS::String());
    EXPECT_TRUE(ActivityLog::shared().take().empty());
}
