// The stock shell's classes.
#pragma once

#include <functional>

namespace Simulator {

/// Registers them for the Objective-C runtime; needs UIKit. What belongs to other extensions is registered if the
/// device has them, so DeviceState::installed is to be set before.
void registerSpringBoard();

/// Called when the shell is asked to end and start again; does nothing until it is set.
std::function<void()>& relaunchRequested();

}
