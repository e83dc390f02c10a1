// Reads the stored wallpaper and draws it over the whole screen.
#include "Simulator/SpringBoard/Wallpaper.hpp"

#include "Simulator/Runtime/ExtensionCounts.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

namespace {

constexpr long aspectFill = 2;

}

void SBFStaticWallpaperView::addParts()
{
    contentMode = aspectFill;
    setClipsToBounds(true);
    reload();
}

Graphics::LayerContent SBFStaticWallpaperView::layerContent() const
{
    if (image)
        return UIImageView::layerContent();
    Graphics::Gradient dusk;
    dusk.colors = {{0.09, 0.11, 0.2, 1}, {0.2, 0.17, 0.33, 1}, {0.42, 0.25, 0.36, 1}};
    return dusk;
}

void SBFStaticWallpaperView::reload()
{
    const OwnWork own;
    setImage(UI::Image::imageWithContentsOfFile("/var/mobile/Library/SpringBoard/LockBackgroundThumbnail.jpg"_ns));
}

static const StandInClass sbfWallpaperView("SBFWallpaperView", "UIView", [](Binder<UIView>& binder) { binder.add(); });

static const StandInClass sbfStaticWallpaperView(
    "SBFStaticWallpaperView", "SBFWallpaperView", [](Binder<SBFStaticWallpaperView>& binder) { binder.add(); });

}
