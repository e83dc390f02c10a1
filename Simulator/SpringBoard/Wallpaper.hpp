// The wallpaper behind everything: the picture that the user chose, or a dark gradient.
#pragma once

#include "Simulator/UIKit/UIImageView.hpp"

namespace Simulator {

struct SBFStaticWallpaperView : UIImageView {
    void addParts() override;
    Graphics::LayerContent layerContent() const override;
    /// Reads the picture's file again.
    void reload();
};

}
