// HTTP, WebSockets and waiting, by the network library.
#include "Simulator/Preview/Network.hpp"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/posix/stream_descriptor.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <stdexcept>
#include <unistd.h>

namespace Simulator::Preview {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using asio::ip::tcp;

namespace {

constexpr std::chrono::seconds idleTime{30};
constexpr std::uint32_t longestHeader = 16384;
constexpr std::size_t longestMessage = std::size_t(64) << 20;

using HttpRequest = http::request<http::empty_body>;

class Socket final : public WebSocket {
public:
    explicit Socket(beast::tcp_stream stream)
        : _stream(std::move(stream))
    {
    }

    static void accept(beast::tcp_stream stream, const HttpRequest& request,
        const std::function<void(std::unique_ptr<WebSocket>)>& entered)
    {
        auto socket = std::make_unique<Socket>(std::move(stream));
        auto& accepted = socket->_stream;
        auto timeouts = websocket::stream_base::timeout::suggested(beast::role_type::server);
        timeouts.keep_alive_pings = true;
        beast::get_lowest_layer(accepted).expires_never();
        accepted.set_option(timeouts);
        accepted.read_message_max(longestMessage);
        // A frame of several megabytes in pieces of a few kilobytes takes many times as long.
        accepted.auto_fragment(false);
        accepted.async_accept(request, [socket = std::move(socket), &entered](beast::error_code error) mutable {
            if (!error)
                entered(std::move(socket));
        });
    }

    void read(std::function<void(std::optional<std::string>)> done) override
    {
        _stream.async_read(_arrived, [this, done = std::move(done)](beast::error_code error, std::size_t) {
            if (error)
                return done(std::nullopt);
            std::string message = beast::buffers_to_string(_arrived.data());
            _arrived.consume(_arrived.size());
            done(std::move(message));
        });
    }

    void write(const std::string& bytes, Form form, std::function<void(bool)> done) override
    {
        _stream.binary(form == Form::Binary);
        _stream.async_write(
            asio::buffer(bytes), [done = std::move(done)](beast::error_code error, std::size_t) { done(!error); });
    }

    void close() override { beast::get_lowest_layer(_stream).close(); }

private:
    websocket::stream<beast::tcp_stream> _stream;
    beast::flat_buffer _arrived;
};

// Lives by itself until its end, or until it is a WebSocket.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(tcp::socket socket, const Network::Service& service)
        : _stream(std::move(socket))
        , _service(service)
    {
    }

    void read()
    {
        _parser.emplace();
        _parser->header_limit(longestHeader);
        _stream.expires_after(idleTime);
        http::async_read(
            _stream, _arrived, *_parser, [self = shared_from_this()](beast::error_code error, std::size_t) {
                if (!error)
                    self->answer(self->_parser->release());
            });
    }

private:
    void answer(const HttpRequest& request)
    {
        const bool isHead = request.method() == http::verb::head;
        Answer answer = _service.answer({.target = std::string(request.target()),
            .host = std::string(request[http::field::host]),
            .origin = std::string(request[http::field::origin]),
            .isToRead = isHead || request.method() == http::verb::get,
            .isForWebSocket = websocket::is_upgrade(request)});
        if (answer.status == switchingProtocols)
            return Socket::accept(std::move(_stream), request, _service.entered);
        _response = http::response<http::string_body>(http::int_to_status(answer.status), request.version());
        for (const auto& [name, value] : answer.fields)
            _response.set(name, value);
        _response.keep_alive(request.keep_alive());
        _response.content_length(answer.body.size());
        if (!isHead)
            _response.body() = std::move(answer.body);
        http::async_write(_stream, _response, [self = shared_from_this()](beast::error_code error, std::size_t) {
            if (!error && self->_response.keep_alive())
                self->read();
        });
    }

    beast::tcp_stream _stream;
    const Network::Service& _service;
    beast::flat_buffer _arrived;
    std::optional<http::request_parser<http::empty_body>> _parser;
    http::response<http::string_body> _response;
};

// Its action may end it.
struct Readiness : std::enable_shared_from_this<Readiness> {
    Readiness(asio::io_context& io, int number, std::function<void()> action)
        : descriptor(io, dup(number))
        , action(std::move(action))
    {
    }

    void wait()
    {
        descriptor.async_wait(
            asio::posix::descriptor_base::wait_read, [self = shared_from_this()](boost::system::error_code error) {
                if (error)
                    return;
                self->action();
                if (self->descriptor.is_open())
                    self->wait();
            });
    }

    asio::posix::stream_descriptor descriptor;
    std::function<void()> action;
};

class ReadinessWatch final : public Network::Watch {
public:
    explicit ReadinessWatch(std::shared_ptr<Readiness> readiness)
        : _readiness(std::move(readiness))
    {
        _readiness->wait();
    }
    ~ReadinessWatch() override { _readiness->descriptor.close(); }

private:
    std::shared_ptr<Readiness> _readiness;
};

}

struct Network::State {
    void acceptNext()
    {
        acceptor.async_accept([this](boost::system::error_code error, tcp::socket socket) {
            if (!error && service.hasRoom()) {
                boost::system::error_code ignored;
                socket.set_option(tcp::no_delay(true), ignored);
                std::make_shared<Connection>(std::move(socket), service)->read();
            }
            acceptNext();
        });
    }

    Service service; // outlives the connections that ask it
    asio::io_context io{1};
    tcp::acceptor acceptor{io};
};

Network::Network()
    : _state(std::make_unique<State>())
{
}

Network::~Network() = default;

unsigned short Network::listen(unsigned short port)
{
    try {
        _state->acceptor = tcp::acceptor(_state->io, tcp::endpoint(asio::ip::address_v4::loopback(), port));
        return _state->acceptor.local_endpoint().port();
    } catch (const boost::system::system_error& error) {
        throw std::runtime_error("port " + std::to_string(port) + " cannot be had: " + error.code().message()
            + "; without --port any free one is taken");
    }
}

void Network::serve(Service service)
{
    _state->service = std::move(service);
    _state->acceptNext();
}

std::unique_ptr<Network::Watch> Network::watch(int descriptor, std::function<void()> action)
{
    return std::make_unique<ReadinessWatch>(std::make_shared<Readiness>(_state->io, descriptor, std::move(action)));
}

void Network::at(Clock::time_point time, std::function<void()> action)
{
    const auto timer = std::make_shared<asio::steady_timer>(_state->io, time);
    timer->async_wait([timer, action = std::move(action)](boost::system::error_code) { action(); });
}

void Network::run()
{
    _state->io.run();
}

}
