#include "Simulator/Preview/Connection.hpp"

#include "Simulator/Preview/Origin.hpp"
#include "Simulator/Preview/PageFiles.hpp"

namespace Simulator::Preview {

namespace beast = boost::beast;
namespace http = beast::http;

namespace {

constexpr std::chrono::seconds idleTime{30};
constexpr std::uint32_t longestHeader = 16384;

using Response = http::response<http::string_body>;

std::string field(const HttpRequest& request, http::field name)
{
    return std::string(request[name]);
}

class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(beast::tcp_stream stream, const std::filesystem::path& page, unsigned short port, Upgrade upgrade)
        : _stream(std::move(stream))
        , _page(page)
        , _port(port)
        , _upgrade(std::move(upgrade))
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
        const bool isControl = request.target() == "/control";
        if (!isOwnHost(field(request, http::field::host), _port))
            return send(
                request, http::status::forbidden, "This page is served to this machine by its own name only.\n");
        if (!isControl)
            return answerFile(request);
        if (!beast::websocket::is_upgrade(request))
            return send(request, http::status::upgrade_required, "This is a WebSocket.\n");
        if (!isOwnOrigin(field(request, http::field::origin), _port))
            return send(request, http::status::forbidden, "The phone is not for pages of other origins.\n");
        _upgrade(std::move(_stream), request);
    }

    void answerFile(const HttpRequest& request)
    {
        if (request.method() != http::verb::get && request.method() != http::verb::head)
            return send(request, http::status::method_not_allowed, "Files are to be read here.\n");
        const auto target = request.target();
        auto file = pageFile(_page, {target.data(), target.size()});
        if (!file)
            return send(request, http::status::not_found, "There is no such file.\n");
        send(request, http::status::ok, std::move(file->bytes), file->type);
    }

    void send(const HttpRequest& request, http::status status, std::string body,
        const std::string& type = "text/plain; charset=utf-8")
    {
        _response = Response(status, request.version());
        _response.set(http::field::content_type, type);
        _response.set("Content-Security-Policy", contentSecurityPolicy(field(request, http::field::host)));
        _response.set("X-Content-Type-Options", "nosniff");
        _response.set("Referrer-Policy", "no-referrer");
        _response.set("Cross-Origin-Resource-Policy", "same-origin");
        _response.set(http::field::cache_control, "no-store");
        _response.keep_alive(request.keep_alive());
        _response.content_length(body.size());
        if (request.method() != http::verb::head)
            _response.body() = std::move(body);
        http::async_write(_stream, _response, [self = shared_from_this()](beast::error_code error, std::size_t) {
            if (!error && self->_response.keep_alive())
                self->read();
        });
    }

    beast::tcp_stream _stream;
    const std::filesystem::path& _page;
    unsigned short _port;
    Upgrade _upgrade;
    beast::flat_buffer _arrived;
    std::optional<http::request_parser<http::empty_body>> _parser;
    Response _response;
};

}

void serveConnection(beast::tcp_stream stream, const std::filesystem::path& page, unsigned short port, Upgrade upgrade)
{
    std::make_shared<Connection>(std::move(stream), page, port, std::move(upgrade))->read();
}

}
