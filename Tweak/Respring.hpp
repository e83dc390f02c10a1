// Restarting the shell on request of the settings pane.
#pragma once

#include "Platform/Foundation/CFNotificationCenter.hpp"

namespace LYR {

void respring(CFNotificationCenterRef center, void* observer, id name, const void* object, id userInfo);

}
