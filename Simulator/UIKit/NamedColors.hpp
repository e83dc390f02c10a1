// The colours that the system has names for.
#pragma once

#include "Platform/UIKit/UIColor.hpp"

namespace Simulator {

/// A named colour by its selector ("labelColor"); nil for an unknown one.
UI::Color namedColor(const char* selectorName);

/// Gives the colour class one method for each name.
void registerNamedColors(Class colorClass);

}
