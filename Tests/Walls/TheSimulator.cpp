// Nothing of the extension knows that there is a simulator.
#include "Simulator/Device/DeviceState.hpp"
