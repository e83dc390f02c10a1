// A phone over its shell processes: starts and relaunches.
#include "Tests/Control/SupervisorTest.hpp"

#include "Tests/Support/TemporaryFolder.hpp"

TEST_F(SupervisorTest, HasNoPhoneAtFirst)
{
    EXPECT_EQ(errorOf("view.tree", Json::object(), ErrorCode::noPhone), "no phone started");
    EXPECT_EQ(call("phone.info"),
        Json::parse(
            R"({"running":false,"safeMode":false,"starts":0,"restarts":0,"pid":null,"time":null,"screen":null})"));
    EXPECT_EQ(call("phone.stop"), Json::object());
    EXPECT_EQ(supervisor.descriptor(), -1);
}

TEST_F(SupervisorTest, StartsAPhoneAndPassesRequestsOn)
{
    EXPECT_EQ(call("phone.start", {{"screen", {{"width", 320}, {"height", 568}, {"scale", 2}}}}), Json::object());
    EXPECT_EQ(call("fake.echo", {{"value", {1, "é", nullptr}}}), Json::parse(R"({"value":[1,"é",null]})"));
    const Json info = call("phone.info");
    EXPECT_EQ(info["running"], true);
    EXPECT_EQ(info["safeMode"], false);
    EXPECT_EQ(info["starts"], 1);
    EXPECT_EQ(info["restarts"], 0);
    EXPECT_EQ(info["screen"]["width"], 320);
    EXPECT_TRUE(isAlive(info["pid"]));
}

TEST_F(SupervisorTest, TellsTheShellWhatItWasStartedWith)
{
    call("phone.start", {{"settings", {{"enabled", true}}}});
    const Json start = call("fake.start");
    EXPECT_EQ(start["parameters"], Json::parse(R"({"settings":{"enabled":true},"clock":"virtual"})"));
    EXPECT_EQ(start["isFirst"], true);
    EXPECT_EQ(start["isSafeMode"], false);
    EXPECT_EQ(start["state"], nullptr);
    EXPECT_TRUE(std::filesystem::exists(start["root"].get<std::string>() + std::string(settingsPath)));
}

// It reaches the shell process piece by piece.
TEST_F(SupervisorTest, StartsAPhoneWithMuchToTellIt)
{
    const std::string text(8'000'000, 'x');
    call("phone.start", {{"settings", {{"timeFormat", text}}}});
    EXPECT_EQ(call("phone.info")["starts"], 1);
    EXPECT_EQ(call("fake.start")["parameters"]["settings"]["timeFormat"], text);
}

TEST_F(SupervisorTest, StopsThePhoneAndRemovesItsTemporaryRoot)
{
    call("phone.start");
    const std::string root = call("fake.start")["root"];
    const pid_t pid = call("phone.info")["pid"];
    call("phone.stop");
    EXPECT_FALSE(isAlive(pid));
    EXPECT_FALSE(std::filesystem::exists(root));
    EXPECT_EQ(errorOf("view.tree", Json::object(), ErrorCode::noPhone), "no phone started");
    EXPECT_EQ(call("phone.info")["running"], false);
}

TEST_F(SupervisorTest, KeepsAGivenRootAcrossStarts)
{
    const Support::TemporaryFolder root;
    call("phone.start", {{"root", root.path().string()}, {"settings", {{"a", 1}}}});
    call("phone.stop");
    call("phone.start", {{"root", root.path().string()}});
    EXPECT_TRUE(root.has(std::string(settingsPath).substr(1)));
}

TEST_F(SupervisorTest, ReplacesThePhoneByAnother)
{
    call("phone.start");
    const pid_t first = call("phone.info")["pid"];
    call("phone.start");
    const Json info = call("phone.info");
    EXPECT_FALSE(isAlive(first));
    EXPECT_NE(info["pid"], first);
    EXPECT_EQ(info["starts"], 1);
}

