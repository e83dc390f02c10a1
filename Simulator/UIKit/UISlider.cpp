// The thumb's place for a value, and the value for a finger's place.
#include "Simulator/UIKit/UISlider.hpp"

#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/ControlDrawing.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UITouch.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace Simulator {

namespace {

constexpr double height = 34;
constexpr double trackHeight = 4;
constexpr double thumbDiameter = 28;
constexpr double gapBesideImage = 14;
/// How far beside the thumb a finger still takes it.
constexpr double reach = 15;

CGRect middleOf(CGRect bounds, double x, double width, double high)
{
    return {{x, bounds.origin.y + (bounds.size.height - high) / 2}, {std::max(0.0, width), high}};
}

Graphics::Layer beside(CGRect bounds, double x, const UI::Image& image)
{
    const CGSize size = image.size();
    return makePicture(
        toGraphics(middleOf(bounds, x, size.width, size.height)), image, systemColor("secondaryLabelColor"));
}

}

CGSize UISlider::sizeThatFits(CGSize size) const
{
    return {size.width, height};
}

CGSize UISlider::intrinsicContentSize() const
{
    return {-1, height};
}

CGRect UISlider::trackRectForBounds(CGRect area) const
{
    const double before = minimumValueImage ? minimumValueImage.size().width + gapBesideImage : 0;
    const double after = maximumValueImage ? maximumValueImage.size().width + gapBesideImage : 0;
    return middleOf(area, area.origin.x + before, area.size.width - before - after, trackHeight);
}

CGRect UISlider::thumbRectForBounds(CGRect area, CGRect trackRect, float number) const
{
    const double range = maximumValue - minimumValue;
    const double share = range > 0 ? (number - minimumValue) / range : 0;
    const double way = std::max(0.0, trackRect.size.width - thumbDiameter);
    return middleOf(area, trackRect.origin.x + share * way, thumbDiameter, thumbDiameter);
}

Graphics::Rect UISlider::track() const
{
    return toGraphics(self().send<CGRect, "trackRectForBounds:">(bounds()));
}

Graphics::Rect UISlider::thumb() const
{
    return toGraphics(
        self().send<CGRect, "thumbRectForBounds:trackRect:value:">(bounds(), fromGraphics(track()), value));
}

void UISlider::setValue(float wanted)
{
    if (!std::isnan(wanted))
        value = std::clamp(wanted, minimumValue, std::max(minimumValue, maximumValue));
}

/// The thumb is there at once, animated or not.
void UISlider::setValueAnimated(float wanted, bool)
{
    setValue(wanted);
}

void UISlider::setMinimumValue(float wanted)
{
    if (!std::isfinite(wanted))
        return;
    minimumValue = wanted;
    maximumValue = std::max(maximumValue, minimumValue);
    setValue(value);
}

void UISlider::setMaximumValue(float wanted)
{
    if (!std::isfinite(wanted))
        return;
    maximumValue = wanted;
    minimumValue = std::min(minimumValue, maximumValue);
    setValue(value);
}

/// The thumb has to be taken; a touch elsewhere on the track does nothing.
bool UISlider::beginTracking(const NS::Object& touch, const NS::Object&)
{
    const double x = standIn<UITouch>(touch.raw()).locationInView(self<UI::View>()).x;
    const Graphics::Rect held = thumb();
    m_grip = x - held.center().x;
    return std::abs(m_grip) <= held.width / 2 + reach;
}

bool UISlider::continueTracking(const NS::Object& touch, const NS::Object&)
{
    const double x = standIn<UITouch>(touch.raw()).locationInView(self<UI::View>()).x - m_grip;
    const Graphics::Rect rail = track();
    const double way = rail.width - thumbDiameter;
    const double share = way > 0 ? std::clamp((x - rail.x - thumbDiameter / 2) / way, 0.0, 1.0) : 0;
    const float previous = value;
    setValue(static_cast<float>(minimumValue + share * (static_cast<double>(maximumValue) - minimumValue)));
    if (continuous && value != previous)
        send(Events::valueChanged);
    return true;
}

/// The last word on the value comes when the finger is off.
void UISlider::endTracking(const NS::Object&, const NS::Object&)
{
    send(Events::valueChanged);
}

void UISlider::decorate(Graphics::Layer& layer) const
{
    UIControl::decorate(layer);
    const Graphics::Rect rail = track(), knob = thumb();
    const auto filled = resolvedColor(minimumTrackTint ? minimumTrackTint : tintColor());
    const auto empty = resolvedColor(maximumTrackTint).value_or(systemColor("systemFillColor"));
    layer.children.push_back(makeBox(rail, empty, trackHeight / 2));
    const double filledWidth = std::max(0.0, knob.center().x - rail.x);
    layer.children.push_back(
        makeBox({rail.x, rail.y, filledWidth, rail.height}, filled.value_or(Graphics::Color()), trackHeight / 2));
    layer.children.push_back(beside(bounds(), bounds().origin.x, minimumValueImage));
    layer.children.push_back(
        beside(bounds(), bounds().origin.x + bounds().size.width - maximumValueImage.size().width, maximumValueImage));
    Graphics::Layer thumbLayer
        = makeDisc(knob.center(), thumbDiameter, resolvedColor(thumbTint).value_or(Graphics::Color{1, 1, 1, 1}));
    thumbLayer.shadow = softShadow();
    layer.children.push_back(std::move(thumbLayer));
}

void UISlider::describe(nlohmann::json& description) const
{
    description["value"] = value;
    description["minimum"] = minimumValue;
    description["maximum"] = maximumValue;
}

static const StandInClass uiSlider("UISlider", "UIControl", [](Binder<UISlider>& binder) {
    using Slider = UISlider;
    binder.def<"sizeThatFits:", &Slider::sizeThatFits>()
        .def<"intrinsicContentSize", &Slider::intrinsicContentSize>()
        .def<"trackRectForBounds:", &Slider::trackRectForBounds>()
        .def<"thumbRectForBounds:trackRect:value:", &Slider::thumbRectForBounds>()
        .readonly<"value", &Slider::value>()
        .def<"setValue:", &Slider::setValue>()
        .def<"setValue:animated:", &Slider::setValueAnimated>()
        .readonly<"minimumValue", &Slider::minimumValue>()
        .def<"setMinimumValue:", &Slider::setMinimumValue>()
        .readonly<"maximumValue", &Slider::maximumValue>()
        .def<"setMaximumValue:", &Slider::setMaximumValue>()
        .property<"isContinuous", "setContinuous:", &Slider::continuous>()
        .property<"minimumValueImage", "setMinimumValueImage:", &Slider::minimumValueImage>()
        .property<"maximumValueImage", "setMaximumValueImage:", &Slider::maximumValueImage>()
        .property<"minimumTrackTintColor", "setMinimumTrackTintColor:", &Slider::minimumTrackTint>()
        .property<"maximumTrackTintColor", "setMaximumTrackTintColor:", &Slider::maximumTrackTint>()
        .property<"thumbTintColor", "setThumbTintColor:", &Slider::thumbTint>()
        .def<"beginTrackingWithTouch:withEvent:", &Slider::beginTracking>()
        .def<"continueTrackingWithTouch:withEvent:", &Slider::continueTracking>()
        .def<"endTrackingWithTouch:withEvent:", &Slider::endTracking>()
        .add();
});

}
