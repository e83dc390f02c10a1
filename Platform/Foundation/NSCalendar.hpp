// Calendars by identifier.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace NS {

enum class CalendarUnit : unsigned long {
    year = 1UL << 2,
    month = 1UL << 3,
    day = 1UL << 4,
    hour = 1UL << 5,
    minute = 1UL << 6,
    second = 1UL << 7,
};

class Calendar : public ObjC::Class_<Calendar, Object, "NSCalendar"> {
public:
    using Class_::Class_;

    static Calendar currentCalendar() { return sendClass<Calendar, "currentCalendar">(); }
    /// "gregorian", "hebrew", "chinese", "islamic-civil", "buddhist", …
    static Calendar calendarWithIdentifier(const String& identifier)
    {
        return sendClass<Calendar, "calendarWithIdentifier:">(identifier);
    }
    static Calendar withIdentifier(const String& identifier) { return make<"initWithCalendarIdentifier:">(identifier); }
    long component(CalendarUnit unit, const Date& date) const { return send<long, "component:fromDate:">(unit, date); }
    Date dateByAddingUnit(CalendarUnit unit, long value, const Date& date) const
    {
        return send<Date, "dateByAddingUnit:value:toDate:options:">(unit, value, date, 0UL);
    }
};

}

extern "C" {
extern const id NSCalendarIdentifierHebrew;
extern const id NSCalendarIdentifierChinese;
extern const id NSCalendarIdentifierIslamicCivil;
extern const id NSCalendarIdentifierBuddhist;
}
