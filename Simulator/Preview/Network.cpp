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
        : m_stream(std::move(stream))
    {
    }

    static void accept(beast::tcp_stream stream, const HttpRequest& request,
        const std::function<void(std::unique_ptr<WebSocket>)>& entered)
    {
        auto socket = std::make_unique<Socket>(std::move(stream));
        auto& accepted = socket->m_stream;
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
        m_stream.async_read(m_arrived, [this, done = std::move(done)](beast::error_code error, std::size_t) {
            if (error)
                return done(std::nullopt);
            std::string message = beast::buffers_to_string(m_arrived.data());
            m_arrived.consume(m_arrived.size());
            done(std::move(message));
        });
    }

    void write(const std::string& bytes, Form form, std::function<void(bool)> done) override
    {
        m_stream.binary(form == Form::binary);
        m_stream.async_write(
            asio::buffer(bytes), [done = std::move(done)](beast::error_code error, std::size_t) { done(!error); });
    }

    void close() override { beast::get_lowest_layer(m_stream).close(); }

private:
    websocket::stream<beast::tcp_stream> m_stream;
    beast::flat_buffer m_arrived;
};

/// Lives by itself until its end, or until it is a WebSocket.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(tcp::socket socket, const Network::Service& service)
        : m_stream(std::move(socket))
        , m_service(service)
    {
    }

    void read()
    {
        m_parser.emplace();
        m_parser->header_limit(longestHeader);
        m_stream.expires_after(idleTime);
        http::async_read(
            m_stream, m_arrived, *m_parser, [self = shared_from_this()](beast::error_code error, std::size_t) {
                if (!error)
                    self->answer(self->m_parser->release());
            });
    }

private:
    void answer(const HttpRequest& request)
    {
        const bool isHead = request.method() == http::verb::head;
        Answer answer = m_service.answer({.target = std::string(request.target()),
            .host = std::string(request[http::field::host]),
            .origin = std::string(request[http::field::origin]),
            .isToRead = isHead || request.method() == http::verb::get,
            .isForWebSocket = websocket::is_upgrade(request)});
        if (answer.status == switchingProtocols)
            return Socket::accept(std::move(m_stream), request, m_service.entered);
        m_response = http::response<http::string_body>(http::int_to_status(answer.status), request.version());
        for (const auto& [name, value] : answer.fields)
            m_response.set(name, value);
        m_response.keep_alive(request.keep_alive());
        m_response.content_length(answer.body.size());
        if (!isHead)
            m_response.body() = std::move(answer.body);
        http::async_write(m_stream, m_response, [self = shared_from_this()](beast::error_code error, std::size_t) {
            if (!error && self->m_response.keep_alive())
                self->read();
        });
    }

    beast::tcp_stream m_stream;
    const Network::Service& m_service;
    beast::flat_buffer m_arrived;
    std::optional<http::request_parser<http::empty_body>> m_parser;
    http::response<http::string_body> m_response;
};

/// Its action may end it.
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
        : m_readiness(std::move(readiness))
    {
        m_readiness->wait();
    }
    ~ReadinessWatch() override { m_readiness->descriptor.close(); }

private:
    std::shared_ptr<Readiness> m_readiness;
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
    : m_state(std::make_unique<State>())
{
}

Network::~Network() = default;

unsigned short Network::listen(unsigned short port)
{
    try {
        m_state->acceptor = tcp::acceptor(m_state->io, tcp::endpoint(asio::ip::address_v4::loopback(), port));
        return m_state->acceptor.local_endpoint().port();
    } catch (const boost::system::system_error& error) {
        throw std::runtime_error("port " + std::to_string(port) + " cannot be had: " + error.code().message()
            + "; without --port any free one is taken");
    }
}

void Network::serve(Service service)
{
    m_state->service = std::move(service);
    m_state->acceptNext();
}

std::unique_ptr<Network::Watch> Network::watch(int descriptor, std::function<void()> action)
{
    return std::make_unique<ReadinessWatch>(std::make_shared<Readiness>(m_state->io, descriptor, std::move(action)));
}

void Network::at(Clock::time_point time, std::function<void()> action)
{
    const auto timer = std::make_shared<asio::steady_timer>(m_state->io, time);
    timer->async_wait([timer, action = std::move(action)](boost::system::error_code) { action(); });
}

void Network::run()
{
    m_state->io.run();
}

}
