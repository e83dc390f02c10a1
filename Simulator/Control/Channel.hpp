// One end of the socket between the supervisor and its shell process: a JSON document a line, both ways.
#pragma once

#include "Simulator/Base/Descriptor.hpp"
#include "Simulator/Control/Envelope.hpp"
#include "Simulator/Control/LineReader.hpp"
#include "Simulator/Control/Wait.hpp"

namespace Simulator::Control {

class Channel {
public:
    explicit Channel(Descriptor, Wait = waitForever);

    int descriptor() const { return m_descriptor.number(); }
    void close() { m_descriptor.close(); }

    /// False when the other end is gone.
    bool send(const Json&);
    /// Waits for a document; nothing when the other end is gone. Throws a ProtocolError for a line that is no document.
    std::optional<Json> receive();
    /// A document that has arrived already. `isOpen` tells an empty channel from one whose other end is gone.
    std::optional<Json> receiveArrived();
    bool isOpen() const { return m_isOpen; }

private:
    void readArrived();
    std::optional<Json> nextDocument();

    Descriptor m_descriptor;
    Wait m_wait;
    LineReader m_lines;
    bool m_isOpen = true;
};

}
