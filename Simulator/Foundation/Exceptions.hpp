// What the phone's frameworks do with a mistake of their caller.
#pragma once

#include <string>

namespace Simulator {

/// Raises an exception of the platform, "NSInvalidArgumentException", which nothing in the shell catches.
[[noreturn]] void raiseException(const char* name, const std::string& reason);

}
