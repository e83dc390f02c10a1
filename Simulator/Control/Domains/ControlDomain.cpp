// control.set: a control left as a finger would leave it.
#include "Simulator/Control/Domains/PhoneContext.hpp"
#include "Simulator/Control/Domains/RuntimeValues.hpp"

#include "Simulator/UIKit/UIColorWell.hpp"
#include "Simulator/UIKit/UIPickerView.hpp"
#include "Simulator/UIKit/UISegmentedControl.hpp"
#include "Simulator/UIKit/UISlider.hpp"
#include "Simulator/UIKit/UIStepper.hpp"

#include <cmath>

namespace Simulator::Control {

namespace {

[[noreturn]] void refuseValue(const std::string& takes, const Json& given)
{
    throw ProtocolError(ErrorCode::badParameters, "parameter \"value\" takes " + takes + ", not " + quote(given));
}

double numberOf(const Json& value, double least, double most)
{
    if (!value.is_number() || value.get<double>() < least || value.get<double>() > most)
        refuseValue("a number from " + Json(least).dump() + " to " + Json(most).dump(), value);
    return value;
}

long indexOf(const Json& value, long count, const std::string& what)
{
    if (!value.is_number_integer() || value.get<long>() < 0 || value.get<long>() >= count)
        refuseValue("the index of a " + what + ", of which there are " + std::to_string(count), value);
    return value;
}

NS::Object colorOf(const Json& value)
{
    const NS::Object object = value.is_string() ? objectOfJson(value) : NS::Object(ObjC::Object());
    if (!object.is<UI::Color>())
        refuseValue("a colour such as \"#FF0000FF\"", value);
    return object;
}

/// Gives a control its value, by message as whoever uses it would. False if it is none that has one.
bool setValue(UIControl& control, const Json& value)
{
    const auto object = control.self();
    if (auto* slider = dynamic_cast<UISlider*>(&control))
        object.send<void, "setValue:">(static_cast<float>(numberOf(value, slider->minimumValue, slider->maximumValue)));
    else if (auto* stepper = dynamic_cast<UIStepper*>(&control))
        object.send<void, "setValue:">(numberOf(value, stepper->minimumValue, stepper->maximumValue));
    else if (auto* segments = dynamic_cast<UISegmentedControl*>(&control))
        object.send<void, "setSelectedSegmentIndex:">(
            indexOf(value, static_cast<long>(segments->numberOfSegments()), "segment"));
    else if (dynamic_cast<UIColorWell*>(&control))
        object.send<void, "setSelectedColor:">(colorOf(value));
    else
        return false;
    return true;
}

void finish(UIControl& control, bool tracking)
{
    const auto object = control.self();
    control.tracking = tracking;
    const auto send = [&object](UI::ControlEvents events) {
        object.send<void, "sendActionsForControlEvents:">(static_cast<unsigned long>(events));
    };
    send(UI::ControlEvents::valueChanged);
    if (!tracking)
        send(UI::ControlEvents::touchUpInside);
}

void setControl(PhoneContext& context, const Json& parameters)
{
    const std::string identifier = parameters.at("id");
    const Json& value = parameters.at("value");
    UIView& view = context.viewWithId(identifier);
    if (auto* picker = dynamic_cast<UIPickerView*>(&view))
        picker->choose(indexOf(value, picker->numberOfRows(0), "row"));
    else if (auto* control = dynamic_cast<UIControl*>(&view); control && setValue(*control, value))
        finish(*control, parameters.value("tracking", false));
    else
        throw ProtocolError(ErrorCode::badParameters,
            "parameter \"id\" takes a slider, a stepper, a segmented control, a colour well or a picker; "
                + quote(identifier) + " is a " + view.className());
}

}

void addControlMethods(PhoneContext& context)
{
    context.add("control.set", [&context](const Json& parameters) {
        setControl(context, parameters);
        return Json::object();
    });
}

}
