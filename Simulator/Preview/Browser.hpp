// One WebSocket: requests of the control protocol in, replies, news and frames out. What a slow reader has not taken
// does not pile up: a frame waits until the last one was shown, news are sent as they stand when their turn comes.
#pragma once

#include "Simulator/Control/Dispatcher.hpp"
#include "Simulator/Preview/Network.hpp"
#include "Simulator/Preview/Tiles.hpp"

namespace Simulator::Preview {

class Browser : public std::enable_shared_from_this<Browser> {
public:
    /// What a browser asks of the server.
    class Host {
    public:
        virtual Control::Json call(const std::string& method, const Control::Json& parameters) = 0;
        virtual Control::Json standing() const = 0;
        /// It can take a frame now; or wants the whole screen first.
        virtual void wantsFrame() = 0;
        virtual void wantsAll(Browser&) = 0;
        virtual void left(Browser&) = 0;

    protected:
        ~Host() = default;
    };

    Browser(std::unique_ptr<WebSocket>, Host&);
    /// Tells how the phone stands, and serves requests from there.
    void enter();

    /// It follows the screen, and has shown what it was sent.
    bool isReady() const { return m_follows && !m_awaitsShown; }
    bool follows() const { return m_follows; }
    /// Tiles that differ from what it was sent last.
    Tiles stale;
    void send(std::shared_ptr<const std::string> frame);

    void tellStanding();
    void tellStored();

private:
    struct Outgoing {
        enum class Kind { reply, news, frame };
        std::shared_ptr<const std::string> bytes;
        Kind kind = Kind::news;
    };

    void leave();
    void read();
    void onRead(std::optional<std::string> request);
    Control::Json call(const std::string& method, const Control::Json& parameters);
    void write();
    void onWritten(bool isTaken);
    std::optional<Outgoing> next();

    std::unique_ptr<WebSocket> m_socket;
    Host& m_host;
    Control::Dispatcher m_own;
    std::shared_ptr<const std::string> m_reply;
    std::shared_ptr<const std::string> m_frame;
    Outgoing m_written;
    bool m_isWriting = false;
    bool m_isOpen = true;
    bool m_follows = false;
    bool m_awaitsShown = false;
    bool m_standingIsNews = false;
    bool m_storedIsNews = false;
};

}
