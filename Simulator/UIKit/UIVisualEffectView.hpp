// A pane that blurs what is behind it: the ground of notifications and quick-action buttons.
#pragma once

#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

enum class BlurStyle : long {
    extraLight = 0,
    light = 1,
    dark = 2,
    regular = 4,
    prominent = 5,
    systemUltraThinMaterial = 6,
    systemThinMaterial = 7,
    systemMaterial = 8,
    systemThickMaterial = 9
};

struct UIBlurEffect : StandIn {
    using Root = UIBlurEffect;
    static NS::Object effectWithStyle(long style);
    long style = 0;
};

struct UIVisualEffectView : UIView {
    void initWithFrame(CGRect frame);
    void initWithEffect(const NS::Object& effect);
    Graphics::LayerContent layerContent() const override;

    long style() const;
    void setStyle(long style);
    void setEffect(const NS::Object& effect);

    NS::Object effect;
    /// Where the content goes; as large as the pane.
    UI::View contentView;
};

}
