// What lies beside the program: the phone's files as they are when it is new, the symbols its system draws, and the
// pictures of its weather.
#pragma once

#include "Simulator/Control/Shell.hpp"

#include <filesystem>

namespace Simulator::App {

/// Puts into the root what is missing there. The extension itself is always the given library of the host, or this
/// build's own.
void installFactoryContent(const Control::ShellStart& start, const std::string& extension);

std::filesystem::path symbolFolder();
/// A PNG for each kind of weather.
std::filesystem::path glyphFolder();
/// The files of the preview's page.
std::filesystem::path pageFolder();

}
