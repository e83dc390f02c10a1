// `lyr look`: the settings and colours of a phone as one file, and back.
#pragma once

#include <string>

namespace Simulator::App {

/// Answer the exit status; throw a Failure or a ProtocolError.
int exportLook(const std::string& root, const std::string& file);
int importLook(const std::string& root, const std::string& file);

}
