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
    : _socket(std::move(socket))
    , _host(host)
{
    _own.add("screen.follow", [this](const Json&) {
        _follows = true;
        _awaitsShown = false;
        _frame.reset();
        _host.wantsAll(*this);
        return Json::object();
    });
    _own.add("screen.shown", [this](const Json&) {
        _awaitsShown = false;
        _host.wantsFrame();
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
    _isOpen = false;
    _socket->close();
    _host.left(*this);
}

void Browser::read()
{
    _socket->read(
        [self = shared_from_this()](std::optional<std::string> request) { self->onRead(std::move(request)); });
}

// The next request is read when the reply to this one is on its way, so that no replies pile up.
void Browser::onRead(std::optional<std::string> request)
{
    if (!request)
        return leave();
    auto reply = answerLine(
        *request, [this](const std::string& method, const Json& parameters) { return call(method, parameters); });
    if (!reply)
        return read();
    _reply = shared(std::move(*reply));
    write();
}

Json Browser::call(const std::string& method, const Json& parameters)
{
    return _own.knows(method) ? _own.call(method, parameters) : _host.call(method, parameters);
}

void Browser::send(std::shared_ptr<const std::string> frame)
{
    _frame = std::move(frame);
    _awaitsShown = true;
    stale.clear();
    write();
}

void Browser::tellStanding()
{
    _standingIsNews = true;
    write();
}

void Browser::tellStored()
{
    _storedIsNews = true;
    write();
}

std::optional<Browser::Outgoing> Browser::next()
{
    const auto news = [](const char* method, const Json& parameters) {
        return Outgoing{
            shared(toLine({{"jsonrpc", "2.0"}, {"method", method}, {"params", parameters}})), Outgoing::Kind::News};
    };
    // Who has the reply to a call knows what the call did.
    if (std::exchange(_standingIsNews, false))
        return news("preview.standing", _host.standing());
    if (std::exchange(_storedIsNews, false))
        return news("preview.stored", Json::object());
    if (_reply)
        return Outgoing{std::move(_reply), Outgoing::Kind::Reply};
    if (_frame)
        return Outgoing{std::move(_frame), Outgoing::Kind::Frame};
    return std::nullopt;
}

void Browser::write()
{
    if (_isWriting || !_isOpen)
        return;
    auto outgoing = next();
    if (!outgoing)
        return;
    _written = std::move(*outgoing);
    _isWriting = true;
    const auto form = _written.kind == Outgoing::Kind::Frame ? WebSocket::Form::Binary : WebSocket::Form::Text;
    _socket->write(*_written.bytes, form, [self = shared_from_this()](bool isTaken) { self->onWritten(isTaken); });
}

void Browser::onWritten(bool isTaken)
{
    _isWriting = false;
    if (!isTaken)
        return leave();
    _written.bytes.reset();
    if (_written.kind == Outgoing::Kind::Reply)
        read();
    write();
}

}
