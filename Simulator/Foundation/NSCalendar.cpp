// NSCalendar by ICU, under the phone's identifiers.
#include "Platform/Foundation/NSCalendar.hpp"
#include "Platform/Foundation/NSLocale.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/Text/CalendarMath.hpp"

#include <algorithm>
#include <array>
#include <limits>

namespace Simulator {

namespace {

class DateComponents : public ObjC::Class_<DateComponents, NS::Object, "NSDateComponents"> {
public:
    using Class_::Class_;
};

/// A unit's flag in a set of units, and its accessors in NSDateComponents.
struct UnitRow {
    unsigned long flag;
    CalendarUnit unit;
    const char* getter;
    const char* setter;
};
constexpr std::array unitRows = {
    UnitRow{1UL << 1, CalendarUnit::era, "era", "setEra:"},
    UnitRow{1UL << 2, CalendarUnit::year, "year", "setYear:"},
    UnitRow{1UL << 3, CalendarUnit::month, "month", "setMonth:"},
    UnitRow{1UL << 4, CalendarUnit::day, "day", "setDay:"},
    UnitRow{1UL << 5, CalendarUnit::hour, "hour", "setHour:"},
    UnitRow{1UL << 6, CalendarUnit::minute, "minute", "setMinute:"},
    UnitRow{1UL << 7, CalendarUnit::second, "second", "setSecond:"},
    UnitRow{1UL << 9, CalendarUnit::weekday, "weekday", "setWeekday:"},
    UnitRow{1UL << 10, CalendarUnit::weekdayOrdinal, "weekdayOrdinal", "setWeekdayOrdinal:"},
    UnitRow{1UL << 12, CalendarUnit::weekOfMonth, "weekOfMonth", "setWeekOfMonth:"},
    UnitRow{1UL << 13, CalendarUnit::weekOfYear, "weekOfYear", "setWeekOfYear:"},
    UnitRow{1UL << 14, CalendarUnit::yearForWeekOfYear, "yearForWeekOfYear", "setYearForWeekOfYear:"},
    UnitRow{1UL << 15, CalendarUnit::nanosecond, "nanosecond", "setNanosecond:"},
};

constexpr long undefinedComponent = std::numeric_limits<long>::max();
constexpr unsigned long wrapComponents = 1;

std::vector<CalendarField> fieldsOf(const DateComponents& components)
{
    std::vector<CalendarField> fields;
    for (const auto& row : unitRows) {
        const long value = ObjC::sendMessage<long>(components.raw(), sel_registerName(row.getter));
        if (components && value != undefinedComponent)
            fields.push_back({row.unit, value});
    }
    return fields;
}

void setField(const DateComponents& components, const CalendarField& field)
{
    for (const auto& row : unitRows) {
        if (row.unit == field.unit)
            ObjC::sendMessage<void>(components.raw(), sel_registerName(row.setter), field.value);
    }
}

NS::Date dateOf(std::optional<double> seconds)
{
    return seconds ? NS::Date::dateWithTimeIntervalSinceReferenceDate(*seconds) : NS::Date();
}

class PhoneCalendar : public StandIn {
public:
    using Root = PhoneCalendar;

    void init() { m_identifier = calendarOfLocale(PhoneLocale::shared().locale); }
    bool initWithCalendarIdentifier(const NS::String& identifier)
    {
        m_identifier = textOf(identifier);
        return isKnownCalendar(m_identifier);
    }

    NS::String calendarIdentifier() const { return stringOf(m_identifier); }

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

    unsigned long firstWeekdayNumber() const
    {
        return m_firstWeekday ? m_firstWeekday : static_cast<unsigned long>(firstWeekday(style()));
    }
    void setFirstWeekday(unsigned long weekday) { m_firstWeekday = weekday; }

