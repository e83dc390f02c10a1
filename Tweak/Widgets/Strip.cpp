#include "Tweak/Widgets/Strip.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Clock/ScreenWidth.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/TemplateImage.hpp"
#include "Tweak/Views.hpp"
#include "Tweak/Widgets/BatterySlot.hpp"
#include "Tweak/Widgets/StripGeometry.hpp"
#include "Tweak/Widgets/StripViews.hpp"

namespace LYR {

namespace {

constexpr CGFloat conditionIconSide = 28;
/// How strongly the day's other end stands beside the one that is shown.
constexpr CGFloat otherEndAlpha = 0.4;

template <class Option>
std::optional<Option> chosen(const ObjectSetting& setting, Option first, Option last)
{
    int code = setting.intValue();
    if (code < static_cast<int>(first) || code > static_cast<int>(last))
        return std::nullopt;
    return static_cast<Option>(code);
}

std::optional<WeatherOption> weatherOption()
{
    return chosen(_highLowOption, WeatherOption::oneCell, WeatherOption::twoCells);
}

std::optional<BatteryOption> batteryOption()
{
    return chosen(_battOption, BatteryOption::percentage, BatteryOption::bar);
}

/// The scale is about the middle, so the frame is the one that the strip has at its natural size.
void setFrameAtNaturalSize(const UI::View& view, CGRect frame)
{
    auto scale = view.transform();
    view.setTransform(CGAffineTransformMakeScale(1, 1));
    view.setFrame(frame);
    view.setTransform(scale);
}

/// Slots whose option names no presentation stay where they are.
void placeSlots()
{
    if (!screenLayout())
        return;
    auto weather = weatherOption();
    auto battery = batteryOption();
    auto geometry = stripGeometry(UI::Screen::mainScreen().bounds().size, weather.value_or(WeatherOption::twoCells),
        battery.value_or(BatteryOption::percentage));
    setFrameAtNaturalSize(_widgetView, geometry.frame);
    if (weather)
        placeWeather(*weather, geometry.weather);
    if (weather && battery) {
        placeAgenda(geometry.agenda);
        placeBattery(*battery, geometry.battery);
    }
}

void refreshWeatherSlot(const WeatherItems& weather)
{
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
    attachment.setBounds(CGRectMake(0, 0, conditionIconSide, conditionIconSide));
    attachment.setImage(weather.icon);
    _conditionLabel->setAttributedText(NS::AttributedString::attributedStringWithAttachment(attachment));
}

void showAgenda(const UI::Image& icon, const UI::Image& otherEnd, const NS::String& marker, const NS::String& text)
{
    _SL->setImage(icon);
    _upS->setImage(otherEnd);
    _upS->setAlpha(otherEndAlpha);
    _pm->setText(marker);
    _pm->setAlpha(_twentyFour ? 0 : 1);
    _sunLabel->setText(text);
}

UI::Image sunriseIcon()
{
    return resourceIcon(LYR_PREFIX "/Library/Application Support/lyr.bundle/SS16/up.png"_ns);
}

UI::Image sunsetIcon()
{
    return resourceIcon(LYR_PREFIX "/Library/Application Support/lyr.bundle/SS16/down.png"_ns);
}

void refreshAgendaSlot(Items& items)
{
    auto option = chosen(_sunOption, AgendaOption::sunrise, AgendaOption::event);
    if (!option)
        return;
    switch (*option) {
    case AgendaOption::sunrise:
        return showAgenda(sunriseIcon(), sunsetIcon(), {}, items.weather().sunrise);
    case AgendaOption::sunset:
        return showAgenda(sunsetIcon(), sunriseIcon(), {}, items.weather().sunset);
    case AgendaOption::alarm:
        return showAgenda(alarmIcon(), {}, items.alarm().marker, items.alarm().time);
    case AgendaOption::event:
        return showAgenda(eventIcon(), {}, {}, items.event());
    }
}

void showChosenViews()
{
    auto weather = weatherOption();
    if (auto battery = batteryOption())
        showBatteryViews(*battery, weather);
    if (weather)
        showWeatherViews(*weather);
}

bool isStripShown()
{
    return _widgetView && !_widgetView->isHidden();
}

bool isAgendaShown()
{
    return isStripShown() && !_SL->isHidden();
}

/// A strip or a slot that is hidden asks nobody for its contents.
void refreshShownSlots(Items& items)
{
    if (isStripShown())
        refreshWeatherSlot(items.weather());
    if (isAgendaShown())
        refreshAgendaSlot(items);
}

}

void createStrip(const CS::CoverSheetViewController& controller)
{
    if (!_widgetView)
        buildStripViews();
    controller.view().addSubview(_widgetView.reference());
    showChosenViews();
    placeSlots();
}

void placeStrip(Items& items)
{
    const bool wasAgendaShown = isAgendaShown();
    showChosenViews();
    if (isAgendaShown() && !wasAgendaShown)
        refreshAgendaSlot(items);
    placeSlots();
}

void refreshStrip(Items& items)
{
    _widgetView->setHidden(!_showWidget);
    _widgetView->setTransform(CGAffineTransformMakeScale(_sizeWidget.doubleValue(), _sizeWidget.doubleValue()));
    colourStripViews();
    showChosenViews();
    refreshShownSlots(items);
    refreshBatterySlot();
    placeSlots();
}

}
