// Waiting for a descriptor.
#pragma once

#include <functional>

namespace Simulator::Control {

/// Blocks until the descriptor is ready for the poll events; may throw to give up.
using Wait = std::function<void(int descriptor, short events)>;
void waitForever(int descriptor, short events);

}