    /// A unit that the calendar has no field for is undefined.
    long component(unsigned long flag, const NS::Date& date) const
    {
        for (const auto& row : unitRows) {
            if (row.flag == flag && date)
                return calendarField(date.timeIntervalSinceReferenceDate(), row.unit, style())
                    .value_or(undefinedComponent);
        }
        return undefinedComponent;
    }

    DateComponents components(unsigned long flags, const NS::Date& date) const
    {
        const auto components = DateComponents::make();
        for (const auto& row : unitRows) {
            if (flags & row.flag)
                setField(components, {row.unit, component(row.flag, date)});
        }
        return components;
    }

    DateComponents componentsBetween(unsigned long flags, const NS::Date& from, const NS::Date& to, unsigned long) const
    {
        std::vector<CalendarUnit> units;
        for (const auto& row : unitRows) {
            if (flags & row.flag)
                units.push_back(row.unit);
        }
        const auto components = DateComponents::make();
        if (from && to) {
            for (const auto& field : fieldsBetween(
                     from.timeIntervalSinceReferenceDate(), to.timeIntervalSinceReferenceDate(), units, style()))
                setField(components, field);
        }
        return components;
    }

    NS::Date dateByAddingUnit(unsigned long flag, long value, const NS::Date& date, unsigned long options) const
    {
        for (const auto& row : unitRows) {
            if (row.flag == flag)
                return moved(date, {{row.unit, value}}, options);
        }
        return nullptr;
    }

    NS::Date dateByAddingComponents(const DateComponents& components, const NS::Date& date, unsigned long options) const
    {
        return moved(date, fieldsOf(components), options);
    }

    /// What is not given is the calendar's first: year 1, month 1, day 1, midnight.
    NS::Date dateFromComponents(const DateComponents& components) const
    {
        const auto given = fieldsOf(components);
        const auto has = [&](CalendarUnit unit) {
            return std::ranges::any_of(given, [unit](const CalendarField& field) { return field.unit == unit; });
        };
        std::vector<CalendarField> fields;
        const bool byWeeks = has(CalendarUnit::weekOfYear) || has(CalendarUnit::weekOfMonth)
            || has(CalendarUnit::yearForWeekOfYear) || has(CalendarUnit::weekday);
        for (const auto unit : {CalendarUnit::year, CalendarUnit::month, CalendarUnit::day}) {
            if (!byWeeks && !has(unit))
                fields.push_back({unit, 1});
        }
        fields.insert(fields.end(), given.begin(), given.end());
        return components ? dateOf(dateFromFields(fields, style())) : NS::Date();
    }

    NS::Date startOfDayForDate(const NS::Date& date) const
    {
        if (!date)
            return nullptr;
        std::vector<CalendarField> fields;
        for (const auto unit : {CalendarUnit::era, CalendarUnit::year, CalendarUnit::month, CalendarUnit::day}) {
            if (const auto value = calendarField(date.timeIntervalSinceReferenceDate(), unit, style()))
                fields.push_back({unit, *value});
        }
        return fields.empty() ? NS::Date() : dateOf(dateFromFields(fields, style()));
    }

    bool isSameDay(const NS::Date& one, const NS::Date& other) const
    {
        const NS::Date start = startOfDayForDate(one);
        return start && start.send<bool, "isEqual:">(startOfDayForDate(other));
    }
    bool isDateInToday(const NS::Date& date) const { return isSameDay(date, NS::Date::date()); }
    bool isDateInTomorrow(const NS::Date& date) const
    {
        return isSameDay(date, moved(NS::Date::date(), {{CalendarUnit::day, 1}}, 0));
    }

    bool isEqual(const ObjC::Object& other) const
    {
        const auto* calendar = standInOrNull<PhoneCalendar>(other);
        return calendar && calendar->m_identifier == m_identifier && calendar->m_localeIdentifier == m_localeIdentifier
            && calendar->m_timeZoneName == m_timeZoneName;
    }
    unsigned long hash() const { return std::hash<std::string>{}(m_identifier); }

