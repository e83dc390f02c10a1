// NSDateFormatter on ICU directly: the pattern is taken as it stands, in any of the phone's calendars.
#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Platform/Foundation/NSArray.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/Text/CalendarMath.hpp"
#include "Simulator/Text/DateText.hpp"
#include "Simulator/Text/HourCycle.hpp"

namespace Simulator {

namespace {

class PhoneDateFormatter : public StandIn {
public:
    using Root = PhoneDateFormatter;

    void init() { }

    /// A pattern counts until a style other than none is set.
    NS::String dateFormat() const { return stringOf(pattern()); }
    void setDateFormat(const NS::String& pattern)
    {
        m_pattern = utf16Of(pattern);
        m_dateStyle = m_timeStyle = 0;
    }
    void setTemplate(const NS::String& skeleton)
    {
        m_pattern = patternForSkeleton(utf16Of(skeleton), style().locale);
        m_dateStyle = m_timeStyle = 0;
    }
    unsigned long dateStyle() const { return m_dateStyle; }
    void setDateStyle(unsigned long style) { m_dateStyle = style; }
    unsigned long timeStyle() const { return m_timeStyle; }
    void setTimeStyle(unsigned long style) { m_timeStyle = style; }

    NS::Calendar calendar() const
    {
        return m_calendar ? m_calendar : NS::Calendar::withIdentifier(stringOf(calendarOfLocale(style().locale)));
    }
    void setCalendar(const NS::Calendar& calendar)
    {
        m_calendar = calendar;
        m_calendarIdentifier = calendar ? textOf(calendar.send<NS::String, "calendarIdentifier">()) : std::string();
    }
    NS::Locale locale() const { return m_locale ? m_locale : NS::Locale::currentLocale(); }
    void setLocale(const NS::Locale& locale)
    {
        m_locale = locale;
        m_localeIdentifier = locale ? textOf(locale.localeIdentifier()) : std::string();
    }
    ObjC::Object timeZone() const
    {
        return m_timeZone ? m_timeZone : classNamed("NSTimeZone").send<ObjC::Object, "localTimeZone">();
    }
    void setTimeZone(const ObjC::Object& timeZone)
    {
        m_timeZone = timeZone;
        m_timeZoneName = timeZone ? textOf(timeZone.send<NS::String, "name">()) : std::string();
    }
    bool isLenient() const { return false; }
    void setLenient(bool) { }

    NS::String stringFromDate(const ObjC::Object& date) const
    {
        if (!date.is<NS::Date>())
            return nullptr;
        const double seconds = date.as<NS::Date>().timeIntervalSinceReferenceDate();
        if (m_dateStyle == 0 && m_timeStyle == 0 && !switchRewrites())
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
        return names<DateSymbols::halvesOfDay, SymbolWidth::wide, false>().template at<NS::String>(half);
    }

    NS::DateFormatter copyWithZone(void*) const
    {
        const auto copy = NS::DateFormatter::make();
        auto& formatter = standIn<PhoneDateFormatter>(copy.raw());
        formatter.m_pattern = m_pattern;
        formatter.m_dateStyle = m_dateStyle;
        formatter.m_timeStyle = m_timeStyle;
        formatter.setCalendar(m_calendar);
        formatter.setLocale(m_locale);
        formatter.setTimeZone(m_timeZone);
        return copy;
    }

private:
    DateStyle style() const
    {
        const PhoneLocale& phone = PhoneLocale::shared();
        return {m_pattern, m_locale ? std::string_view(m_localeIdentifier) : phone.locale, m_calendarIdentifier,
            m_timeZone ? std::string_view(m_timeZoneName) : phone.timeZone};
    }

    /// GNUstep has one object for the current locale and for one of the same name, so that the former, given to a
    /// formatter, is taken for the latter. Whether the clock's switch stands against the language's habit, and there is
    /// no locale that says what holds here.
    bool switchRewrites() const
    {
        const PhoneLocale& phone = PhoneLocale::shared();
        return !m_locale && phone.twentyFourHour && *phone.twentyFourHour != countsTo24(phone.locale);
    }

    std::u16string pattern() const
    {
        const std::u16string own = m_dateStyle == 0 && m_timeStyle == 0
            ? m_pattern
            : patternForStyles(
                static_cast<int>(m_dateStyle), static_cast<int>(m_timeStyle), style().locale, style().calendar);
        return switchRewrites() ? withHourCycle(own, *PhoneLocale::shared().twentyFourHour) : own;
    }

    std::u16string m_pattern;
    unsigned long m_dateStyle = 0;
    unsigned long m_timeStyle = 0;
    NS::Calendar m_calendar;
    std::string m_calendarIdentifier;
    NS::Locale m_locale;
    std::string m_localeIdentifier;
    ObjC::Object m_timeZone;
    std::string m_timeZoneName;
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

/// The names of days and months, each selector with its length and position.
void bindNames(Binder<PhoneDateFormatter>& binder)
{
    using enum DateSymbols;
    using enum SymbolWidth;
    binder.def<"weekdaySymbols", names<weekdays, wide, false>>()
        .def<"shortWeekdaySymbols", names<weekdays, abbreviated, false>>()
        .def<"veryShortWeekdaySymbols", names<weekdays, narrow, false>>()
        .def<"standaloneWeekdaySymbols", names<weekdays, wide, true>>()
        .def<"shortStandaloneWeekdaySymbols", names<weekdays, abbreviated, true>>()
        .def<"veryShortStandaloneWeekdaySymbols", names<weekdays, narrow, true>>()
        .def<"monthSymbols", names<months, wide, false>>()
        .def<"shortMonthSymbols", names<months, abbreviated, false>>()
        .def<"veryShortMonthSymbols", names<months, narrow, false>>()
        .def<"standaloneMonthSymbols", names<months, wide, true>>()
        .def<"shortStandaloneMonthSymbols", names<months, abbreviated, true>>()
        .def<"veryShortStandaloneMonthSymbols", names<months, narrow, true>>()
        .def<"eraSymbols", names<eras, abbreviated, false>>()
        .def<"longEraSymbols", names<eras, wide, false>>()
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
