// One WebSocket: requests of the control protocol in, replies, news and frames out. What a slow reader has not taken
// does not pile up: a frame waits until the last one was shown, news are sent as they stand when their turn comes.
#pragma once

#include "Simulator/Control/Dispatcher.hpp"
#include "Simulator/Preview/Network.hpp"
#include "Simulator/Preview/Tiles.hpp"

namespace Simulator::Preview {

class Browser : public std::enable_shared_from_this<Browser> {
public:
    // What a browser asks of the server.
    class Host {
    public:
        virtual Control::Json call(const std::string& method, const Control::Json& parameters) = 0;
        virtual Control::Json standing() const = 0;
        // It can take a frame now; or wants the whole screen first.
        virtual void wantsFrame() = 0;
        virtual void wantsAll(Browser&) = 0;
        virtual void left(Browser&) = 0;

    protected:
        ~Host() = default;
    };

    Browser(std::unique_ptr<WebSocket>, Host&);
    // Tells how the phone stands, and serves requests from there.
    void enter();

    // It follows the screen, and has shown what it was sent.
    bool isReady() const { return _follows && !_awaitsShown; }
    bool follows() const { return _follows; }
    // Tiles that differ from what it was sent last.
    Tiles stale;
    void send(std::shared_ptr<const std::string> frame);

    void tellStanding();
    void tellStored();

private:
    struct Outgoing {
        enum class Kind { Reply, News, Frame };
        std::shared_ptr<const std::string> bytes;
        Kind kind = Kind::News;
    };

    void leave();
    void read();
    void onRead(std::optional<std::string> request);
    Control::Json call(const std::string& method, const Control::Json& parameters);
    void write();
    void onWritten(bool isTaken);
    std::optional<Outgoing> next();

    std::unique_ptr<WebSocket> _socket;
    Host& _host;
    Control::Dispatcher _own;
    std::shared_ptr<const std::string> _reply;
    std::shared_ptr<const std::string> _frame;
    Outgoing _written;
    bool _isWriting = false;
    bool _isOpen = true;
    bool _follows = false;
    bool _awaitsShown = false;
    bool _standingIsNews = false;
    bool _storedIsNews = false;
};

}