    NS::Calendar copyWithZone(void*) const
    {
        const auto copy = NS::Calendar::withIdentifier(calendarIdentifier());
        auto& calendar = standIn<PhoneCalendar>(copy.raw());
        calendar.setLocale(m_locale);
        calendar.setTimeZone(m_timeZone);
        calendar.m_firstWeekday = m_firstWeekday;
        return copy;
    }

private:
    CalendarStyle style() const
    {
        const PhoneLocale& phone = PhoneLocale::shared();
        return {
            m_identifier, m_locale ? m_localeIdentifier : phone.locale, m_timeZone ? m_timeZoneName : phone.timeZone};
    }

    NS::Date moved(const NS::Date& date, const std::vector<CalendarField>& fields, unsigned long options) const
    {
        if (!date)
            return nullptr;
        return dateOf(addToDate(date.timeIntervalSinceReferenceDate(), fields, style(), options & wrapComponents));
    }

    std::string m_identifier;
    NS::Locale m_locale;
    std::string m_localeIdentifier;
    ObjC::Object m_timeZone;
    std::string m_timeZoneName;
    unsigned long m_firstWeekday = 0;
};

NS::Calendar NSCalendar_calendarWithIdentifier(Class, SEL, NS::String identifier)
{
    return NS::Calendar::withIdentifier(identifier);
}

NS::Calendar NSCalendar_currentCalendar(Class, SEL)
{
    return NS::Calendar::withIdentifier(stringOf(calendarOfLocale(PhoneLocale::shared().locale)));
}

}

static const StandInClass phoneCalendar("PhoneCalendar", "NSCalendar", [](Binder<PhoneCalendar>& binder) {
    binder.init<"init", &PhoneCalendar::init>()
        .init<"initWithCalendarIdentifier:", &PhoneCalendar::initWithCalendarIdentifier>()
        .def<"calendarIdentifier", &PhoneCalendar::calendarIdentifier>()
        .def<"locale", &PhoneCalendar::locale>()
        .def<"setLocale:", &PhoneCalendar::setLocale>()
        .def<"timeZone", &PhoneCalendar::timeZone>()
        .def<"setTimeZone:", &PhoneCalendar::setTimeZone>()
        .def<"firstWeekday", &PhoneCalendar::firstWeekdayNumber>()
        .def<"setFirstWeekday:", &PhoneCalendar::setFirstWeekday>()
        .def<"component:fromDate:", &PhoneCalendar::component>()
        .def<"components:fromDate:", &PhoneCalendar::components>()
        .def<"components:fromDate:toDate:options:", &PhoneCalendar::componentsBetween>()
        .def<"dateByAddingUnit:value:toDate:options:", &PhoneCalendar::dateByAddingUnit>()
        .def<"dateByAddingComponents:toDate:options:", &PhoneCalendar::dateByAddingComponents>()
        .def<"dateFromComponents:", &PhoneCalendar::dateFromComponents>()
        .def<"startOfDayForDate:", &PhoneCalendar::startOfDayForDate>()
        .def<"isDate:inSameDayAsDate:", &PhoneCalendar::isSameDay>()
        .def<"isDateInToday:", &PhoneCalendar::isDateInToday>()
        .def<"isDateInTomorrow:", &PhoneCalendar::isDateInTomorrow>()
        .def<"isEqual:", &PhoneCalendar::isEqual>()
        .def<"hash", &PhoneCalendar::hash>()
        .def<"copyWithZone:", &PhoneCalendar::copyWithZone>()
        .add();
    refuseInherited("PhoneCalendar", "NSCalendar");
    allocateAs("NSCalendar", "PhoneCalendar");
    replaceClassMethod<NSCalendar_calendarWithIdentifier>("NSCalendar", "calendarWithIdentifier:");
    replaceClassMethod<NSCalendar_currentCalendar>("NSCalendar", "currentCalendar");
    replaceClassMethod<NSCalendar_currentCalendar>("NSCalendar", "autoupdatingCurrentCalendar");
});

}
