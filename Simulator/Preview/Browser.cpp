#include "Simulator/Preview/Browser.hpp"

#include "Simulator/Control/Parameters.hpp"

namespace Simulator::Preview {

namespace beast = boost::beast;
namespace websocket = beast::websocket;
using namespace Control;

namespace {

constexpr std::size_t longestRequest = std::size_t(64) << 20;

std::shared_ptr<const std::string> shared(std::string text)
{
    return std::make_shared<const std::string>(std::move(text));
}

}

Browser::Browser(beast::tcp_stream stream, Host& host)
    : _stream(std::move(stream))
    , _host(host)
{
}

void Browser::accept(const HttpRequest& request)
{
    auto timeouts = websocket::stream_base::timeout::suggested(beast::role_type::server);
    timeouts.keep_alive_pings = true;
    beast::get_lowest_layer(_stream).expires_never();
    _stream.set_option(timeouts);
    _stream.read_message_max(longestRequest);
    // A frame of several megabytes in pieces of a few kilobytes takes many times as long.
    _stream.auto_fragment(false);
    _stream.async_accept(request, [self = shared_from_this()](beast::error_code error) {
        if (error)
            return;
        self->_host.entered(self);
        self->tellStanding();
        self->read();
    });
}

void Browser::leave()
{
    _isOpen = false;
    beast::get_lowest_layer(_stream).close();
    _host.left(*this);
}

void Browser::read()
{
    _stream.async_read(
        _arrived, [self = shared_from_this()](beast::error_code error, std::size_t) { self->onRead(error); });
}

// The next request is read when the reply to this one is on its way, so that no replies pile up.
void Browser::onRead(beast::error_code error)
{
    if (error)
        return leave();
    auto reply = answerLine(beast::buffers_to_string(_arrived.data()),
        [this](const std::string& method, const Json& parameters) { return call(method, parameters); });
    _arrived.consume(_arrived.size());
    if (!reply)
        return read();
    _reply = shared(std::move(*reply));
    write();
}

Json Browser::call(const std::string& method, const Json& parameters)
{
    static const Method follow{"screen.follow", {}};
    static const Method shown{"screen.shown", {}};
    if (method == follow.name) {
        checkParameters(follow, parameters);
        _follows = true;
        _awaitsShown = false;
        _frame.reset();
        _host.wantsAll(*this);
        return Json::object();
    }
    if (method == shown.name) {
        checkParameters(shown, parameters);
        _awaitsShown = false;
        _host.wantsFrame();
        return Json::object();
    }
    return _host.call(method, parameters);
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
    _stream.binary(_written.kind == Outgoing::Kind::Frame);
    _stream.async_write(boost::asio::buffer(*_written.bytes),
        [self = shared_from_this()](beast::error_code error, std::size_t) { self->onWritten(error); });
}

void Browser::onWritten(beast::error_code error)
{
    _isWriting = false;
    if (error)
        return leave();
    _written.bytes.reset();
    if (_written.kind == Outgoing::Kind::Reply)
        read();
    write();
}

}
