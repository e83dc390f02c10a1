// The system's sheet for choosing a colour: a grid of colours, and sliders for hue, brightness and opacity.
#pragma once

#include "Platform/UIKit/UIButton.hpp"
#include "Platform/UIKit/UISlider.hpp"
#include "Simulator/UIKit/ColorGrid.hpp"
#include "Simulator/UIKit/UISlider.hpp"

namespace Simulator {

struct UIColorWell;

/// As large as the window; what is beside the pane closes it when it is touched.
struct UIColorSheetView : UIView {
    void layoutSubviews();
    void touchesEnded(const NS::Object& touches, const NS::Object& event);
    void gridChanged(const UI::Control& grid);
    void sliderChanged(const UI::Slider& slider);
    void dismiss();

    void build(UIColorWell& well);

private:
    UI::Slider addSlider(const NS::String& identifier, const NS::String& caption);
    void showColor();
    void tell();

    /// Not retained; null once the sheet is closed.
    UIColorWell* m_colorWell = nullptr;
    UI::View m_pane;
    UI::Label m_titleLabel;
    UI::Button m_closeButton;
    UI::Control m_grid;
    std::vector<UI::Label> m_captions;
    UI::Slider m_hueSlider;
    UI::Slider m_brightnessSlider;
    UI::Slider m_opacitySlider;
    CGFloat m_hue = 0;
    CGFloat m_saturation = 0;
    CGFloat m_brightness = 1;
    CGFloat m_opacity = 1;
};

UI::View makeColorSheet(UIColorWell& well);

}
