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
    : _shell(shell)
    , _channel(std::move(socket))
{
    const Method start{std::string(startMessage),
        {{"parameters", anything()}, {"root", text()}, {"isFirst", boolean()}, {"isSafeMode", boolean()},
            {"state", anything()}}};
    _dispatcher.add(start, [this](const Json& parameters) {
        _shell.start(shellStartFrom(parameters));
        _isStarted = true;
        return Json::object();
    });
    _shell.addMethods(_dispatcher);
}

int ShellProcess::run()
{
    for (;;) {
        while (const auto document = _channel.receiveArrived()) {
            serve(*document);
            if (_shell.wantsRelaunch() || !runDue())
                return relaunchStatus;
        }
        if (!_channel.isOpen())
            return 0;
        waitForWork();
        if (!runDue())
            return relaunchStatus;
        if (std::exchange(_isLookedAt, false))
            sayState();
    }
}

/// After every request, however fast the next one follows: what a script sees must not depend on that.
bool ShellProcess::runDue()
{
    // A long start message arrives piece by piece.
    if (_isStarted)
        _shell.runDue();
    if (_shell.wantsRelaunch())
        sayState();
    return !_shell.wantsRelaunch();
}

void ShellProcess::serve(const Json& document)
{
    const auto reply = answerDocument(document,
        [this](const std::string& method, const Json& parameters) { return _dispatcher.call(method, parameters); });
    sayState();
    if (reply)
        _channel.send(*reply);
    _isLookedAt = _isLookedAt || document.value("method", "") == drawMessage;
}

void ShellProcess::sayState()
{
    _channel.send({{"jsonrpc", "2.0"}, {"method", stateMessage},
        {"params", {{"state", _shell.state()}, {"relaunch", _shell.wantsRelaunch()}}}});
}

void ShellProcess::waitForWork()
{
    constexpr double longestWait = 3600;
    const auto due = _shell.nextDue();
    pollfd entry{_channel.descriptor(), POLLIN, 0};
    poll(&entry, 1, due ? static_cast<int>(std::ceil(std::clamp(*due, 0.0, longestWait) * 1000)) : -1);
}

}
