// The weather, in one cell or in two.
#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Product/Choices.hpp"
#include "Tweak/TemplateImage.hpp"
#include "Tweak/Widgets/Widget.hpp"

namespace LYR {

/// In one cell: the day's scale, how far along it is, the temperature within and the day's ends below.
LYR_VIEW(UI::ImageView, _HL);
LYR_VIEW(UI::ImageView, _HLo);
LYR_VIEW(UI::Label, _tempLabel);
LYR_VIEW(UI::Label, _lowLabel);
LYR_VIEW(UI::Label, _highLabel);
/// In two: the condition's icon, the temperature, and beside it the condition over the day's ends.
LYR_VIEW(UI::Label, _conditionLabel);
LYR_VIEW(UI::Label, _temperatureLabel);
LYR_VIEW(UI::Label, _conLabel);
LYR_VIEW(UI::Label, _HLLabel);

namespace {

using UI::TextAlignment;
constexpr StripView views[] = {
    pictureOf(_HL),
    pictureOf(_HLo),
    labelOf(_tempLabel, 17, TextAlignment::center),
    labelOf(_lowLabel, 10, TextAlignment::center),
    labelOf(_highLabel, 10, TextAlignment::center),
    labelOf(_conditionLabel, 17, TextAlignment::center),
    labelOf(_temperatureLabel, 30, TextAlignment::center),
    labelOf(_conLabel, 13, TextAlignment::left),
    labelOf(_HLLabel, 12, TextAlignment::left),
};

constexpr Place placesInOneCell[] = {
    aboutMiddle(_HL, 0, 44, 6, 44),
    aboutMiddle(_HLo, 0, 44, 6, 44),
    aboutMiddle(_tempLabel, 0, 28, 17, 22),
    aboutMiddle(_lowLabel, -12, 24, 44, 14),
    aboutMiddle(_highLabel, 12, 24, 44, 14),
};
constexpr Presentation oneCell{1, placesInOneCell};

constexpr Place placesInTwoCells[] = {
    fromLeft(_conditionLabel, 0, 30, 15, 30),
    fromLeft(_temperatureLabel, 32, 42, 12, 36),
    throughout(_conLabel, 78, 0, 13, 17),
    throughout(_HLLabel, 78, 0, 31, 16),
};
constexpr Presentation twoCells{2, placesInTwoCells};

#define LYR_PRESENTATION(name, ...) &name,
constexpr const Presentation* presentations[] = {LYR_WEATHER_OPTIONS(LYR_PRESENTATION)};
#undef LYR_PRESENTATION

}

constinit const Widget weatherWidget{views, &_highLowOption, 0, presentations};

void fillWeather(const WeatherItems& weather)
{
    constexpr CGFloat iconSide = 28;
    _HL->setImage(weather.scaleIcon ? resourceIcon(weather.scaleIcon) : UI::Image());
    _HLo->setImage(weather.markIcon ? resourceIcon(weather.markIcon) : UI::Image());
    _tempLabel->setText(weather.plainTemperature);
    _temperatureLabel->setText(weather.plainTemperature);
    _highLabel->setText(weather.high);
    _lowLabel->setText(weather.low);
    _HLLabel->setText(weather.highLow);
    _conLabel->setText(weather.condition);
    if (!weather.icon)
        return _conditionLabel->setText({});
    auto attachment = NS::TextAttachment::make();
    attachment.setBounds(CGRectMake(0, 0, iconSide, iconSide));
    attachment.setImage(inkedImage(weather.icon, _conditionLabel->textColor()));
    _conditionLabel->setAttributedText(NS::AttributedString::attributedStringWithAttachment(attachment));
}

}
