// A phone whose shell processes crash.
#include "Tests/Control/SupervisorTest.hpp"

#include <fstream>
#include <unistd.h>

namespace {

/// The shell process, without asking it.
pid_t onlyChild()
{
    pid_t pid = 0;
    std::ifstream("/proc/self/task/" + std::to_string(getpid()) + "/children") >> pid;
    return pid;
}

}

TEST_F(SupervisorTest, BringsThePhoneBackInSafeModeAfterACrash)
{
    call("phone.start");
    call("clock.advance", {{"seconds", 5}});
    EXPECT_EQ(errorOf("fake.crash", {{"signal", SIGSEGV}}, ErrorCode::shellEnded),
        "the shell process ended during fake.crash: signal SIGSEGV (11); the phone is back in safe mode");
    const Json info = call("phone.info");
    EXPECT_EQ(info["running"], true);
    EXPECT_EQ(info["safeMode"], true);
    EXPECT_EQ(info["starts"], 2);
    EXPECT_EQ(info["restarts"], 0);
    EXPECT_EQ(info["time"], 5.0);
    EXPECT_EQ(call("fake.start")["isSafeMode"], true);
    EXPECT_EQ(log, std::vector<std::string>{"the shell process ended: signal SIGSEGV (11)"});
}

TEST_F(SupervisorTest, SaysHowTheShellEnded)
{
    call("phone.start");
    EXPECT_EQ(errorOf("fake.exit", {{"status", 3}}, ErrorCode::shellEnded),
        "the shell process ended during fake.exit: exit status 3; the phone is back in safe mode");
    EXPECT_EQ(errorOf("fake.exit", {{"status", 0}}, ErrorCode::shellEnded),
        "the shell process ended during fake.exit: exit status 0; the phone is back in safe mode");
    EXPECT_EQ(errorOf("fake.crash", {{"signal", SIGABRT}}, ErrorCode::shellEnded),
        "the shell process ended during fake.crash: signal SIGABRT (6); the phone is back in safe mode");
    EXPECT_EQ(call("phone.info")["running"], true);
}

TEST_F(SupervisorTest, TakesTheStatusOfARelaunchForACrashWhenNobodyAskedForOne)
{
    call("phone.start");
    errorOf("fake.exit", {{"status", relaunchStatus}}, ErrorCode::shellEnded);
    EXPECT_EQ(call("phone.info")["safeMode"], true);
    EXPECT_EQ(call("phone.info")["restarts"], 0);
}

TEST_F(SupervisorTest, LeavesSafeModeByARelaunch)
{
    call("phone.start");
    errorOf("fake.crash", {{"signal", SIGABRT}}, ErrorCode::shellEnded);
    call("fake.relaunch");
    EXPECT_EQ(call("phone.info")["safeMode"], false);
    EXPECT_EQ(call("phone.info")["restarts"], 1);
}

TEST_F(SupervisorTest, KnowsTheRightProcessRightAfterAKill)
{
    call("phone.start");
    for (int i = 1; i <= 10; ++i) {
        const pid_t pid = call("phone.info")["pid"];
        kill(pid, SIGKILL);
        const Json info = call("phone.info");
        EXPECT_NE(info["pid"], pid);
        EXPECT_TRUE(isAlive(info["pid"]));
        EXPECT_EQ(info["safeMode"], true);
        EXPECT_EQ(info["starts"], i + 1);
    }
}

TEST_F(SupervisorTest, NoticesACrashBetweenRequests)
{
    call("phone.start");
    const pid_t pid = call("phone.info")["pid"];
    call("fake.later", {{"what", "crash"}});
    waitForNews();
    EXPECT_FALSE(isAlive(pid));
    EXPECT_EQ(log.size(), 1u);
    EXPECT_EQ(call("fake.echo", {{"value", 1}})["value"], 1);
    EXPECT_EQ(call("phone.info")["safeMode"], true);
}

TEST_F(SupervisorTest, GivesUpWhenSafeModeCrashesAtItsStartToo)
{
    EXPECT_EQ(errorOf("phone.start", {{"settings", {{"crashAtStart", "always"}}}}, ErrorCode::shellEnded),
        "no phone runs: the shell process ended again in safe mode: signal SIGABRT (6)");
    const Json info = call("phone.info");
    EXPECT_EQ(info["running"], false);
    EXPECT_EQ(info["starts"], 2);
    EXPECT_EQ(errorOf("view.tree", Json::object(), ErrorCode::noPhone),
        "no phone runs: the shell process ended again in safe mode: signal SIGABRT (6)");
}

TEST_F(SupervisorTest, GivesUpWhenSafeModeEndsBeforeItServedAnything)
{
    call("phone.start");
    kill(call("phone.info")["pid"], SIGKILL);
    waitForNews();
    kill(onlyChild(), SIGKILL);
    waitForNews();
    EXPECT_EQ(supervisor.descriptor(), -1);
    EXPECT_EQ(call("phone.info")["running"], false);
    EXPECT_EQ(call("phone.info")["starts"], 2);
}

TEST_F(SupervisorTest, ComesUpInSafeModeWhenTheExtensionCrashesAtTheStart)
{
    EXPECT_EQ(errorOf("phone.start", {{"settings", {{"crashAtStart", "once"}}}}, ErrorCode::shellEnded),
        "the shell process ended during phone.start: signal SIGABRT (6); the phone is back in safe mode");
    EXPECT_EQ(call("phone.info")["running"], true);
    EXPECT_EQ(call("phone.info")["safeMode"], true);
}

TEST_F(SupervisorTest, DoesNotRelaunchForever)
{
    EXPECT_EQ(errorOf("phone.start", {{"settings", {{"relaunchAtStart", true}}}}, ErrorCode::shellEnded),
        "the shell process ended during phone.start: a relaunch wanted again and again; the phone is back in safe "
        "mode");
    EXPECT_EQ(call("phone.info")["safeMode"], true);
    EXPECT_EQ(call("phone.info")["restarts"], 5);
}

TEST_F(SupervisorTest, EndsAShellThatDoesNotMakeSense)
{
    call("phone.start");
    EXPECT_EQ(errorOf("fake.babble", Json::object(), ErrorCode::shellEnded),
        "the shell process ended during fake.babble: signal SIGKILL (9); the phone is back in safe mode");
    EXPECT_EQ(call("phone.info")["running"], true);
}
