// All of UIKit, and what lies under it, for the Objective-C runtime.
#pragma once

namespace Simulator {

/// Registers every class once; later calls do nothing.
void registerUIKit();

}
