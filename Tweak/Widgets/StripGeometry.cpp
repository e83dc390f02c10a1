// The table of the places that views have within their slots.
#include "Tweak/Widgets/StripGeometry.hpp"

#include "Tweak/Views.hpp"
#include "Tweak/Widgets/BatterySlot.hpp"

#include <algorithm>
#include <span>

namespace LYR {

namespace {

/// Across its slot a view lies from its left end on, from one end to the other, or about its middle.
struct Place {
    enum Across { fromLeft, throughout, aboutMiddle } across;
    const id* view;
    /// From the left end of the slot to that of the view, or from middle to middle.
    CGFloat x;
    /// The view's width, or what it leaves free at the right.
    CGFloat width;
    CGFloat y;
    CGFloat height;
};

template <class T>
constexpr Place fromLeft(const ObjC::Variable<T>& view, CGFloat x, CGFloat width, CGFloat y, CGFloat height)
{
    return {Place::fromLeft, view.address(), x, width, y, height};
}

template <class T>
constexpr Place throughout(const ObjC::Variable<T>& view, CGFloat left, CGFloat right, CGFloat y, CGFloat height)
{
    return {Place::throughout, view.address(), left, right, y, height};
}

template <class T>
constexpr Place aboutMiddle(const ObjC::Variable<T>& view, CGFloat x, CGFloat width, CGFloat y, CGFloat height)
{
    return {Place::aboutMiddle, view.address(), x, width, y, height};
}

constexpr Place weatherInOneCell[] = {
    aboutMiddle(_HL, 0, 44, 6, 44),
    aboutMiddle(_HLo, 0, 44, 6, 44),
    aboutMiddle(_tempLabel, 0, 28, 17, 22),
    aboutMiddle(_lowLabel, -12, 24, 44, 14),
    aboutMiddle(_highLabel, 12, 24, 44, 14),
};
constexpr Place weatherInTwoCells[] = {
    fromLeft(_conditionLabel, 0, 30, 15, 30),
    fromLeft(_temperatureLabel, 32, 42, 12, 36),
    throughout(_conLabel, 78, 0, 13, 17),
    throughout(_HLLabel, 78, 0, 31, 16),
};
// What shares the icon's line with it, and both side by side.
constexpr Place agendaIconAlone[] = {
    aboutMiddle(_SL, 0, 22, 9, 22),
};
constexpr Place agendaIconAndMore[] = {
    aboutMiddle(_SL, -13, 22, 9, 22),
    aboutMiddle(_upS, 13, 22, 9, 22),
    aboutMiddle(_pm, 14, 26, 11, 18),
};
constexpr Place agendaText[] = {
    throughout(_sunLabel, 0, 0, 33, 19),
};
constexpr Place batteryWithPercentage[] = {
    aboutMiddle(_BG, 0, 32, 12, 16),
    aboutMiddle(_BL, 0, 32, 12, 16),
    aboutMiddle(_BC, 0, 32, 12, 16),
    throughout(_batteryLabel, 0, 0, 33, 19),
};
constexpr Place batteryUnderPhone[] = {
    aboutMiddle(_phoneImage, 0, 32, 4, 32),
    aboutMiddle(_BC2, 0, 32, 12, 16),
    aboutMiddle(_BG, 0, 32, 40, 16),
    aboutMiddle(_BL, 0, 32, 40, 16),
};
constexpr Place batteryBar[] = {
    throughout(_batteryBarName, 1, 0, 5, 18),
    throughout(_batteryBarBackground, 0, 0, 23, 16),
    throughout(_batteryBarLabel, -7, 0, 39, 18),
};

CGRect frameOf(const Place& place, const Slot& slot)
{
    switch (place.across) {
    case Place::fromLeft:
        return CGRectMake(slot.x + place.x, place.y, place.width, place.height);
    case Place::throughout:
        return CGRectMake(
            slot.x + place.x, place.y, std::max<CGFloat>(slot.width - place.x - place.width, 0), place.height);
    case Place::aboutMiddle:
        return CGRectMake(slot.middle() + place.x - place.width / 2, place.y, place.width, place.height);
    }
    return {};
}

void give(std::span<const Place> places, const Slot& slot)
{
    for (const Place& place : places)
        UI::View(*place.view).setFrame(frameOf(place, slot));
}

}

void placeWeather(WeatherOption option, const Slot& slot)
{
    option == WeatherOption::oneCell ? give(weatherInOneCell, slot) : give(weatherInTwoCells, slot);
}

void placeAgenda(const Slot& slot)
{
    bool alone = !_upS->image() && _pm->text().length() == 0;
    give(agendaIconAndMore, slot);
    if (alone)
        give(agendaIconAlone, slot);
    give(agendaText, slot);
}

void placeBattery(BatteryOption option, const Slot& slot)
{
    switch (option) {
    case BatteryOption::percentage:
        return give(batteryWithPercentage, slot);
    case BatteryOption::phone:
        return give(batteryUnderPhone, slot);
    case BatteryOption::bar:
        give(batteryBar, slot);
        return placeBatteryIndicator();
    }
}

}
