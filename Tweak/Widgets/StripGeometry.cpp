// The table of the places that views have within their slots.
#include "Tweak/Widgets/StripGeometry.hpp"

#include "Tweak/Views.hpp"
#include "Tweak/Widgets/BatterySlot.hpp"

namespace LYR {

namespace {

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
// The bolt stands at the right end of its picture, beside where the battery is; over the phone it is in the middle.
constexpr CGFloat boltFromMiddle = -12;
constexpr Place batteryUnderPhone[] = {
    aboutMiddle(_phoneImage, 0, 32, 4, 32),
    aboutMiddle(_BC2, boltFromMiddle, 32, 12, 16),
    aboutMiddle(_BG, 0, 32, 40, 16),
    aboutMiddle(_BL, 0, 32, 40, 16),
};
constexpr Place batteryBar[] = {
    throughout(_batteryBarName, 1, 0, 5, 18),
    throughout(_batteryBarBackground, 0, 0, 23, 16),
    throughout(_batteryBarLabel, -7, 0, 39, 18),
};

}

void placeWeather(WeatherOption option, const Slot& slot)
{
    option == WeatherOption::oneCell ? place(weatherInOneCell, slot) : place(weatherInTwoCells, slot);
}

void placeAgenda(const Slot& slot)
{
    bool alone = !_upS->image() && _pm->text().length() == 0;
    place(agendaIconAndMore, slot);
    if (alone)
        place(agendaIconAlone, slot);
    place(agendaText, slot);
}

void placeBattery(BatteryOption option, const Slot& slot)
{
    switch (option) {
    case BatteryOption::percentage:
        return place(batteryWithPercentage, slot);
    case BatteryOption::phone:
        return place(batteryUnderPhone, slot);
    case BatteryOption::bar:
        place(batteryBar, slot);
        return placeBatteryIndicator();
    }
}

}
