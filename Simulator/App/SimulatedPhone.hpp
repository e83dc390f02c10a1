// The phone that a shell process runs: stand-in classes, stock shell, and the extension loaded into it.
#pragma once

#include "Simulator/Control/Shell.hpp"

#include <memory>

namespace Simulator::App {

std::unique_ptr<Control::Shell> makeSimulatedPhone();

}
