// Finds the presentation that the settings choose, and hides the others.
#include "Tweak/Widgets/Widget.hpp"

#include <algorithm>

namespace LYR {

const Presentation* Widget::chosen() const
{
    int index = option->intValue() - firstCode;
    return index >= 0 && index < static_cast<int>(presentations.size()) ? presentations[static_cast<std::size_t>(index)]
                                                                        : nullptr;
}

static bool shows(const Presentation& presentation, const id* view)
{
    return std::ranges::any_of(presentation.places, [view](const Place& place) { return place.view == view; });
}

void Widget::show(const Presentation& presentation) const
{
    for (const Presentation* other : presentations) {
        for (const Place& place : other->places)
            UI::View(*place.view).setHidden(!shows(presentation, place.view));
    }
}

void Widget::setHidden(bool hidden) const
{
    for (const StripView& view : views)
        UI::View(*view.variable).setHidden(hidden);
}

}
