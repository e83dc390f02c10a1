// A measurement that needs a process of its own: this program again, with an option that names the measurement.
#pragma once

#include <string>
#include <vector>

namespace Benchmarks {

/// What the process prints; nothing if it cannot be started. What it logs is of no interest.
std::string outputOfOwnProcess(const std::vector<std::string>& arguments);

}
