// Calls a function that phones have but that no stub lists.
extern "C" int getpid();

namespace LYR {
int processIdentifier = 0;
}

__attribute__((constructor)) static void start()
{
    LYR::processIdentifier = getpid();
}
