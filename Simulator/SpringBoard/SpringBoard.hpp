// What the stock shell asks of whoever runs it.
#pragma once

#include <functional>

namespace Simulator {

/// Called when the shell is asked to end and start again; does nothing until it is set.
std::function<void()>& relaunchRequested();

}
