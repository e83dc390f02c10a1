// A supervisor of a fake phone, for tests in the same process.
#pragma once

#include "Simulator/Control/Supervisor.hpp"
#include "Tests/Control/FakePhone.hpp"

#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>

using namespace Simulator::Control;

class SupervisorTest : public testing::Test {
protected:
    Json call(const std::string& method, const Json& parameters = Json::object())
    {
        return supervisor.call(method, parameters);
    }

    std::string errorOf(const std::string& method, const Json& parameters, ErrorCode code)
    {
        try {
            call(method, parameters);
            return "no error";
        } catch (const ProtocolError& error) {
            EXPECT_EQ(error.code(), code) << error.what();
            return error.what();
        }
    }

    /// What happens while no request is in hand.
    void waitForNews()
    {
        waitForever(supervisor.descriptor(), POLLIN);
        supervisor.notice();
    }

    Supervisor::Options options()
    {
        Supervisor::Options options;
        options.shellCommand = {FAKE_LYR_PATH, "shell"};
        options.methods = FakePhone::methods();
        options.log = [this](const std::string& line) { log.push_back(line); };
        return options;
    }

    std::vector<std::string> log;
    Supervisor supervisor{options()};
};

inline bool isAlive(pid_t pid)
{
    return kill(pid, 0) == 0;
}
