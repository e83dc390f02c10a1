// Numbers and truth values as objects.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace NS {

class Number : public ObjC::Class_<Number, Object, "NSNumber"> {
public:
    using Class_::Class_;

    static Number numberWithBool(bool value) { return sendClass<Number, "numberWithBool:">(value); }
    static Number numberWithInt(int value) { return sendClass<Number, "numberWithInt:">(value); }
    static Number numberWithLong(long value) { return sendClass<Number, "numberWithLong:">(value); }
    static Number numberWithDouble(double value) { return sendClass<Number, "numberWithDouble:">(value); }

    bool boolValue() const { return send<bool, "boolValue">(); }
    int intValue() const { return send<int, "intValue">(); }
    long longValue() const { return send<long, "longValue">(); }
    double doubleValue() const { return send<double, "doubleValue">(); }
};

}
