// The protocol runs in the supervisor, its methods in the shell process.
#include "Simulator/Control/Domains/PhoneContext.hpp"
