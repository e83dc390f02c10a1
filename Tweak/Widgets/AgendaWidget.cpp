// The sun, the next alarm or the next event: the icon, what stands beside it (the day's other end, or the half of the
// day), the text.
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Product/Choices.hpp"
#include "Product/Names.hpp"
#include "Tweak/TemplateImage.hpp"
#include "Tweak/Widgets/Widget.hpp"

namespace LYR {

LYR_VIEW(UI::ImageView, _SL);
LYR_VIEW(UI::ImageView, _upS);
LYR_VIEW(UI::Label, _pm);
LYR_VIEW(UI::Label, _sunLabel);

namespace {

/// How strongly the day's other end stands beside the one that is shown.
constexpr CGFloat otherEndAlpha = 0.4;

constexpr StripView views[] = {
    pictureOf(_SL),
    pictureOf(_upS),
    labelOf(_pm, 12, UI::TextAlignment::left),
    labelOf(_sunLabel, 14, UI::TextAlignment::center),
};

constexpr Place iconAlone[] = {
    aboutMiddle(_SL, 0, 22, 9, 22),
};
constexpr Place places[] = {
    aboutMiddle(_SL, -13, 22, 9, 22),
    aboutMiddle(_upS, 13, 22, 9, 22),
    aboutMiddle(_pm, 14, 26, 11, 18),
    throughout(_sunLabel, 0, 0, 33, 19),
};

void fill(const UI::Image& icon, const UI::Image& otherEnd, const NS::String& marker, const NS::String& text)
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
    return resourceIcon(LYR_PREFIX LYR_RESOURCES "SS16/up.png"_ns);
}

UI::Image sunsetIcon()
{
    return resourceIcon(LYR_PREFIX LYR_RESOURCES "SS16/down.png"_ns);
}

constexpr Presentation sunrise{1, places,
    [](Items& items) { fill(sunriseIcon(), sunsetIcon(), {}, items.weather().sunrise); }};
constexpr Presentation sunset{1, places,
    [](Items& items) { fill(sunsetIcon(), sunriseIcon(), {}, items.weather().sunset); }};
constexpr Presentation alarm{1, places,
    [](Items& items) { fill(alarmIcon(), {}, items.alarm().marker, items.alarm().time); }};
constexpr Presentation event{1, places, [](Items& items) { fill(eventIcon(), {}, {}, items.event()); }};

#define LYR_PRESENTATION(name, ...) &name,
constexpr const Presentation* presentations[] = {LYR_AGENDA_OPTIONS(LYR_PRESENTATION)};
#undef LYR_PRESENTATION

}

constinit const Widget agendaWidget{views, &_sunOption, 1, presentations};

void placeAgenda(const Slot& slot)
{
    place(places, slot);
    if (!_upS->image() && _pm->text().length() == 0)
        place(iconAlone, slot);
}

}
