// Writes the header and the pixels of a message.
#include "Simulator/Preview/FrameMessage.hpp"

namespace Simulator::Preview {

using Control::Json;
using Control::SharedFrame;

namespace {

void appendPixels(std::string& message, const SharedFrame& frame, const SharedFrame::Part& part)
{
    for (int y = part.y; y < part.y + part.height; ++y)
        message.append(reinterpret_cast<const char*>(frame.row(y)) + static_cast<std::ptrdiff_t>(part.x) * 4,
            static_cast<std::size_t>(part.width) * 4);
}

}

std::string frameMessage(const SharedFrame& frame, const Tiles& tiles, Json header)
{
    const auto parts = tiles.parts(frame);
    std::size_t pixels = 0;
    header["parts"] = Json::array();
    for (const auto& part : parts) {
        header["parts"].push_back({part.x, part.y, part.width, part.height});
        pixels += static_cast<std::size_t>(part.width) * static_cast<std::size_t>(part.height);
    }
    const std::string text = Control::toLine(header);
    std::string message;
    message.reserve(4 + text.size() + pixels * 4);
    for (int shift = 0; shift < 32; shift += 8)
        message.push_back(static_cast<char>(text.size() >> shift & 0xFF));
    message += text;
    for (const auto& part : parts)
        appendPixels(message, frame, part);
    return message;
}

}
