// Ends the shell, which the system then starts again.
#include "Tweak/Respring.hpp"

#include "Platform/SpringBoard/FBSystemService.hpp"

namespace LYR {

void respring(CFNotificationCenterRef, void*, id, const void*, id)
{
    FB::SystemService::sharedInstance().exitAndRelaunch(true);
}

}
