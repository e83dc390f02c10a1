// Looks after the shell process as a phone's system does: starts it, starts it again when it asks for that,
// and brings the phone back in safe mode when it crashes.
#pragma once

#include "Simulator/Control/ChildProcess.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Control/Shell.hpp"

namespace Simulator::Control {

class Supervisor {
public:
    struct Options {
        std::vector<std::string> shellCommand; // `--fd N` is added
        std::vector<Method> methods; // every method of the phone
        std::string clock = "virtual"; // where `phone.start` says nothing
        Wait wait = waitForever;
        std::function<void(const std::string&)> log = [](const std::string&) {};
    };

    explicit Supervisor(Options);

    /// Runs a method of the protocol; throws a ProtocolError.
    Json call(const std::string& method, const Json& parameters);

    /// Readable when the shell process says something of its own accord or ends; -1 when no phone runs.
    int descriptor() const;
    /// Attends to that, without waiting for a shell process that is well.
    void notice();

    /// Draws the screen into the shared frame at that host path. Answers what the shell process says of it.
    Json draw(const std::string& framePath);
    /// Something may look other than when it was last drawn.
    bool mayLookOther() const { return m_mayLookOther; }

    /// {"running", "safeMode", "starts", "restarts"}
    Json standing() const;
    /// What the shell process last said of itself; null without a phone.
    Json state() const { return m_phone ? m_phone->state : Json(); }

    /// Ends the shell process and removes a temporary root.
    void stop();

private:
    /// A phone that runs, over all its shell processes.
    struct Phone {
        Json parameters;
        std::unique_ptr<RootFolder> root; // outlives the process
        std::unique_ptr<ChildProcess> process;
        Json state;
        bool hasStood = false; // one of its processes came up
        bool wantsRelaunch = false;
        bool isSafeMode = false;
        int failures = 0; // crashes since a request was last served
        int relaunches = 0; // likewise
    };

    Json start(const Json& parameters);
    Json info();
    Json forward(const std::string& method, const Json& parameters);

    /// The reply's document; nothing when the process ended instead.
    std::optional<Json> exchange(const std::string& method, const Json& parameters);
    std::optional<Json> receive(std::optional<Json> (Channel::*how)());
    void noteState(const Json& document);

    /// Ends the process and starts the next, and the one after it, until one stands. Answers how one crashed, if any.
    std::string bringBack();
    /// False when the process ended, or wants to, instead of standing.
    bool startProcess();
    /// Answers how the process crashed; empty when it ended for a relaunch.
    std::string endProcess();
    [[noreturn]] void giveUp(const ProtocolError&);

    Options m_options;
    Dispatcher m_dispatcher;
    std::unique_ptr<Phone> m_phone;
    std::string m_whyNone = "no phone started";
    int m_starts = 0;
    int m_restarts = 0;
    bool m_mayLookOther = false;
    std::uint64_t m_lastId = 0;
};

}
