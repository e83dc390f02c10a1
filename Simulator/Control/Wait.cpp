// A descriptor is waited for with poll.
#include "Simulator/Control/Wait.hpp"

#include <cerrno>
#include <poll.h>

namespace Simulator::Control {

void waitForever(int descriptor, short events)
{
    pollfd entry{descriptor, events, 0};
    while (poll(&entry, 1, -1) < 0 && errno == EINTR) { }
}

}
