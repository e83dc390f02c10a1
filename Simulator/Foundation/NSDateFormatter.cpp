// NSDateFormatter on ICU directly: the pattern is taken as it stands, in any of the phone's calendars.
#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/Text/CalendarMath.hpp"
#include "Simulator/Text/DateText.hpp"

namespace Simulator {

namespace {

class PhoneDateFormatter : public StandIn {
public:
    using Root = PhoneDateFormatter;

    void init() { }

    // A pattern counts until a style other than none is set.
    NS::String dateFormat() const { return stringOf(pattern()); }
    void setDateFormat(const NS::String& pattern)
    {
        _pattern = utf16Of(pattern);
        _dateStyle = _timeStyle = 0;
    }
    void setTemplate(const NS::String& skeleton)
    {
        _pattern = patternForSkeleton(utf16Of(skeleton), style().locale);
        _dateStyle = _timeStyle = 0;
    }
    unsigned long dateStyle() const { return _dateStyle; }
    void setDateStyle(unsigned long style) { _dateStyle = style; }
    unsigned long timeStyle() const { return _timeStyle; }
    void setTimeStyle(unsigned long style) { _timeStyle = style; }

    NS::Calendar calendar() const
    {
        return _calendar ? _calendar : NS::Calendar::withIdentifier(stringOf(calendarOfLocale(style().locale)));
    }
    void setCalendar(const NS::Calendar& calendar)
    {
        _calendar = calendar;
        _calendarIdentifier = calendar ? textOf(calendar.send<NS::String, "calendarIdentifier">()) : std::string();
    }
    NS::Locale locale() const { return _locale ? _locale : NS::Locale::currentLocale(); }
    void setLocale(const NS::Locale& locale)
    {
        _locale = locale;
        _localeIdentifier = locale ? textOf(locale.localeIdentifier()) : std::string();
    }
    ObjC::Object timeZone() const
    {
        return _timeZone ? _timeZone : classNamed("NSTimeZone").send<ObjC::Object, "localTimeZone">();
    }
    void setTimeZone(const ObjC::Object& timeZone)
    {
        _timeZone = timeZone;
        _timeZoneName = timeZone ? textOf(timeZone.send<NS::String, "name">()) : std::string();
    }
    bool isLenient() const { return false; }
    void setLenient(bool) { }

    NS::String stringFromDate(const ObjC::Object& date) const
    {
        if (!date.is<NS::Date>())
            return nullptr;
        const double seconds = date.as<NS::Date>().timeIntervalSinceReferenceDate();
        if (_dateStyle == 0 && _timeStyle == 0)
            return stringOf(formatDate(seconds, style()));
        const std::u16string stylePattern = pattern();
        DateStyle style = this->style();
        style.pattern = stylePattern;
        return stringOf(formatDate(seconds, style));
    }

    NS::Date dateFromString(const NS::String& text) const
    {
        const std::u16string current = pattern();
        DateStyle style = this->style();
        style.pattern = current;
        const auto seconds = text ? parseDate(utf16Of(text), style) : std::nullopt;
        return seconds ? NS::Date::dateWithTimeIntervalSinceReferenceDate(*seconds) : NS::Date();
    }

    template <DateSymbols symbols, SymbolWidth width, bool standalone>
    NS::Array names() const
    {
        const NS::MutableArray result = NS::MutableArray::make();
        for (const auto& name : dateSymbols(symbols, width, standalone, style().locale, style().calendar))
            result.addObject(stringOf(name));
        return result;
    }
    template <int half>
    NS::String halfOfDay() const
    {
        return names<DateSymbols::HalvesOfDay, SymbolWidth::Wide, false>().template at<NS::String>(half);
    }

    NS::DateFormatter copyWithZone(void*) const
    {
        const auto copy = NS::DateFormatter::make();
        auto& formatter = standIn<PhoneDateFormatter>(copy.raw());
        formatter._pattern = _pattern;
        formatter._dateStyle = _dateStyle;
        formatter._timeStyle = _timeStyle;
        formatter.setCalendar(_calendar);
        formatter.setLocale(_locale);
        formatter.setTimeZone(_timeZone);
        return copy;
    }

private:
    DateStyle style() const
    {
        const PhoneLocale& phone = PhoneLocale::shared();
        return {_pattern, _locale ? std::string_view(_localeIdentifier) : phone.locale, _calendarIdentifier,
            _timeZone ? std::string_view(_timeZoneName) : phone.timeZone};
    }

    std::u16string pattern() const
    {
        if (_dateStyle == 0 && _timeStyle == 0)
            return _pattern;
        return patternForStyles(
            static_cast<int>(_dateStyle), static_cast<int>(_timeStyle), style().locale, style().calendar);
    }

