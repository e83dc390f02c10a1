// Makes what lies behind a blurred backdrop part of its digest.
#pragma once

#include "Simulator/Graphics/DisplayItem.hpp"

namespace Simulator::Graphics {

void resolveBackdrops(DisplayList& list);

}
