// The shell as an application: links, the home button, apps in front.
#include "Platform/Foundation/NSURL.hpp"
#include "ShellTest.hpp"

using namespace Simulator;

namespace {

class Application : public ShellTest {
protected:
    static NS::Object shared(const char* className = "UIApplication")
    {
        return ObjC::sendMessage<NS::Object>(
            reinterpret_cast<id>(objc_getClass(className)), ObjC::selector<"sharedApplication">());
    }
    static NS::URL url(const NS::String& text) { return NS::URL::sendClass<NS::URL, "URLWithString:">(text); }
    static void open(const NS::String& text)
    {
        shared().send<void, "openURL:options:completionHandler:">(url(text), NS::Object(), static_cast<void*>(nullptr));
    }
};

}

TEST_F(Application, IsOneObjectByEitherName)
{
    ASSERT_TRUE(shared());
    EXPECT_EQ(shared().raw(), shared("SpringBoard").raw());
}

TEST_F(Application, OpensLinksThatAnAppIsInstalledFor)
{
    EXPECT_TRUE((shared().send<bool, "canOpenURL:">(url("https://example.com/"_ns))));
    EXPECT_FALSE((shared().send<bool, "canOpenURL:">(url("filza://view/Library"_ns))));
    EXPECT_FALSE((shared().send<bool, "canOpenURL:">(url("other://x"_ns))));
    EXPECT_FALSE((shared().send<bool, "canOpenURL:">(NS::URL())));
    DeviceState::shared().installed = {"Filza"};
    EXPECT_TRUE((shared().send<bool, "canOpenURL:">(url("filza://view/Library/Application%20Support/"_ns))));
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 5u);
    EXPECT_EQ(records[4]["kind"], "canOpenURL");
    EXPECT_EQ(records[4]["url"], "filza://view/Library/Application%20Support/");
}

TEST_F(Application, BringsTheAppOfALinkToTheFront)
{
    start();
    open("other://x"_ns);
    open("https://example.com/"_ns);
    EXPECT_TRUE(shell().isCoverSheetPresented());
    Loop::shared().settle(1);
    EXPECT_TRUE(isShown("stock.app"));
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0]["kind"], "openURL");
    EXPECT_EQ(records[0]["opened"], false);
    EXPECT_EQ(records[1]["opened"], true);
}

TEST_F(Application, GoesHomeOnTheHomeButton)
{
    start();
    shared("SpringBoard").send<void, "_simulateHomeButtonPress">();
    EXPECT_EQ(ActivityLog::shared().take()[0]["kind"], "homeButton");
    Loop::shared().settle(1);
    EXPECT_TRUE(isShown("stock.homeScreen"));
}

TEST_F(Application, DoesWithoutAShell)
{
    open("https://example.com/"_ns);
    shared("SpringBoard").send<void, "_simulateHomeButtonPress">();
    Loop::shared().settle(1);
    EXPECT_EQ(Shell::current(), nullptr);
}
