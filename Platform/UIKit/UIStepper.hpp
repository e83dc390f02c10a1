// A minus and a plus: a number in steps.
#pragma once

#include "Platform/UIKit/UIControl.hpp"

namespace UI {

class Stepper : public ObjC::Class_<Stepper, Control, "UIStepper"> {
public:
    using Class_::Class_;

    double value() const { return send<double, "value">(); }
    void setValue(double value) const { send<void, "setValue:">(value); }
    double minimumValue() const { return send<double, "minimumValue">(); }
    void setMinimumValue(double value) const { send<void, "setMinimumValue:">(value); }
    double maximumValue() const { return send<double, "maximumValue">(); }
    void setMaximumValue(double value) const { send<void, "setMaximumValue:">(value); }
    double stepValue() const { return send<double, "stepValue">(); }
    void setStepValue(double value) const { send<void, "setStepValue:">(value); }
    /// Whether each step is told, or only the last one when the finger is lifted.
    void setContinuous(bool continuous) const { send<void, "setContinuous:">(continuous); }
    /// Whether a held button goes on stepping.
    void setAutorepeat(bool repeats) const { send<void, "setAutorepeat:">(repeats); }
    /// Whether a step beyond one end leads to the other.
    void setWraps(bool wraps) const { send<void, "setWraps:">(wraps); }
};

}
