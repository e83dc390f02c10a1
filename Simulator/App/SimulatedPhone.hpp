// The phone that a shell process runs: stand-in classes, stock shell, and the extension loaded into it.
#pragma once

#include "Simulator/Control/Shell.hpp"

#include <memory>

namespace Simulator::App {

/// The extension is a library on the host; without one it is this build's own.
std::unique_ptr<Control::Shell> makeSimulatedPhone(const std::string& extension = "");

}
