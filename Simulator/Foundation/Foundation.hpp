// The phone's Foundation on Linux: GNUstep's, with its differences mended.
#pragma once

namespace Simulator {

/// Mends the classes and connects them to the loop, the phone's files and the activity log. Further calls do nothing.
void registerFoundation();

}
