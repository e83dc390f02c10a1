// The loop of a shell process.
#include "Simulator/Control/ShellProcess.hpp"

#include "Simulator/Control/Types.hpp"

#include <algorithm>
#include <cmath>
#include <poll.h>
#include <utility>

namespace Simulator::Control {

Json toJson(const ShellStart& start)
{
    return {{"parameters", start.parameters}, {"root", start.root}, {"isFirst", start.isFirst},
        {"isSafeMode", start.isSafeMode}, {"state", start.state}};
}

ShellStart shellStartFrom(const Json& json)
{
    return {.parameters = json.at("parameters"),
        .root = json.at("root"),
        .isFirst = json.at("isFirst"),
        .isSafeMode = json.at("isSafeMode"),
        .state = json.at("state")};
}

ShellProcess::ShellProcess(Shell& shell, Descriptor socket)
    : m_shell(shell)
    , m_channel(std::move(socket))
{
    const Method start{std::string(startMessage),
        {{"parameters", anything()}, {"root", text()}, {"isFirst", boolean()}, {"isSafeMode", boolean()},
            {"state", anything()}}};
    m_dispatcher.add(start, [this](const Json& parameters) {
        m_shell.start(shellStartFrom(parameters));
        m_isStarted = true;
        return Json::object();
    });
    m_shell.addMethods(m_dispatcher);
}

int ShellProcess::run()
{
    for (;;) {
        while (const auto document = m_channel.receiveArrived()) {
            serve(*document);
            if (m_shell.wantsRelaunch() || !runDue())
                return relaunchStatus;
        }
        if (!m_channel.isOpen())
            return 0;
        waitForWork();
        if (!runDue())
            return relaunchStatus;
        if (std::exchange(m_isLookedAt, false))
            sayState();
    }
}

/// After every request, however fast the next one follows: what a script sees must not depend on that.
bool ShellProcess::runDue()
{
    // A long start message arrives piece by piece.
    if (m_isStarted)
        m_shell.runDue();
    if (m_shell.wantsRelaunch())
        sayState();
    return !m_shell.wantsRelaunch();
}

void ShellProcess::serve(const Json& document)
{
    const auto reply = answerDocument(document,
        [this](const std::string& method, const Json& parameters) { return m_dispatcher.call(method, parameters); });
    sayState();
    if (reply)
        m_channel.send(*reply);
    m_isLookedAt = m_isLookedAt || document.value("method", "") == drawMessage;
}

void ShellProcess::sayState()
{
    m_channel.send({{"jsonrpc", "2.0"}, {"method", stateMessage},
        {"params", {{"state", m_shell.state()}, {"relaunch", m_shell.wantsRelaunch()}}}});
}

void ShellProcess::waitForWork()
{
    constexpr double longestWait = 3600;
    const auto due = m_shell.nextDue();
    pollfd entry{m_channel.descriptor(), POLLIN, 0};
    poll(&entry, 1, due ? static_cast<int>(std::ceil(std::clamp(*due, 0.0, longestWait) * 1000)) : -1);
}

}
