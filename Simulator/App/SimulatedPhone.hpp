// The phone that a shell process runs: stand-in classes, stock shell, and the extension loaded into it.
#pragma once

#include "Simulator/App/CommandLine.hpp"

namespace Simulator::App {

std::unique_ptr<Control::Shell> makeSimulatedPhone(const ShellOptions& = {});
/// Says in a LoadError why a file of the host could not be loaded as an extension, as far as that can be known without
/// running it.
void checkExtension(const std::string& hostPath);

}
