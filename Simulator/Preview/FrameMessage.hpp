// Parts of the screen as one binary message: the length of a JSON header in four bytes (the lowest first), the header,
// and the parts' pixels one after another: rows of red, green, blue and alpha.
#pragma once

#include "Simulator/Control/Envelope.hpp"
#include "Simulator/Preview/Tiles.hpp"

namespace Simulator::Preview {

/// `header` is sent with "parts", a list of [x, y, width, height] in pixels, added.
std::string frameMessage(const Control::SharedFrame&, const Tiles&, Control::Json header);

}
