// Works out the frame of a row.
#include "Tweak/Placement.hpp"

#include <algorithm>

namespace LYR {

CGRect frameOf(const Placing& place, const Slot& slot)
{
    const auto at = [&](CGFloat x, CGFloat width) { return CGRectMake(x, place.y, width, place.height); };
    switch (place.across) {
    case Placing::fromLeft:
        return at(slot.x + place.x, place.width);
    case Placing::fromRight:
        return at(slot.x + slot.width - place.x - place.width, place.width);
    case Placing::throughout:
        return at(slot.x + place.x, std::max<CGFloat>(slot.width - place.x - place.width, 0));
    case Placing::aboutMiddle:
        return at(slot.middle() + place.x - place.width / 2, place.width);
    case Placing::aboutShare:
        return at(slot.x + slot.width * place.x - place.width / 2, place.width);
    }
    return {};
}

void place(std::span<const Place> places, const Slot& slot)
{
    for (const Place& row : places)
        UI::View(*row.view).setFrame(frameOf(row.placing, slot));
}

}
