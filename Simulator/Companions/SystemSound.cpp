// System sounds are not heard but noted.
#include "Simulator/Runtime/ActivityLog.hpp"

extern "C" void AudioServicesPlaySystemSound(unsigned sound)
{
    Simulator::ActivityLog::shared().record("sound", {{"id", sound}});
}
