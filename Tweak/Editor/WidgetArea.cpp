// What each widget of the strip shows.
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Options.hpp"

namespace LYR {

LYR_VIEW(UI::ImageView, _widget1);
LYR_VIEW(UI::SegmentedControl, _segmentWidget1);
LYR_VIEW(UI::ImageView, _widget2);
LYR_VIEW(UI::SegmentedControl, _segmentWidget2);
LYR_VIEW(UI::ImageView, _widget3);
LYR_VIEW(UI::SegmentedControl, _segmentWidget3);

namespace {

constexpr Options weather{Product::choicesOf("highLowOption"), {{nullptr, nullptr, &_highLowOption}}};
constexpr Options agenda{Product::choicesOf("sunOption"), {{nullptr, nullptr, &_sunOption}}};
constexpr Options battery{Product::choicesOf("battOption"), {{nullptr, nullptr, &_battOption}}};

constexpr Control controls[] = {
    {.slot = _widget1, .make = picture<"1.circle">, .placing = fromLeft(12, 26, 69, 26)},
    segments<_segmentWidget1, weather, "widget1ValueChanged:">(throughout(46, 12, 66, 32)),
    {.slot = _widget2, .make = picture<"2.circle">, .placing = fromLeft(12, 26, 123, 26)},
    segments<_segmentWidget2, agenda, "widget2ValueChanged:">(throughout(46, 12, 120, 32)),
    {.slot = _widget3, .make = picture<"3.circle">, .placing = fromLeft(12, 26, 177, 26)},
    segments<_segmentWidget3, battery, "widget3ValueChanged:">(throughout(46, 12, 174, 32)),
};

}

constinit const Area widgetArea{controls};

}
