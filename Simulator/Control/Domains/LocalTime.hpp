// The phone's local time as the protocol writes it.
#pragma once

#include <string>

namespace Simulator::Control {

/// "2020-11-15T21:41:00" for seconds since 2001-01-01 UTC.
std::string localTimeText(double moment);

}
