// `lyr preview` on the network: the page over HTTP, the phone over WebSockets, on this machine only.
#pragma once

#include "Simulator/Preview/LivePhone.hpp"

#include <filesystem>
#include <functional>

namespace Simulator::Preview {

struct ServerOptions {
    std::filesystem::path page; // the folder of its files
    unsigned short port = 0; // 0 for any that is free
    Control::Json start = Control::Json::object(); // parameters of `phone.start`, without a root
    std::string root;
    WithGlyph withGlyph;
    int interruption = -1; // readable when the server is to end
    std::function<void()> interrupt; // called then; throws
    std::function<void(const std::string& address)> ready;
};

/// Until it is interrupted. Throws for a port that cannot be had or a phone that does not start.
void serve(Control::Supervisor::Options, const ServerOptions&);

}
