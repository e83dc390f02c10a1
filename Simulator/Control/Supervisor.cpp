// The life of a phone over its shell processes.
#include "Simulator/Control/Supervisor.hpp"

namespace Simulator::Control {

namespace {

/// A crash brings the phone back in safe mode; one more before it served anything ends it.
constexpr int mostFailures = 2;
/// Without a request in between: a phone that asks for a relaunch at every start would never come up.
constexpr int mostRelaunches = 5;

ProtocolError shellEnded(const std::string& during, const std::string& how)
{
    return ProtocolError(ErrorCode::shellEnded,
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
    : m_options(std::move(options))
{
    for (const Method& method : m_options.methods) {
        if (method.name == "phone.start")
            m_dispatcher.add(method, [this](const Json& parameters) { return start(parameters); });
        else if (method.name == "phone.info")
            m_dispatcher.add(method, [this](const Json&) { return info(); });
        else if (method.name == "phone.stop")
            m_dispatcher.add(method, [this](const Json&) {
                stop();
                return Json::object();
            });
        else
            m_dispatcher.add(
                method, [this, name = method.name](const Json& parameters) { return forward(name, parameters); });
    }
}

Json Supervisor::call(const std::string& method, const Json& parameters)
{
    return m_dispatcher.call(method, parameters);
}

int Supervisor::descriptor() const
{
    return m_phone ? m_phone->process->channel().descriptor() : -1;
}

void Supervisor::notice()
{
    try {
        while (m_phone) {
            while (const auto document = receive(&Channel::receiveArrived))
                noteState(*document);
            if (m_phone->process->channel().isOpen() && !m_phone->wantsRelaunch)
                return;
            bringBack();
        }
    } catch (const ProtocolError& error) {
        m_options.log(error.what());
    }
}

Json Supervisor::draw(const std::string& framePath)
{
    // Whatever changes while the process comes back, it draws afterwards.
    const Json drawn = forward(std::string(drawMessage), {{"path", framePath}});
    m_mayLookOther = false;
    return drawn;
}

Json Supervisor::standing() const
{
    return {{"running", m_phone != nullptr}, {"safeMode", m_phone && m_phone->isSafeMode}, {"starts", m_starts},
        {"restarts", m_restarts}};
}

void Supervisor::stop()
{
    if (m_phone && m_phone->process && m_phone->process->pid() > 0)
        m_phone->process->end();
    m_phone.reset();
}

Json Supervisor::start(const Json& parameters)
{
    stop();
    m_whyNone = "no phone started";
    m_starts = m_restarts = 0;

    auto phone = std::make_unique<Phone>();
    phone->parameters = parameters;
    phone->parameters.emplace("clock", m_options.clock);
    if (parameters.contains("root"))
        phone->root = std::make_unique<RootFolder>(parameters["root"].get<std::string>());
    else
        phone->root = std::make_unique<RootFolder>();
    phone->root->fill(parameters);
    m_phone = std::move(phone);

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
    if (!m_phone)
        return known;

    try {
        known = forward("phone.info", Json::object());
    } catch (const ProtocolError& error) {
        // A process that was killed just before: the one that came back knows as well.
        if (error.code() != ErrorCode::shellEnded)
            throw;
        if (!m_phone)
            return info();
        known = forward("phone.info", Json::object());
    }
    known.update(standing());
    known["pid"] = m_phone->process->pid();
    return known;
}

Json Supervisor::forward(const std::string& method, const Json& parameters)
{
    notice();
    for (;;) {
        if (!m_phone)
            throw ProtocolError(ErrorCode::noPhone, m_whyNone);
        const auto reply = exchange(method, parameters);
        m_phone->failures = 0;
        if (reply)
            m_phone->relaunches = 0;
        if (!reply || m_phone->wantsRelaunch) {
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
    const std::uint64_t id = ++m_lastId;
    // What a process said before it went is read below, even if it takes nothing any more.
    m_phone->process->channel().send(requestDocument(id, method, parameters));
    while (auto document = receive(&Channel::receive)) {
        if (document->value("id", Json()) == id)
            return document;
        noteState(*document);
    }
    return std::nullopt;
}

std::optional<Json> Supervisor::receive(std::optional<Json> (Channel::*how)())
{
    Channel& channel = m_phone->process->channel();
    try {
        return (channel.*how)();
    } catch (const ProtocolError& error) {
        m_options.log(std::string("the shell process does not make sense: ") + error.what());
        m_phone->process->kill();
        return std::nullopt;
    }
}

void Supervisor::noteState(const Json& document)
{
    if (document.value("method", "") != stateMessage)
        return;
    m_phone->state = document.at("params").at("state");
    m_phone->wantsRelaunch = document.at("params").at("relaunch");
    m_mayLookOther = true;
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
    ++m_starts;
    m_phone->wantsRelaunch = false;
    m_phone->process = std::make_unique<ChildProcess>(m_options.shellCommand, m_options.wait);
    const auto reply = exchange(std::string(startMessage),
        toJson({.parameters = m_phone->parameters,
            .root = m_phone->root->path(),
            .isFirst = !m_phone->hasStood,
            .isSafeMode = m_phone->isSafeMode,
            .state = m_phone->state}));
    if (!reply)
        return false;
    if (reply->contains("error"))
        giveUp(errorIn(*reply));
    m_phone->hasStood = true;
    return !m_phone->wantsRelaunch;
}

std::string Supervisor::endProcess()
{
    const Ending ending = m_phone->process->end();
    const bool isRelaunch = m_phone->wantsRelaunch && ending.isExitWith(relaunchStatus);
    if (isRelaunch && ++m_phone->relaunches <= mostRelaunches) {
        ++m_restarts;
        m_phone->isSafeMode = false;
        return {};
    }
    const std::string how = isRelaunch ? "a relaunch wanted again and again" : ending.text();
    m_options.log("the shell process ended: " + how);
    m_phone->isSafeMode = true;
    if (++m_phone->failures >= mostFailures)
        giveUp(
            ProtocolError(ErrorCode::shellEnded, "no phone runs: the shell process ended again in safe mode: " + how));
    return how;
}

void Supervisor::giveUp(const ProtocolError& error)
{
    m_whyNone = error.what();
    stop();
    throw error;
}

}
