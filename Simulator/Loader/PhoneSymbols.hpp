// The functions and variables of the phone's libraries, by the names that the phone's linker gives them.
#pragma once

#include <string>

namespace Simulator {

/// The address; null if this phone has none of that name.
void* phoneSymbol(const std::string& name);

}
