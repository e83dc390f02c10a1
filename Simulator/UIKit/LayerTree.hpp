// A tree of views as the tree of layers that the compositor draws.
#pragma once

#include "Simulator/Graphics/Layer.hpp"
#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

/// Hidden and fully transparent views are left out.
Graphics::Layer buildLayer(UIView& root);

}
