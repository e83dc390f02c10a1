// Moments.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace NS {

class Date : public ObjC::Class_<Date, Object, "NSDate"> {
public:
    using Class_::Class_;

    /// The current moment.
    static Date date() { return sendClass<Date, "date">(); }
    /// A moment by seconds since the start of 2001, UTC.
    static Date dateWithTimeIntervalSinceReferenceDate(double seconds)
    {
        return sendClass<Date, "dateWithTimeIntervalSinceReferenceDate:">(seconds);
    }
    double timeIntervalSinceReferenceDate() const { return send<double, "timeIntervalSinceReferenceDate">(); }
};

}
