// Reads requests, answers them, and says one thing after another.
#include "Simulator/Preview/Browser.hpp"

namespace Simulator::Preview {

using namespace Control;

namespace {

std::shared_ptr<const std::string> shared(std::string text)
{
    return std::make_shared<const std::string>(std::move(text));
}

}

Browser::Browser(std::unique_ptr<WebSocket> socket, Host& host)
    : m_socket(std::move(socket))
    , m_host(host)
{
    m_own.add("screen.follow", [this](const Json&) {
        m_follows = true;
        m_awaitsShown = false;
        m_frame.reset();
        m_host.wantsAll(*this);
        return Json::object();
    });
    m_own.add("screen.shown", [this](const Json&) {
        m_awaitsShown = false;
        m_host.wantsFrame();
        return Json::object();
    });
}

void Browser::enter()
{
    tellStanding();
    read();
}

void Browser::leave()
{
    m_isOpen = false;
    m_socket->close();
    m_host.left(*this);
}

void Browser::read()
{
    m_socket->read(
        [self = shared_from_this()](std::optional<std::string> request) { self->onRead(std::move(request)); });
}

/// The next request is read when the reply to this one is on its way, so that no replies pile up.
void Browser::onRead(std::optional<std::string> request)
{
    if (!request)
        return leave();
    auto reply = answerLine(
        *request, [this](const std::string& method, const Json& parameters) { return call(method, parameters); });
    if (!reply)
        return read();
    m_reply = shared(std::move(*reply));
    write();
}

Json Browser::call(const std::string& method, const Json& parameters)
{
    return m_own.knows(method) ? m_own.call(method, parameters) : m_host.call(method, parameters);
}

void Browser::send(std::shared_ptr<const std::string> frame)
{
    m_frame = std::move(frame);
    m_awaitsShown = true;
    stale.clear();
    write();
}

void Browser::tellStanding()
{
    m_standingIsNews = true;
    write();
}

void Browser::tellStored()
{
    m_storedIsNews = true;
    write();
}

std::optional<Browser::Outgoing> Browser::next()
{
    const auto news = [](const char* method, const Json& parameters) {
        return Outgoing{
            shared(toLine({{"jsonrpc", "2.0"}, {"method", method}, {"params", parameters}})), Outgoing::Kind::news};
    };
    // Who has the reply to a call knows what the call did.
    if (std::exchange(m_standingIsNews, false))
        return news("preview.standing", m_host.standing());
    if (std::exchange(m_storedIsNews, false))
        return news("preview.stored", Json::object());
    if (m_reply)
        return Outgoing{std::move(m_reply), Outgoing::Kind::reply};
    if (m_frame)
        return Outgoing{std::move(m_frame), Outgoing::Kind::frame};
    return std::nullopt;
}

void Browser::write()
{
    if (m_isWriting || !m_isOpen)
        return;
    auto outgoing = next();
    if (!outgoing)
        return;
    m_written = std::move(*outgoing);
    m_isWriting = true;
    const auto form = m_written.kind == Outgoing::Kind::frame ? WebSocket::Form::binary : WebSocket::Form::text;
    m_socket->write(*m_written.bytes, form, [self = shared_from_this()](bool isTaken) { self->onWritten(isTaken); });
}

void Browser::onWritten(bool isTaken)
{
    m_isWriting = false;
    if (!isTaken)
        return leave();
    m_written.bytes.reset();
    if (m_written.kind == Outgoing::Kind::reply)
        read();
    write();
}

}
