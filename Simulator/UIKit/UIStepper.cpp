// Steps by taps, and on their own while a finger stays.
#include "Simulator/UIKit/UIStepper.hpp"

#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/ControlDrawing.hpp"
#include "Simulator/UIKit/UITouch.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace Simulator {

namespace {

constexpr CGSize stepperSize = {94, 32};
constexpr double cornerRadius = 8;
constexpr double pauseBeforeRepeating = 0.5;
constexpr double repeatInterval = 0.1;
/// Length and thickness of the strokes of minus and plus.
constexpr double strokeLength = 14;
constexpr double strokeWidth = 1.7;

Graphics::Layer stroke(Graphics::Point middle, double width, double height, const Graphics::Color& color)
{
    return makeBox({middle.x - width / 2, middle.y - height / 2, width, height}, color, strokeWidth / 2);
}

}

UIStepper::~UIStepper()
{
    stopRepeating();
}

void UIStepper::initWithFrame(CGRect frame)
{
    UIView::initWithFrame({frame.origin, stepperSize});
}

void UIStepper::setFrame(CGRect frame)
{
    UIView::setFrame({frame.origin, stepperSize});
}

CGSize UIStepper::sizeThatFits(CGSize) const
{
    return stepperSize;
}

CGSize UIStepper::intrinsicContentSize() const
{
    return stepperSize;
}

void UIStepper::setValue(double wanted)
{
    if (!std::isnan(wanted))
        value = std::clamp(wanted, minimumValue, std::max(minimumValue, maximumValue));
}

void UIStepper::setMinimumValue(double wanted)
{
    if (!std::isfinite(wanted))
        return;
    minimumValue = wanted;
    maximumValue = std::max(maximumValue, minimumValue);
    setValue(value);
}

void UIStepper::setMaximumValue(double wanted)
{
    if (!std::isfinite(wanted))
        return;
    maximumValue = wanted;
    minimumValue = std::min(minimumValue, maximumValue);
    setValue(value);
}

void UIStepper::setStepValue(double wanted)
{
    if (wanted > 0 && std::isfinite(wanted))
        stepValue = wanted;
}

bool UIStepper::canStep(int direction) const
{
    if (wraps)
        return minimumValue < maximumValue;
    return direction < 0 ? value > minimumValue : value < maximumValue;
}

void UIStepper::step()
{
    if (!canStep(m_pressed))
        return;
    const double next = value + m_pressed * stepValue;
    if (wraps && next > maximumValue)
        setValue(minimumValue);
    else if (wraps && next < minimumValue)
        setValue(maximumValue);
    else
        setValue(next);
    m_hasStepped = true;
    if (continuous)
        send(Events::valueChanged);
}

void UIStepper::repeatAfter(double seconds)
{
    m_timer = Loop::shared().schedule(
        seconds,
        [this] {
            const auto kept = self();
            m_timer = 0;
            step();
            if (m_pressed && canStep(m_pressed))
                repeatAfter(repeatInterval);
        },
        WorkKind::timer);
}

void UIStepper::stopRepeating()
{
    Loop::shared().cancel(std::exchange(m_timer, 0));
    m_pressed = 0;
}

bool UIStepper::beginTracking(const NS::Object& touch, const NS::Object&)
{
    const double x = standIn<UITouch>(touch.raw()).locationInView(self<UI::View>()).x;
    m_pressed = x < bounds().origin.x + bounds().size.width / 2 ? -1 : 1;
    m_hasStepped = false;
    if (autorepeat)
        repeatAfter(pauseBeforeRepeating);
    step();
    return true;
}

/// A finger that slips off stops the repetition.
bool UIStepper::continueTracking(const NS::Object&, const NS::Object&)
{
    if (!touchInside)
        stopRepeating();
    return true;
}

void UIStepper::endTracking(const NS::Object&, const NS::Object&)
{
    stopRepeating();
    if (m_hasStepped && !continuous)
        send(Events::valueChanged);
}

void UIStepper::cancelTracking(const NS::Object&)
{
    stopRepeating();
}

void UIStepper::decorate(Graphics::Layer& layer) const
{
    UIControl::decorate(layer);
    const Graphics::Rect area = toGraphics(bounds());
    const Graphics::Color ground = systemColor("tertiarySystemFillColor");
    layer.children.push_back(makeBox(area, ground, cornerRadius));
    for (int direction : {-1, 1}) {
        const Graphics::Rect half{
            direction < 0 ? area.x : area.x + area.width / 2, area.y, area.width / 2, area.height};
        if (m_pressed == direction)
            layer.children.push_back(makeBox(half, systemColor("systemFillColor"), cornerRadius));
        Graphics::Color ink = systemColor("labelColor");
        ink.a = canStep(direction) ? 1 : 0.3;
        layer.children.push_back(stroke(half.center(), strokeLength, strokeWidth, ink));
        if (direction > 0)
            layer.children.push_back(stroke(half.center(), strokeWidth, strokeLength, ink));
    }
    constexpr double dividerHeight = 18;
    layer.children.push_back(makeBox(
        {area.center().x - 0.5, area.center().y - dividerHeight / 2, 1, dividerHeight}, systemColor("separatorColor")));
}

void UIStepper::describe(nlohmann::json& description) const
{
    description["value"] = value;
    description["minimum"] = minimumValue;
    description["maximum"] = maximumValue;
    description["step"] = stepValue;
}

static const StandInClass uiStepper("UIStepper", "UIControl", [](Binder<UIStepper>& binder) {
    using Stepper = UIStepper;
    binder.init<"initWithFrame:", &Stepper::initWithFrame>()
        .def<"setFrame:", &Stepper::setFrame>()
        .def<"sizeThatFits:", &Stepper::sizeThatFits>()
        .def<"intrinsicContentSize", &Stepper::intrinsicContentSize>()
        .readonly<"value", &Stepper::value>()
        .def<"setValue:", &Stepper::setValue>()
        .readonly<"minimumValue", &Stepper::minimumValue>()
        .def<"setMinimumValue:", &Stepper::setMinimumValue>()
        .readonly<"maximumValue", &Stepper::maximumValue>()
        .def<"setMaximumValue:", &Stepper::setMaximumValue>()
        .readonly<"stepValue", &Stepper::stepValue>()
        .def<"setStepValue:", &Stepper::setStepValue>()
        .property<"isContinuous", "setContinuous:", &Stepper::continuous>()
        .property<"autorepeat", "setAutorepeat:", &Stepper::autorepeat>()
        .property<"wraps", "setWraps:", &Stepper::wraps>()
        .def<"beginTrackingWithTouch:withEvent:", &Stepper::beginTracking>()
        .def<"continueTrackingWithTouch:withEvent:", &Stepper::continueTracking>()
        .def<"endTrackingWithTouch:withEvent:", &Stepper::endTracking>()
        .def<"cancelTrackingWithEvent:", &Stepper::cancelTracking>()
        .add();
});

}
