// What the server answers over HTTP: the page's files, and the step over to a WebSocket at /control.
#pragma once

#include "Simulator/Preview/Network.hpp"

#include <filesystem>

namespace Simulator::Preview {

Answer answerTo(const Request&, const std::filesystem::path& page, unsigned short port);

}
