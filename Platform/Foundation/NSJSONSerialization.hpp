// Objects from JSON.
#pragma once

#include "Platform/Foundation/NSData.hpp"

namespace NS {

class JSONSerialization : public ObjC::Class_<JSONSerialization, Object, "NSJSONSerialization"> {
public:
    using Class_::Class_;

    /// The array or dictionary that the text holds; nil if it is no JSON.
    static Object JSONObjectWithData(const Data& data)
    {
        return sendClass<Object, "JSONObjectWithData:options:error:">(data, 0UL, static_cast<id*>(nullptr));
    }
};

}
