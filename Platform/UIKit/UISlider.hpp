// A thumb on a track: one number of a range.
#pragma once

#include "Platform/UIKit/UIControl.hpp"
#include "Platform/UIKit/UIImage.hpp"

namespace UI {

class Slider : public ObjC::Class_<Slider, Control, "UISlider"> {
public:
    using Class_::Class_;

    float value() const { return send<float, "value">(); }
    void setValue(float value) const { send<void, "setValue:">(value); }
    void setValueAnimated(float value, bool animated) const { send<void, "setValue:animated:">(value, animated); }
    float minimumValue() const { return send<float, "minimumValue">(); }
    void setMinimumValue(float value) const { send<void, "setMinimumValue:">(value); }
    float maximumValue() const { return send<float, "maximumValue">(); }
    void setMaximumValue(float value) const { send<void, "setMaximumValue:">(value); }
    /// Whether the value changes while the finger moves, or only when it is lifted.
    bool isContinuous() const { return send<bool, "isContinuous">(); }
    void setContinuous(bool continuous) const { send<void, "setContinuous:">(continuous); }
    /// Beside the ends of the track.
    void setMinimumValueImage(const Image& image) const { send<void, "setMinimumValueImage:">(image); }
    void setMaximumValueImage(const Image& image) const { send<void, "setMaximumValueImage:">(image); }
    void setMinimumTrackTintColor(const Color& color) const { send<void, "setMinimumTrackTintColor:">(color); }
    void setMaximumTrackTintColor(const Color& color) const { send<void, "setMaximumTrackTintColor:">(color); }
    void setThumbTintColor(const Color& color) const { send<void, "setThumbTintColor:">(color); }
};

}
