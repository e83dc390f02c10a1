// The methods of the control protocol: what each takes, answers and does. docs/protocol.md has its tables from here.
#pragma once

#include "Simulator/Control/Parameters.hpp"

namespace Simulator::Control {

/// Methods that one table of the documentation has.
struct MethodGroup {
    std::string name;
    std::vector<Method> methods;
};
const std::vector<MethodGroup>& methodGroups();

/// The phone's: all but those that only a preview has.
const std::vector<Method>& protocolMethods();

/// Of the preview's too; null where there is none of the name.
const Method* methodNamed(const std::string& name);

/// The `screen` of `phone.start`.
Type screenType();

/// The parameters of `device.set`, which `phone.start` takes as well.
Schema deviceParameters();

}
