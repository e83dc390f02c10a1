// A legibility label is a white one here.
#include "Simulator/SpringBoard/LegibilityLabel.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

void SBUILegibilityLabel::initWithFrame(CGRect frame)
{
    UILabel::initWithFrame(frame);
    setTextColor(UI::Color::whiteColor());
    textAlignment = static_cast<long>(UI::TextAlignment::center);
    adjustsFontSizeToFitWidth = true;
    minimumScaleFactor = 0.5;
}

void SBUILegibilityLabel::initWithString(const NS::Object&, double, const NS::String& string, const UI::Font& font)
{
    initWithFrame({});
    setFont(font);
    setText(string);
}

SB::UILegibilityLabel makeLegibilityLabel(double fontSize, double weight, const char* identifier)
{
    const SB::UILegibilityLabel label(makeView("SBUILegibilityLabel", {}, identifier).raw());
    label.send<void, "setFont:">(systemFont(fontSize, weight));
    return label;
}

static const StandInClass sbuiLegibilityLabel("SBUILegibilityLabel", "UIView", [](Binder<SBUILegibilityLabel>& binder) {
    binder.init<"initWithFrame:", &SBUILegibilityLabel::initWithFrame>()
        .init<"initWithSettings:strength:string:font:", &SBUILegibilityLabel::initWithString>()
        .def<"string", &SBUILegibilityLabel::text>()
        .def<"setString:", &SBUILegibilityLabel::setText>()
        .def<"font", &SBUILegibilityLabel::font>()
        .def<"setFont:", &SBUILegibilityLabel::setFont>()
        .def<"textColor", &SBUILegibilityLabel::textColor>()
        .def<"setTextColor:", &SBUILegibilityLabel::setTextColor>()
        .property<"textAlignment", "setTextAlignment:", &SBUILegibilityLabel::textAlignment>()
        .property<"numberOfLines", "setNumberOfLines:", &SBUILegibilityLabel::numberOfLines>()
        .def<"sizeThatFits:", &SBUILegibilityLabel::sizeThatFits>()
        .add();
});

}
