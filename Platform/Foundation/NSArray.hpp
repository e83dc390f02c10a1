// Ordered collections.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace NS {

class MutableArray;

class Array : public ObjC::Class_<Array, Object, "NSArray"> {
public:
    using Class_::Class_;

    /// An array of these objects; nil ones are left out.
    template <class... Objects>
    static Array of(const Objects&... objects);
    bool isEqualToArray(const Array& other) const { return send<bool, "isEqualToArray:">(other); }
    unsigned long count() const { return send<unsigned long, "count">(); }
    /// The element at an index, as a facade of its class; nil beyond the end or if it is of another class.
    template <ObjC::Handle T>
    T at(unsigned long index) const
    {
        if (index >= count())
            return T();
        return send<ObjC::Object, "objectAtIndex:">(index).template as<T>();
    }
    template <ObjC::Handle T>
    T firstObject() const
    {
        return at<T>(0);
    }
    MutableArray mutableCopy() const;
};

class MutableArray : public ObjC::Class_<MutableArray, Array, "NSMutableArray"> {
public:
    using Class_::Class_;

    void addObject(const ObjC::Object& object) const { send<void, "addObject:">(object); }
    /// Sorts by a comparison method of the elements.
    template <ObjC::FixedString comparison>
    void sortUsingSelector() const
    {
        send<void, "sortUsingSelector:">(ObjC::selector<comparison>());
    }
};

template <class... Objects>
inline Array Array::of(const Objects&... objects)
{
    auto array = MutableArray::make();
    const auto add = [&array](const ObjC::Object& object) {
        if (object)
            array.addObject(object);
    };
    (add(objects), ...);
    return array;
}

inline MutableArray Array::mutableCopy() const
{
    return send<MutableArray, "mutableCopy">();
}

}
