// The frameworks know nothing of the shell that is made of them.
#include "Simulator/SpringBoard/Shell.hpp"
