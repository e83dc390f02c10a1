// `lyr render`: a picture of the lock screen.
#pragma once

#include "Simulator/App/StartFiles.hpp"
#include "Simulator/Control/Supervisor.hpp"

namespace Simulator::App {

struct RenderOptions {
    StartOptions start;
    std::string output;
};

/// Answers the exit status; throws a Failure or a ProtocolError.
int render(const RenderOptions&, Control::Supervisor::Options);

}
