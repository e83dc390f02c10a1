// What lies beside the program: the phone's files as they are when it is new, and the symbols its system draws.
#pragma once

#include "Simulator/Control/Shell.hpp"

#include <filesystem>

namespace Simulator::App {

/// Puts into the root what is missing there; the extension itself is always this build's own.
void installFactoryContent(const Control::ShellStart& start);


std::filesystem::path symbolFolder();

}
