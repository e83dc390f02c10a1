#include "Tweak/Editor/Pickers.hpp"

#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Tweak/Editor/EditedSettings.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Fonts.hpp"
#include "Tweak/Views.hpp"
#include "Tweak/Widgets/WeatherItems.hpp"

namespace LYR {

namespace {

constexpr long dateOptionCount = 8;
constexpr CGFloat fontRowSize = 20;
constexpr CGFloat dateOptionRowSize = 14;
constexpr CGFloat symbolSide = 18;

// The picked font has a key for each element that has one.
constexpr const char* fontKeys[tabCount] = {"customFontPickerTime", "customFontPicker", nullptr};

NS::String fontKey(Tab tab)
{
    const char* key = fontKeys[static_cast<std::size_t>(tab)];
    return key ? NS::String::fromUTF8(key) : NS::String();
}

UI::Label rowLabel()
{
    auto label = UI::Label::make();
    label.setBackgroundColor(UI::Color::clearColor());
    label.setTextColor(UI::Color::labelColor());
    label.setTextAlignment(UI::TextAlignment::center);
    return label;
}

/// The name of the font, in that font.
UI::Label fontRow(long row)
{
    auto label = rowLabel();
    auto name = row < 0 ? NS::String() : availableFonts->at<NS::String>(static_cast<unsigned long>(row));
    auto font = name ? UI::Font::fontWithName(name, fontRowSize) : UI::Font();
    label.setFont(font ? font : UI::Font::systemFontOfSize(fontRowSize));
    label.setText(name);
    label.sizeToFit();
    return label;
}

NS::AttributedString withSymbol(const NS::String& text, const NS::String& symbol)
{
    auto line = NS::MutableAttributedString::withString(text.stringByAppendingString(" "_ns));
    auto attachment = NS::TextAttachment::make();
    attachment.setBounds(CGRectMake(0, -3, symbolSide, symbolSide));
    attachment.setImage(UI::Image::systemImageNamed(symbol).imageWithTintColor(UI::Color::systemGrayColor()));
    line.appendAttributedString(NS::AttributedString::attributedStringWithAttachment(attachment));
    return line;
}

NS::String today()
{
    auto formatter = NS::DateFormatter::formatter();
    formatter.setDateFormat(_dateFormat.stringValue());
    formatter.setCalendar(NS::Calendar::calendarWithIdentifier("gregorian"_ns));
    return formatter.stringFromDate(NS::Date::date());
}

NS::String weatherRowText(long row)
{
    auto weather = weatherItems();
    const NS::String texts[] = {weather.temperature, weather.highLow, weather.condition, weather.location};
    return texts[row - 1];
}

/// A preview of what the date line shows with that option.
NS::AttributedString dateOptionPreview(long row)
{
    if (row == 6)
        return withSymbol("Alarm"_ns, "alarm.fill"_ns);
    if (row == 7)
        return withSymbol("Event"_ns, "calendar"_ns);
    auto text = row == 0 ? today() : row == 5 ? " • Alternate Date"_ns : weatherRowText(row);
    return NS::AttributedString::withString(text ? text : ""_ns);
}

UI::Label dateOptionRow(long row)
{
    auto label = rowLabel();
    label.setFont(UI::Font::systemFontOfSize(dateOptionRowSize));
    if (row >= 0 && row < dateOptionCount)
        label.setAttributedText(dateOptionPreview(row));
    label.sizeToFit();
    return label;
}

void chooseFont(long row)
{
    auto name = row < 0 ? NS::String() : availableFonts->at<NS::String>(static_cast<unsigned long>(row));
    auto font = name ? UI::Font::fontWithName(name, fontRowSize) : UI::Font();
    if (!font)
        return;
    for (Tab tab : allTabs) {
        if (auto key = fontKey(tab); key && isActive(tab))
            _preferences->setObject(font.fontName(), key);
    }
    dateView->updateTime();
}

void chooseDateOption(long row)
{
    if (row < 0 || row >= dateOptionCount)
        return;
    _preferences->setObject(NS::String::fromInteger(row), "dateOption"_ns);
    dateView->updateTime();
}

/// The font that was picked; the one that the element is written in where none was.
NS::String fontOf(Tab tab)
{
    if (auto picked = _preferences->objectForKey(fontKey(tab)).as<NS::String>())
        return picked;
    return (tab == Tab::time ? _timeLabel : _dateLabel)->font().fontName();
}

long rowOfFont(const NS::String& name)
{
    auto count = static_cast<long>(availableFonts->count());
    for (long row = 0; name && row < count; ++row) {
        if (availableFonts->at<NS::String>(static_cast<unsigned long>(row)).isEqualToString(name))
            return row;
    }
    return 0;
}

}

void showStoredRows(Tab tab)
{
    if (fontKey(tab) && !_pickerView1->isHidden()) {
        _pickerView1->reloadAllComponents();
        _pickerView1->selectRow(rowOfFont(fontOf(tab)), 0, false);
    }
    if (_pickerView2->isHidden())
        return;
    _pickerView2->reloadAllComponents();
    int option = _dateOption.intValue();
    if (option >= 0 && option < dateOptionCount)
        _pickerView2->selectRow(option, 0, false);
}

long CSCoverSheetViewController_numberOfComponentsInPickerView(CS::CoverSheetViewController, SEL, UI::PickerView)
{
    return 1;
}

long CSCoverSheetViewController_pickerView_numberOfRowsInComponent(
    CS::CoverSheetViewController, SEL, UI::PickerView picker, long)
{
    if (picker == _pickerView1.reference())
        return static_cast<long>(rebuildAvailableFonts());
    return picker == _pickerView2.reference() ? dateOptionCount : 0;
}

UI::View CSCoverSheetViewController_pickerView_viewForRow(
    CS::CoverSheetViewController, SEL, UI::PickerView picker, long row, long, UI::View)
{
    return picker == _pickerView2.reference() ? dateOptionRow(row) : fontRow(row);
}

void CSCoverSheetViewController_pickerView_didSelectRow(
    CS::CoverSheetViewController, SEL, UI::PickerView picker, long row, long)
{
    if (picker == _pickerView1.reference())
        chooseFont(row);
    else if (picker == _pickerView2.reference())
        chooseDateOption(row);
}

}
