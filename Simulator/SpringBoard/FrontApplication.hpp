// An app as the shell knows it.
#pragma once

#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <string>

namespace Simulator {

struct SBApplication : StandIn {
    using Root = SBApplication;

    NS::String bundleIdentifier() const;
    std::string bundle;
};

NS::Object makeFrontApplication(const std::string& bundle);

}
