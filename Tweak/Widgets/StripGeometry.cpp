// How the three widgets share the strip.
#include "Tweak/Widgets/StripGeometry.hpp"

#include "Tweak/Settings.hpp"

#include <algorithm>

namespace LYR {

namespace {

constexpr CGFloat top = 150;
constexpr CGFloat height = 60;
/// Left and right of the clock's labels together.
constexpr CGFloat margins = 30;
constexpr CGFloat phoneLimit = 500;
constexpr CGFloat tabletScale = 0.8;
/// Between two slots.
constexpr CGFloat gap = 8;

/// One cell of weather beside a bar: the bar has a fixed place, for which the strip moves to the left.
constexpr CGFloat shiftForBar = 40;
constexpr CGFloat barPlace = 260;
/// The weather's place in the moved strip is on the screen.
constexpr CGFloat cellsBesideBar = 20;
constexpr CGFloat widestCellsBesideBar = 360;
/// What the bar leaves of a phone's width: its place in the moved strip, and a margin.
constexpr CGFloat besideBar = barPlace - shiftForBar + margins / 2;
constexpr CGFloat longestBar = 144;

/// The cells lie in the middle of the screen, as wide together as the clock looks.
Slot cells(CGSize screen)
{
    CGFloat width = screen.width < phoneLimit ? screen.width - margins
                                              : tabletScale * (std::min(screen.width, screen.height) - margins);
    return {(screen.width - width) / 2, width};
}

/// A part of the cells that stops at the given end, with its content in the part's middle.
Slot part(const Slot& all, CGFloat from, CGFloat to, CGFloat end)
{
    CGFloat centre = all.x + all.width * (from + to) / 2;
    CGFloat half = std::min(all.width * (to - from) / 2 - gap / 2, end - centre);
    return {centre - half, 2 * half};
}

/// Three cells of one width.
void divideInThirds(StripGeometry& geometry, const Slot& all)
{
    CGFloat width = geometry.frame.size.width;
    geometry.weather = part(all, 0, 1.0 / 3, width);
    geometry.agenda = part(all, 1.0 / 3, 2.0 / 3, width);
    geometry.battery = part(all, 2.0 / 3, 1, width);
}

/// Two of four cells for the weather.
void divideInQuarters(StripGeometry& geometry, const Slot& all)
{
    CGFloat width = geometry.frame.size.width;
    geometry.weather = {all.x, all.width / 2 - gap};
    geometry.agenda = part(all, 0.5, 0.75, width);
    geometry.battery = part(all, 0.75, 1, width);
}

CGFloat barLength(CGSize screen)
{
    return std::min(screen.width - besideBar, longestBar);
}

/// The bar ends where the strip does, and the weather has what is left.
void divideForBar(StripGeometry& geometry, const Slot& all, CGFloat length)
{
    CGFloat end = std::min(all.x + all.width, geometry.frame.size.width);
    geometry.battery = {end - length, length};
    geometry.weather = {all.x, geometry.battery.x - 2 * gap - all.x};
}

void divideBesideBar(StripGeometry& geometry, Slot all, CGFloat length)
{
    geometry.frame.origin.x -= shiftForBar;
    all.x = cellsBesideBar;
    all.width = std::min(all.width, widestCellsBesideBar);
    geometry.weather = part(all, 0, 1.0 / 3, barPlace - gap);
    geometry.agenda = part(all, 1.0 / 3, 2.0 / 3, barPlace - gap);
    geometry.battery = {barPlace, length};
}

}

StripGeometry stripGeometry(CGSize screen, int weatherCells, int batteryCells)
{
    StripGeometry geometry;
    geometry.frame
        = CGRectMake(_XwidgetView.doubleValue(), _YwidgetView.doubleValue() + top, screen.width - margins, height);
    Slot all = cells(screen);
    if (batteryCells > 1 && weatherCells == 1)
        divideBesideBar(geometry, all, barLength(screen));
    else if (batteryCells > 1)
        divideForBar(geometry, all, barLength(screen));
    else if (weatherCells == 1)
        divideInThirds(geometry, all);
    else
        divideInQuarters(geometry, all);
    return geometry;
}

}
