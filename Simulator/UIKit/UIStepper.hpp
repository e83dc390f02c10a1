// A minus and a plus: a number in steps.
#pragma once

#include "Platform/UIKit/UIStepper.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/UIKit/UIControl.hpp"

namespace Simulator {

struct UIStepper : UIControl {
    ~UIStepper() override;
    void decorate(Graphics::Layer& layer) const override;
    void describe(nlohmann::json& description) const override;

    /// A stepper has one size, whatever it is given.
    void initWithFrame(CGRect frame);
    void setFrame(CGRect frame);
    CGSize sizeThatFits(CGSize) const;
    CGSize intrinsicContentSize() const;

    void setValue(double wanted);
    void setMinimumValue(double wanted);
    void setMaximumValue(double wanted);
    void setStepValue(double wanted);

    bool beginTracking(const NS::Object& touch, const NS::Object& event);
    bool continueTracking(const NS::Object& touch, const NS::Object& event);
    void endTracking(const NS::Object& touch, const NS::Object& event);
    void cancelTracking(const NS::Object& event);

    double value = 0;
    double minimumValue = 0;
    double maximumValue = 100;
    double stepValue = 1;
    bool continuous = true;
    bool autorepeat = true;
    bool wraps = false;

private:
    void step();
    void repeatAfter(double seconds);
    void stopRepeating();
    bool canStep(int direction) const;

    /// −1 on the minus, 1 on the plus, 0 while no finger is on either.
    int m_pressed = 0;
    bool m_hasStepped = false;
    TimerId m_timer = 0;
};

}
