// Moments as text.
#pragma once

#include "Platform/Foundation/NSCalendar.hpp"
#include "Platform/Foundation/NSLocale.hpp"

namespace NS {

enum class DateFormatterStyle : unsigned long { none = 0 };

class DateFormatter : public ObjC::Class_<DateFormatter, Object, "NSDateFormatter"> {
public:
    using Class_::Class_;

    static DateFormatter formatter() { return sendClass<DateFormatter, "new">(); }
    void setDateFormat(const String& pattern) const { send<void, "setDateFormat:">(pattern); }
    void setCalendar(const Calendar& calendar) const { send<void, "setCalendar:">(calendar); }
    void setLocale(const Locale& locale) const { send<void, "setLocale:">(locale); }
    void setDateStyle(DateFormatterStyle style) const { send<void, "setDateStyle:">(style); }
    void setTimeStyle(DateFormatterStyle style) const { send<void, "setTimeStyle:">(style); }
    String stringFromDate(const Date& date) const { return send<String, "stringFromDate:">(date); }
};

}
