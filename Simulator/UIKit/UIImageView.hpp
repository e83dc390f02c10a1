// A picture on the screen.
#pragma once

#include "Platform/UIKit/UIImageView.hpp"
#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct UIImageView : UIView {
    void initWithFrame(CGRect frame);
    void initWithImage(const UI::Image& image);
    Graphics::LayerContent layerContent() const override;
    void describe(nlohmann::json& description) const override;
    void setImage(const UI::Image& image);
    CGSize sizeThatFits(CGSize) const { return image.size(); }
    CGSize intrinsicContentSize() const;

    UI::Image image;
};

}
