// The class of blocks, which Linux lacks. Nobody sends a block a message, so that its address is enough.
#include "Simulator/Runtime/Blocks.hpp"

void* _NSConcreteStackBlock[32];