TEST_F(SupervisorTest, KeepsThePhoneWhenItsReplacementIsAskedForWrongly)
{
    call("phone.start");
    const Json before = call("phone.info");
    EXPECT_EQ(errorOf("phone.start", {{"wallpaper", "/none"}}, ErrorCode::badParameters),
        "parameter \"wallpaper\" takes the host path of a JPEG that exists or null, not \"/none\"");
    errorOf("phone.start", {{"colour", 1}}, ErrorCode::badParameters);
    EXPECT_EQ(call("phone.info"), before);
}

TEST_F(SupervisorTest, HasNoPhoneWhenTheShellRefusesToStart)
{
    EXPECT_EQ(errorOf("phone.start", {{"settings", {{"refuseToStart", true}}}}, ErrorCode::internal),
        "the fake phone refuses to start");
    EXPECT_EQ(call("phone.info")["running"], false);
}

TEST_F(SupervisorTest, RelaunchesAShellThatAsksForIt)
{
    call("phone.start", {{"settings", {{"a", 1}}}});
    call("clock.advance", {{"seconds", 90}});
    call("fake.note", {{"text", "before"}});
    const Json before = call("phone.info");
    const std::string root = call("fake.start")["root"];

    EXPECT_EQ(call("fake.relaunch"), Json::parse(R"({"asked":true})"));

    const Json info = call("phone.info");
    EXPECT_EQ(info["restarts"], 1);
    EXPECT_EQ(info["starts"], 2);
    EXPECT_EQ(info["safeMode"], false);
    EXPECT_EQ(info["time"], 90.0);
    EXPECT_NE(info["pid"], before["pid"]);
    EXPECT_FALSE(isAlive(before["pid"]));
    const Json start = call("fake.start");
    EXPECT_EQ(start["root"], root);
    EXPECT_EQ(start["isFirst"], false);
    EXPECT_EQ(start["parameters"]["settings"]["a"], 1);
    EXPECT_EQ(call("fake.note", {{"text", "after"}})["notes"], Json::parse(R"(["before","after"])"));
}

TEST_F(SupervisorTest, DoesNotFillTheRootAgainAtARelaunch)
{
    call("phone.start", {{"settings", {{"a", 1}}}});
    const std::string stored = call("fake.start")["root"].get<std::string>() + std::string(settingsPath);
    std::ofstream(stored) << "changed meanwhile";
    call("fake.relaunch");
    std::string text;
    std::getline(std::ifstream(stored), text);
    EXPECT_EQ(text, "changed meanwhile");
}

TEST_F(SupervisorTest, RelaunchesAShellThatAsksForItBetweenRequests)
{
    call("phone.start");
    call("fake.note", {{"text", "kept"}});
    call("fake.later", {{"what", "relaunch"}});
    waitForNews();
    EXPECT_EQ(call("phone.info")["restarts"], 1);
    EXPECT_EQ(call("fake.note", {{"text", "x"}})["notes"][0], "kept");
}

TEST_F(SupervisorTest, ServesARequestThatMeetsARelaunch)
{
    call("phone.start");
    for (int i = 1; i <= 20; ++i) {
        call("fake.later", {{"what", "relaunch"}});
        EXPECT_EQ(call("fake.echo", {{"value", i}})["value"], i);
    }
    EXPECT_LE(call("phone.info")["restarts"], 20);
}

TEST_F(SupervisorTest, PassesLongRequestsAndReplies)
{
    call("phone.start");
    const std::string text(8 << 20, 'x');
    EXPECT_EQ(call("fake.echo", {{"value", text}})["value"], text);
}

TEST_F(SupervisorTest, KillsAShellThatHangsWhenItGoesItself)
{
    struct GivenUp { };
    Supervisor::Options impatient = options();
    int waits = 0;
    impatient.wait = [&waits](int descriptor, short events) {
        if (waits < 0)
            throw GivenUp();
        waitForever(descriptor, events);
    };
    pid_t pid = 0;
    {
        Supervisor other(impatient);
        other.call("phone.start", Json::object());
        pid = other.call("phone.info", Json::object())["pid"];
        waits = -1;
        EXPECT_THROW(other.call("fake.hang", Json::object()), GivenUp);
        EXPECT_TRUE(isAlive(pid));
    }
    EXPECT_FALSE(isAlive(pid));
}
