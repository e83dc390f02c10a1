// The methods of the control protocol and what each takes.
#pragma once

#include "Simulator/Control/Parameters.hpp"

namespace Simulator::Control {

const std::vector<Method>& protocolMethods();

// The `screen` of `phone.start`.
Type screenType();

// The parameters of `device.set`, which `phone.start` takes as well.
Schema deviceParameters();

}
