// The phone that a shell process runs: stand-in classes, stock shell, and the extension loaded into it.
#pragma once

#include "Simulator/App/CommandLine.hpp"

namespace Simulator::App {

std::unique_ptr<Control::Shell> makeSimulatedPhone(const ShellOptions& = {});

}
