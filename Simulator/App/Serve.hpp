// `lyr serve --stdio`: the control protocol on the standard streams.
#pragma once

#include "Simulator/Control/Supervisor.hpp"

namespace Simulator::App {

/// Until the input ends. Answers the exit status.
int serve(Control::Supervisor::Options);

}
