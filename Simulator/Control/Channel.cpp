// Sends and receives documents over a socket.
#include "Simulator/Control/Channel.hpp"

#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Simulator::Control {

namespace {

/// Both ends are ours; a picture in base64 is the longest thing that is said.
constexpr std::size_t longestDocument = std::size_t(1) << 30;

bool mustWait()
{
    return errno == EAGAIN || errno == EWOULDBLOCK;
}

}

Channel::Channel(Descriptor descriptor, Wait wait)
    : m_descriptor(std::move(descriptor))
    , m_wait(std::move(wait))
    , m_lines(longestDocument)
{
}

bool Channel::send(const Json& document)
{
    const std::string line = toLine(document) + '\n';
    std::size_t sent = 0;
    while (sent < line.size()) {
        const auto count = ::send(descriptor(), line.data() + sent, line.size() - sent, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count >= 0)
            sent += static_cast<std::size_t>(count);
        else if (mustWait())
            m_wait(descriptor(), POLLOUT);
        else if (errno != EINTR)
            return false;
    }
    return true;
}

std::optional<Json> Channel::receive()
{
    for (;;) {
        if (auto document = receiveArrived())
            return document;
        if (!m_isOpen)
            return std::nullopt;
        m_wait(descriptor(), POLLIN);
    }
}

std::optional<Json> Channel::receiveArrived()
{
    if (auto document = nextDocument())
        return document;
    readArrived();
    return nextDocument();
}

void Channel::readArrived()
{
    std::array<char, 65536> bytes;
    while (m_isOpen) {
        const auto count = ::recv(descriptor(), bytes.data(), bytes.size(), MSG_DONTWAIT);
        if (count > 0)
            m_lines.feed({bytes.data(), static_cast<std::size_t>(count)});
        else if (count < 0 && mustWait())
            return;
        else if (count == 0 || errno != EINTR)
            m_isOpen = false;
    }
}

std::optional<Json> Channel::nextDocument()
{
    const auto line = m_lines.next();
    if (!line)
        return std::nullopt;
    return parseDocument(line->text);
}

}
