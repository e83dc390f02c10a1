// Registration of fonts while the phone runs, and fonts at a size for the text system.
#pragma once

#include "Platform/CoreText/CTFontManager.hpp"
#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct CTFontObject : StandIn {
    using Root = CTFontObject;
    Graphics::FaceNames names;
    double size = 12;
};

void registerCTFontManager();

}
