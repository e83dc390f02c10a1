// A thumb on a track: one number of a range.
#pragma once

#include "Platform/UIKit/UISlider.hpp"
#include "Simulator/UIKit/UIControl.hpp"

namespace Simulator {

struct UISlider : UIControl {
    void decorate(Graphics::Layer& layer) const override;
    void describe(nlohmann::json& description) const override;

    CGSize sizeThatFits(CGSize size) const;
    CGSize intrinsicContentSize() const;
    CGRect trackRectForBounds(CGRect bounds) const;
    CGRect thumbRectForBounds(CGRect bounds, CGRect track, float value) const;

    void setValue(float wanted);
    void setValueAnimated(float wanted, bool animated);
    void setMinimumValue(float wanted);
    void setMaximumValue(float wanted);

    bool beginTracking(const NS::Object& touch, const NS::Object& event);
    bool continueTracking(const NS::Object& touch, const NS::Object& event);
    void endTracking(const NS::Object& touch, const NS::Object& event);

    float value = 0;
    float minimumValue = 0;
    float maximumValue = 1;
    bool continuous = true;
    UI::Image minimumValueImage;
    UI::Image maximumValueImage;
    UI::Color minimumTrackTint;
    UI::Color maximumTrackTint;
    UI::Color thumbTint;

private:
    Graphics::Rect track() const;
    Graphics::Rect thumb() const;

    /// How far the finger is from the middle of the thumb that it holds.
    double m_grip = 0;
};

}
