#include "Tweak/Widgets/StripViews.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Tweak/Clock/TextShadow.hpp"
#include "Tweak/TemplateImage.hpp"
#include "Tweak/Views.hpp"
#include "Tweak/Widgets/StripColours.hpp"

#include <initializer_list>

namespace LYR {

namespace {

constexpr CGFloat smallestText = 0.6;

struct LabelRow {
    ObjC::Variable<UI::Label>* variable;
    const char* name;
    CGFloat fontSize;
    UI::TextAlignment alignment;
};

using UI::TextAlignment;
constexpr LabelRow labels[] = {
    {&_tempLabel, "_tempLabel", 17, TextAlignment::center},
    {&_lowLabel, "_lowLabel", 10, TextAlignment::center},
    {&_highLabel, "_highLabel", 10, TextAlignment::center},
    {&_conditionLabel, "_conditionLabel", 17, TextAlignment::center},
    {&_temperatureLabel, "_temperatureLabel", 30, TextAlignment::center},
    {&_conLabel, "_conLabel", 13, TextAlignment::left},
    {&_HLLabel, "_HLLabel", 12, TextAlignment::left},
    {&_pm, "_pm", 12, TextAlignment::left},
    {&_sunLabel, "_sunLabel", 14, TextAlignment::center},
    {&_batteryLabel, "_batteryLabel", 14, TextAlignment::center},
    {&_batteryBarName, "_batteryBarName", 12, TextAlignment::left},
    {&_batteryBarLabel, "_batteryBarLabel", 12, TextAlignment::right},
};

struct PictureRow {
    ObjC::Variable<UI::ImageView>* variable;
    const char* name;
};

// Back to front.
constexpr PictureRow pictures[] = {
    {&_HL, "_HL"},
    {&_HLo, "_HLo"},
    {&_SL, "_SL"},
    {&_upS, "_upS"},
    {&_phoneImage, "_phoneImage"},
    {&_BG, "_BG"},
    {&_BL, "_BL"},
    {&_BC, "_BC"},
    {&_BC2, "_BC2"},
    {&_batteryBarBackground, "_batteryBarBackground"},
    {&_batteryBarIndicator, "_batteryBarIndicator"},
};

void buildPicture(const PictureRow& row)
{
    auto picture = UI::ImageView::make();
    picture.setContentMode(UI::ViewContentMode::scaleAspectFit);
    _widgetView->addSubview(picture);
    keepView(*row.variable, picture, NS::String::fromUTF8(row.name));
}

/// What does not fit is drawn smaller before it is cut short.
void buildLabel(const LabelRow& row)
{
    auto label = UI::Label::make();
    label.setFont(UI::Font::systemFontOfSize(row.fontSize));
    label.setTextAlignment(row.alignment);
    label.setNumberOfLines(1);
    label.setAdjustsFontSizeToFitWidth(true);
    label.setMinimumScaleFactor(smallestText);
    label.setLineBreakMode(UI::LineBreakMode::truncatingTail);
    _widgetView->addSubview(label);
    keepView(*row.variable, label, NS::String::fromUTF8(row.name));
}

template <class... Variables>
void setHidden(bool hidden, const Variables&... views)
{
    (views->setHidden(hidden), ...);
}

}

void buildStripViews()
{
    auto strip = UI::View::make();
    // What lies under the strip stays within reach of the finger.
    strip.setUserInteractionEnabled(false);
    // Until the first refresh there is nothing to be seen on it.
    strip.setHidden(true);
    keepView(_widgetView, strip, "_widgetView"_ns);
    for (const PictureRow& row : pictures)
        buildPicture(row);
    for (const LabelRow& row : labels)
        buildLabel(row);
    // The parts of the bar keep their ends round at every length.
    _batteryBarBackground->setContentMode(UI::ViewContentMode::scaleToFill);
    _batteryBarIndicator->setContentMode(UI::ViewContentMode::scaleToFill);
    auto bolt = resourceIcon(LYR_PREFIX "/Library/Application Support/lyr.bundle/Battery16/Bolt.png"_ns);
    _BC->setImage(bolt);
    _BC2->setImage(bolt);
}

void showWeatherViews(WeatherOption option)
{
    const bool oneCell = option == WeatherOption::oneCell;
    setHidden(!oneCell, _HL, _HLo, _tempLabel, _highLabel, _lowLabel);
    setHidden(oneCell, _temperatureLabel, _conLabel, _HLLabel, _conditionLabel);
}

void showBatteryViews(BatteryOption option, std::optional<WeatherOption> weather)
{
    const bool percentage = option == BatteryOption::percentage;
    const bool phone = option == BatteryOption::phone;
    const bool bar = option == BatteryOption::bar;
    setHidden(!percentage, _batteryLabel, _BC);
    setHidden(!phone, _phoneImage, _BC2);
    setHidden(bar, _BG, _BL);
    setHidden(!bar, _batteryBarLabel, _batteryBarName, _batteryBarIndicator, _batteryBarBackground);
    // The middle slot gives way where weather and battery take two cells each.
    if (!bar || weather)
        setHidden(bar && weather == WeatherOption::twoCells, _SL, _sunLabel, _upS, _pm);
}

void colourStripViews()
{
    auto icons = stripIconColour();
    for (const UI::ImageView* view : {&_HL.reference(), &_HLo.reference(), &_SL.reference(), &_upS.reference()})
        view->setTintColor(icons);
    auto text = stripTextColour();
    for (const LabelRow& row : labels) {
        (*row.variable)->setTextColor(text);
        applyTextShadow(row.variable->reference(), smallTextShadow);
    }
}

}