    std::u16string _pattern;
    unsigned long _dateStyle = 0;
    unsigned long _timeStyle = 0;
    NS::Calendar _calendar;
    std::string _calendarIdentifier;
    NS::Locale _locale;
    std::string _localeIdentifier;
    ObjC::Object _timeZone;
    std::string _timeZoneName;
};

NS::String NSDateFormatter_localizedString(
    Class, SEL, ObjC::Object date, unsigned long dateStyle, unsigned long timeStyle)
{
    const auto formatter = NS::DateFormatter::make();
    formatter.send<void, "setDateStyle:">(dateStyle);
    formatter.send<void, "setTimeStyle:">(timeStyle);
    return formatter.send<NS::String, "stringFromDate:">(date);
}

NS::String NSDateFormatter_formatFromTemplate(Class, SEL, NS::String skeleton, unsigned long, NS::Locale locale)
{
    const std::string identifier = locale ? textOf(locale.localeIdentifier()) : PhoneLocale::shared().locale;
    return skeleton ? stringOf(patternForSkeleton(utf16Of(skeleton), identifier)) : NS::String();
}

template <DateSymbols symbols, SymbolWidth width, bool standalone>
constexpr auto names = &PhoneDateFormatter::names<symbols, width, standalone>;

// The names of days and months, each selector with its length and position.
void bindNames(Binder<PhoneDateFormatter>& binder)
{
    using enum DateSymbols;
    using enum SymbolWidth;
    binder.def<"weekdaySymbols", names<Weekdays, Wide, false>>()
        .def<"shortWeekdaySymbols", names<Weekdays, Short, false>>()
        .def<"veryShortWeekdaySymbols", names<Weekdays, Narrow, false>>()
        .def<"standaloneWeekdaySymbols", names<Weekdays, Wide, true>>()
        .def<"shortStandaloneWeekdaySymbols", names<Weekdays, Short, true>>()
        .def<"veryShortStandaloneWeekdaySymbols", names<Weekdays, Narrow, true>>()
        .def<"monthSymbols", names<Months, Wide, false>>()
        .def<"shortMonthSymbols", names<Months, Short, false>>()
        .def<"veryShortMonthSymbols", names<Months, Narrow, false>>()
        .def<"standaloneMonthSymbols", names<Months, Wide, true>>()
        .def<"shortStandaloneMonthSymbols", names<Months, Short, true>>()
        .def<"veryShortStandaloneMonthSymbols", names<Months, Narrow, true>>()
        .def<"eraSymbols", names<Eras, Short, false>>()
        .def<"longEraSymbols", names<Eras, Wide, false>>()
        .def<"AMSymbol", &PhoneDateFormatter::halfOfDay<0>>()
        .def<"PMSymbol", &PhoneDateFormatter::halfOfDay<1>>();
}

}

static const StandInClass phoneDateFormatter(
    "PhoneDateFormatter", "NSDateFormatter", [](Binder<PhoneDateFormatter>& binder) {
        binder.init<"init", &PhoneDateFormatter::init>()
            .def<"dateFormat", &PhoneDateFormatter::dateFormat>()
            .def<"setDateFormat:", &PhoneDateFormatter::setDateFormat>()
            .def<"setLocalizedDateFormatFromTemplate:", &PhoneDateFormatter::setTemplate>()
            .def<"dateStyle", &PhoneDateFormatter::dateStyle>()
            .def<"setDateStyle:", &PhoneDateFormatter::setDateStyle>()
            .def<"timeStyle", &PhoneDateFormatter::timeStyle>()
            .def<"setTimeStyle:", &PhoneDateFormatter::setTimeStyle>()
            .def<"calendar", &PhoneDateFormatter::calendar>()
            .def<"setCalendar:", &PhoneDateFormatter::setCalendar>()
            .def<"locale", &PhoneDateFormatter::locale>()
            .def<"setLocale:", &PhoneDateFormatter::setLocale>()
            .def<"timeZone", &PhoneDateFormatter::timeZone>()
            .def<"setTimeZone:", &PhoneDateFormatter::setTimeZone>()
            .def<"isLenient", &PhoneDateFormatter::isLenient>()
            .def<"setLenient:", &PhoneDateFormatter::setLenient>()
            .def<"stringFromDate:", &PhoneDateFormatter::stringFromDate>()
            .def<"stringForObjectValue:", &PhoneDateFormatter::stringFromDate>()
            .def<"dateFromString:", &PhoneDateFormatter::dateFromString>()
            .def<"copyWithZone:", &PhoneDateFormatter::copyWithZone>();
        bindNames(binder);
        binder.add();
        refuseInherited("PhoneDateFormatter", "NSDateFormatter");
        allocateAs("NSDateFormatter", "PhoneDateFormatter");
        replaceClassMethod<NSDateFormatter_localizedString>(
            "NSDateFormatter", "localizedStringFromDate:dateStyle:timeStyle:");
        replaceClassMethod<NSDateFormatter_formatFromTemplate>(
            "NSDateFormatter", "dateFormatFromTemplate:options:locale:");
    });

}
