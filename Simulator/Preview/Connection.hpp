// One HTTP connection: the page's files, and the step over to a WebSocket at /control.
#pragma once

#include "Simulator/Preview/Browser.hpp"

#include <filesystem>
#include <functional>

namespace Simulator::Preview {

using Upgrade = std::function<void(boost::beast::tcp_stream, const HttpRequest&)>;

// Lives by itself until its end; `upgrade` takes over from there.
void serveConnection(boost::beast::tcp_stream, const std::filesystem::path& page, unsigned short port, Upgrade upgrade);

}
