// The loop and the files are plain C++; Foundation stands on them.
#include "Simulator/Foundation/Mending.hpp"
