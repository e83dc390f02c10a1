// Property lists as Foundation's objects.
#pragma once

#include "Platform/ObjC/Object.hpp"
#include "Simulator/Text/PropertyList.hpp"

namespace Simulator {

/// Containers are mutable if asked for.
ObjC::Object objectOf(const PropertyList&, bool isMutable = false);

/// Nothing if the object, or one in it, has no place in a property list, or if it is nested too deep.
std::optional<PropertyList> propertyListOf(const ObjC::Object&);

/// Whether a number is a truth value.
bool isBoolean(const ObjC::Object& number);

}
