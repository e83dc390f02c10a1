// What the date line shows, in which letter case, and in which calendar.
#include "Tweak/Clock/DateOptions.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Options.hpp"
#include "Tweak/State.hpp"

namespace LYR {

LYR_VIEW(UI::PickerView, _pickerView2);
LYR_VIEW(UI::SegmentedControl, _segmentStyle);
LYR_VIEW(UI::SegmentedControl, _segmentAlt);

namespace {

constexpr CGFloat rowSize = 14;

constexpr Options letterCase{Product::choicesOf("styleDate"), {{nullptr, &_styleDate, nullptr}}};
constexpr Options calendar{Product::choicesOf("alternateOption"), {{nullptr, &_alternateOption, nullptr}}};

long optionCount()
{
    return static_cast<long>(dateOptions().size());
}

bool isOption(long row)
{
    return row >= 0 && row < optionCount();
}

/// A preview of what the date line shows with that option.
UI::Label optionRow(long row)
{
    auto label = makeWheelRow();
    label.setFont(UI::Font::systemFontOfSize(rowSize));
    if (isOption(row))
        label.setAttributedText(dateOptions()[static_cast<std::size_t>(row)]->preview());
    label.sizeToFit();
    return label;
}

void chooseOption(long row)
{
    if (!isOption(row))
        return;
    store(NS::String::fromInteger(row), _dateOption);
    dateView->updateTime();
}

constexpr Wheel optionWheel{optionCount, optionRow, chooseOption};

void showOption(Tab)
{
    if (_pickerView2->isHidden())
        return;
    _pickerView2->reloadAllComponents();
    if (int option = _dateOption.intValue(); isOption(option))
        _pickerView2->selectRow(option, 0, false);
}

constexpr Control controls[] = {
    {.slot = _pickerView2, .make = makeWheel, .placing = throughout(12, 12, 46, 106), .fill = showOption,
        .wheel = &optionWheel},
    segments<_segmentStyle, letterCase, "styleValueChanged:">(throughout(12, 12, 158, 32)),
    segments<_segmentAlt, calendar, "altValueChanged:">(throughout(12, 12, 198, 32)),
};

}

constinit const Area dateArea{controls};

}
