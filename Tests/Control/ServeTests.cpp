// `lyr serve --stdio` as a script meets it.
#include "Tests/Support/Phone.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

using namespace Support;

namespace {

Json replyTo(Program& program, const std::string& line)
{
    program.write(line);
    return Json::parse(program.read().value_or("\"the end\""));
}

/// The shell process of a program that serves, and its root.
struct Running {
    pid_t pid;
    std::string root;
};

Running startIn(Program& program)
{
    program.call("phone.start");
    return {program.call("phone.info")["pid"], program.call("fake.start")["root"]};
}

bool isAlive(pid_t pid)
{
    // A process that ended and was inherited by nobody who waits is a zombie: gone as well.
    std::ifstream status("/proc/" + std::to_string(pid) + "/stat");
    std::string word, state;
    return status >> word >> word >> state && state != "Z";
}

void waitUntilGone(pid_t pid)
{
    while (isAlive(pid))
        std::this_thread::yield();
}

}

TEST(Serve, EndsWithStatusZeroAtTheEndOfItsInput)
{
    const Finished finished = runProgram({"serve", "--stdio"});
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.output, "");
    EXPECT_EQ(finished.errors, "");
}

TEST(Serve, EndsLikewiseWhereItsInputIsClosed)
{
    const std::string command = "timeout 60 " + programPath() + " serve --stdio <&-";
    EXPECT_EQ(std::system(command.c_str()), 0);
}

TEST(Serve, AnswersEveryLineOfAFileBeforeItEnds)
{
    const Finished finished = runProgram({"serve", "--stdio"},
        "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"phone.start\"}\n"
        "{\"jsonrpc\":\"2.0\",\"id\":2,\"method\":\"fake.echo\",\"params\":{\"value\":1}}\r\n"
        "oops\n"
        "{\"jsonrpc\":\"2.0\",\"method\":\"phone.info\"}\n"
        "{\"jsonrpc\":\"2.0\",\"id\":3,\"method\":\"phone.stop\"}");
    EXPECT_EQ(finished.status, 0);
    std::istringstream lines(finished.output);
    std::vector<Json> replies;
    for (std::string line; std::getline(lines, line);)
        replies.push_back(Json::parse(line));
    ASSERT_EQ(replies.size(), 4u);
    EXPECT_EQ(replies[0], Json::parse(R"({"jsonrpc":"2.0","id":1,"result":{}})"));
    EXPECT_EQ(replies[1]["result"]["value"], 1);
    EXPECT_EQ(replies[2]["error"]["code"], -32700);
    EXPECT_EQ(replies[3]["id"], 3);
}

TEST(Serve, GoesOnAfterBadRequests)
{
    Program program;
    EXPECT_EQ(replyTo(program, "{")["error"]["code"], -32700);
    EXPECT_EQ(replyTo(program, "\xFF\xFE")["error"]["code"], -32700);
    EXPECT_EQ(replyTo(program, std::string(100000, '['))["error"]["code"], -32700);
    EXPECT_EQ(replyTo(program, "[]")["error"]["code"], -32600);
    EXPECT_EQ(replyTo(program, R"({"jsonrpc":"2.0","id":1,"method":"phone.strat"})")["error"]["code"], -32601);
    EXPECT_EQ(replyTo(program, R"({"jsonrpc":"2.0","id":1,"method":"phone.start","params":{"x":1}})")["error"]["code"],
        -32602);
    EXPECT_EQ(replyTo(program, R"({"jsonrpc":"2.0","id":1,"method":"view.tree"})")["error"]["code"], -32001);
    EXPECT_EQ(program.call("phone.info")["running"], false);
    EXPECT_EQ(program.end(), 0);
}

TEST(Serve, RefusesALineOfMoreThanSixtyFourMegabytesAndGoesOn)
{
    Program program;
    const Json reply = replyTo(program, std::string((64 << 20) + 1, ' '));
    EXPECT_EQ(reply["error"]["code"], -32600);
    EXPECT_EQ(reply["id"], nullptr);
    EXPECT_EQ(program.call("phone.info")["running"], false);
}

TEST(Serve, AnswersABatchInOneLine)
{
    Program program;
    const Json replies = replyTo(program,
        R"([{"jsonrpc":"2.0","id":"a","method":"phone.start"},{"jsonrpc":"2.0","id":"b","method":"fake.echo","params":{"value":"\n"}}])");
    ASSERT_EQ(replies.size(), 2u);
    EXPECT_EQ(replies[0]["result"], Json::object());
    EXPECT_EQ(replies[1]["result"]["value"], "\n");
}

TEST(Serve, ReportsACrashAndGoesOnInSafeMode)
{
    Program program;
    program.call("phone.start");
    try {
        program.call("fake.crash", {{"signal", SIGSEGV}});
        FAIL();
    } catch (const ControlError& error) {
        EXPECT_EQ(error.code, -32003);
        EXPECT_NE(std::string(error.what()).find("SIGSEGV"), std::string::npos);
    }
    EXPECT_EQ(program.call("phone.info")["safeMode"], true);
}

TEST(Serve, KnowsRightAfterAKillThatThePhoneCameBack)
{
    Program program;
    const Running running = startIn(program);
    kill(running.pid, SIGKILL);
    const Json info = program.call("phone.info");
    EXPECT_EQ(info["safeMode"], true);
    EXPECT_EQ(info["running"], true);
    EXPECT_NE(info["pid"], running.pid);
}

TEST(Serve, TakesTheShellAndTheTemporaryRootAlongAtTheEndOfItsInput)
{
    Program program;
    const Running running = startIn(program);
    EXPECT_TRUE(std::filesystem::exists(running.root));
    EXPECT_EQ(program.end(), 0);
    EXPECT_FALSE(isAlive(running.pid));
    EXPECT_FALSE(std::filesystem::exists(running.root));
}

TEST(Serve, TakesThemAlongWhenItIsTerminated)
{
    Program program;
    const Running running = startIn(program);
    kill(program.pid(), SIGTERM);
    EXPECT_EQ(program.read(), std::nullopt);
    EXPECT_EQ(program.end(), 128 + SIGTERM);
    EXPECT_FALSE(isAlive(running.pid));
    EXPECT_FALSE(std::filesystem::exists(running.root));
}

TEST(Serve, IsTerminatedWhileTheShellHangs)
{
    Program program;
    const Running running = startIn(program);
    program.write(R"({"jsonrpc":"2.0","id":1,"method":"fake.hang"})");
    kill(program.pid(), SIGTERM);
    EXPECT_EQ(program.read(), std::nullopt);
    EXPECT_EQ(program.end(), 128 + SIGTERM);
    EXPECT_FALSE(isAlive(running.pid));
    EXPECT_FALSE(std::filesystem::exists(running.root));
}

TEST(Serve, TakesTheShellAlongEvenWhenItIsKilled)
{
    Program program;
    const Running running = startIn(program);
    program.write(R"({"jsonrpc":"2.0","id":1,"method":"fake.hang"})");
    kill(program.pid(), SIGKILL);
    EXPECT_EQ(program.end(), 128 + SIGKILL);
    waitUntilGone(running.pid);
    std::filesystem::remove_all(running.root);
}

TEST(Serve, EndsAHangingShellWhenNobodyReadsItsRepliesAnyMore)
{
    Program program;
    const Running running = startIn(program);
    program.write(R"({"jsonrpc":"2.0","id":1,"method":"fake.hang"})");
    program.closeOutput();
    EXPECT_EQ(program.end(), 0);
    EXPECT_FALSE(isAlive(running.pid));
    EXPECT_FALSE(std::filesystem::exists(running.root));
}
