// System-wide notifications, as processes other than the shell post them.
#pragma once

#include <string>

namespace Simulator {

/// Posts a notification from outside the shell. The observers have been called when this returns; what they post
/// themselves waits for the main queue. Posts that were still waiting are delivered first, each name once.
void postDarwinNotification(const std::string& name);

}
