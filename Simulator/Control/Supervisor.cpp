// The life of a phone over its shell processes.
#include "Simulator/Control/Supervisor.hpp"

namespace Simulator::Control {

namespace {

// A crash brings the phone back in safe mode; one more before it served anything ends it.
constexpr int mostFailures = 2;
// Without a request in between: a phone that asks for a relaunch at every start would never come up.
constexpr int mostRelaunches = 5;

ProtocolError shellEnded(const std::string& during, const std::string& how)
{
    return ProtocolError(ErrorCode::ShellEnded,
        "the shell process ended during " + during + ": " + how + "; the phone is back in safe mode");
}

ProtocolError errorIn(const Json& reply)
{
    const Json& error = reply.at("error");
    return ProtocolError(error.at("code").get<ErrorCode>(), error.at("message").get<std::string>());
}

Json resultIn(const Json& reply)
{
    if (reply.contains("error"))
        throw errorIn(reply);
    return reply.at("result");
}

}

Supervisor::Supervisor(Options options)
    : _options(std::move(options))
{
    for (const Method& method : _options.methods) {
        if (method.name == "phone.start")
            _dispatcher.add(method, [this](const Json& parameters) { return start(parameters); });
        else if (method.name == "phone.info")
            _dispatcher.add(method, [this](const Json&) { return info(); });
        else if (method.name == "phone.stop")
            _dispatcher.add(method, [this](const Json&) {
                stop();
                return Json::object();
            });
        else
            _dispatcher.add(
                method, [this, name = method.name](const Json& parameters) { return forward(name, parameters); });
    }
}

Json Supervisor::call(const std::string& method, const Json& parameters)
{
    return _dispatcher.call(method, parameters);
}

int Supervisor::descriptor() const
{
    return _phone ? _phone->process->channel().descriptor() : -1;
}

void Supervisor::notice()
{
    try {
        while (_phone) {
            while (const auto document = receive(&Channel::receiveArrived))
                noteState(*document);
            if (_phone->process->channel().isOpen() && !_phone->wantsRelaunch)
                return;
            bringBack();
        }
    } catch (const ProtocolError& error) {
        _options.log(error.what());
    }
}

Json Supervisor::draw(const std::string& framePath)
{
    // Whatever changes while the process comes back, it draws afterwards.
    const Json drawn = forward(std::string(drawMessage), {{"path", framePath}});
    _mayLookOther = false;
    return drawn;
}

Json Supervisor::standing() const
{
    return {{"running", _phone != nullptr}, {"safeMode", _phone && _phone->isSafeMode}, {"starts", _starts},
        {"restarts", _restarts}};
}

void Supervisor::stop()
{
    if (_phone && _phone->process && _phone->process->pid() > 0)
        _phone->process->end();
    _phone.reset();
}

Json Supervisor::start(const Json& parameters)
{
    stop();
    _whyNone = "no phone started";
    _starts = _restarts = 0;

    auto phone = std::make_unique<Phone>();
    phone->parameters = parameters;
    phone->parameters.emplace("clock", _options.clock);
    if (parameters.contains("root"))
        phone->root = std::make_unique<RootFolder>(parameters["root"].get<std::string>());
    else
        phone->root = std::make_unique<RootFolder>();
    phone->root->fill(parameters);
    _phone = std::move(phone);

    if (!startProcess()) {
        if (const std::string crash = bringBack(); !crash.empty())
            throw shellEnded("phone.start", crash);
    }
    return Json::object();
}

Json Supervisor::info()
{
    notice();
    Json known{{"pid", nullptr}, {"time", nullptr}, {"screen", nullptr}};
    known.update(standing());
    if (!_phone)
        return known;

    try {
        known = forward("phone.info", Json::object());
    } catch (const ProtocolError& error) {
        // A process that was killed just before: the one that came back knows as well.
        if (error.code() != ErrorCode::ShellEnded)
            throw;
        if (!_phone)
            return info();
        known = forward("phone.info", Json::object());
    }
    known.update(standing());
    known["pid"] = _phone->process->pid();
    return known;
}

Json Supervisor::forward(const std::string& method, const Json& parameters)
{
    notice();
    for (;;) {
        if (!_phone)
            throw ProtocolError(ErrorCode::NoPhone, _whyNone);
        const auto reply = exchange(method, parameters);
        _phone->failures = 0;
        if (reply)
            _phone->relaunches = 0;
        if (!reply || _phone->wantsRelaunch) {
            if (const std::string crash = bringBack(); !crash.empty())
                throw shellEnded(method, crash);
        }
        // A process that relaunched just before the request came has not served it: the next one does.
        if (reply)
            return resultIn(*reply);
    }
}

std::optional<Json> Supervisor::exchange(const std::string& method, const Json& parameters)
{
    const std::uint64_t id = ++_lastId;
    // What a process said before it went is read below, even if it takes nothing any more.
    _phone->process->channel().send(requestDocument(id, method, parameters));
    while (auto document = receive(&Channel::receive)) {
        if (document->value("id", Json()) == id)
            return document;
        noteState(*document);
    }
    return std::nullopt;
}

std::optional<Json> Supervisor::receive(std::optional<Json> (Channel::*how)())
{
    Channel& channel = _phone->process->channel();
    try {
        return (channel.*how)();
    } catch (const ProtocolError& error) {
        _options.log(std::string("the shell process does not make sense: ") + error.what());
        _phone->process->kill();
        return std::nullopt;
    }
}

void Supervisor::noteState(const Json& document)
{
    if (document.value("method", "") != stateMessage)
        return;
    _phone->state = document.at("params").at("state");
    _phone->wantsRelaunch = document.at("params").at("relaunch");
    _mayLookOther = true;
}

std::string Supervisor::bringBack()
{
    std::string crash;
    do {
        if (const std::string how = endProcess(); !how.empty())
            crash = how;
    } while (!startProcess());
    return crash;
}

bool Supervisor::startProcess()
{
    ++_starts;
    _phone->wantsRelaunch = false;
    _phone->process = std::make_unique<ChildProcess>(_options.shellCommand, _options.wait);
    const auto reply = exchange(std::string(startMessage),
        toJson({.parameters = _phone->parameters,
            .root = _phone->root->path(),
            .isFirst = !_phone->hasStood,
            .isSafeMode = _phone->isSafeMode,
            .state = _phone->state}));
    if (!reply)
        return false;
    if (reply->contains("error"))
        giveUp(errorIn(*reply));
    _phone->hasStood = true;
    return !_phone->wantsRelaunch;
}

std::string Supervisor::endProcess()
{
    const Ending ending = _phone->process->end();
    const bool isRelaunch = _phone->wantsRelaunch && ending.isExitWith(relaunchStatus);
    if (isRelaunch && ++_phone->relaunches <= mostRelaunches) {
        ++_restarts;
        _phone->isSafeMode = false;
        return {};
    }
    const std::string how = isRelaunch ? "a relaunch wanted again and again" : ending.text();
    _options.log("the shell process ended: " + how);
    _phone->isSafeMode = true;
    if (++_phone->failures >= mostFailures)
        giveUp(
            ProtocolError(ErrorCode::ShellEnded, "no phone runs: the shell process ended again in safe mode: " + how));
    return how;
}

void Supervisor::giveUp(const ProtocolError& error)
{
    _whyNone = error.what();
    stop();
    throw error;
}

}
