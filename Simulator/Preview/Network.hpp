// The server's one thread on the network: connections, descriptors and times. What is behind it takes long to compile,
// so nobody else includes it.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Simulator::Preview {

/// A request of HTTP.
struct Request {
    std::string target;
    std::string host;
    std::string origin;
    bool isToRead = false; // GET or HEAD
    bool isForWebSocket = false;
};

struct Answer {
    int status = 200;
    std::string body = {};
    std::vector<std::pair<std::string, std::string>> fields = {};
};

/// The status of an answer that makes the connection a WebSocket.
inline constexpr int switchingProtocols = 101;

/// One reading and one writing go on at a time.
class WebSocket {
public:
    enum class Form { text, binary };

    virtual ~WebSocket() = default;
    /// Answers a message; nothing when the other end is gone.
    virtual void read(std::function<void(std::optional<std::string>)> done) = 0;
    /// The bytes stay where they are until it is done; false when the other end is gone.
    virtual void write(const std::string& bytes, Form, std::function<void(bool)> done) = 0;
    virtual void close() = 0;
};

class Network {
public:
    using Clock = std::chrono::steady_clock;

    /// Who answers; a connection that there is no room for is closed.
    struct Service {
        std::function<bool()> hasRoom;
        std::function<Answer(const Request&)> answer;
        std::function<void(std::unique_ptr<WebSocket>)> entered;
    };

    /// Ends with its owner.
    class Watch {
    public:
        virtual ~Watch() = default;
    };

    Network();
    ~Network();
    Network(const Network&) = delete;
    Network& operator=(const Network&) = delete;

    /// On this machine only, at any free port for 0. Answers the port; throws for one that cannot be had.
    unsigned short listen(unsigned short port);
    void serve(Service);

    /// Whenever the descriptor is readable.
    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> action);
    /// Once.
    void at(Clock::time_point, std::function<void()> action);

    /// Until something that is called throws.
    void run();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

}
