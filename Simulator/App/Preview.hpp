// `lyr preview`: the live phone in a browser.
#pragma once

#include "Simulator/App/StartFiles.hpp"
#include "Simulator/Control/Supervisor.hpp"

namespace Simulator::App {

struct PreviewOptions {
    StartOptions start;
    std::string root; // host folder that is kept; empty for a temporary one
    int port = 0; // 0 for any that is free
};

/// Until it is interrupted. Throws a Failure or a ProtocolError.
int preview(const PreviewOptions&, Control::Supervisor::Options);

}
