// Methods of classes that exist already: found, replaced and added one class at a time.
#pragma once

#include "Platform/ObjC/Runtime.hpp"

#include <vector>

namespace Simulator {

/// The class's own methods, not the inherited ones.
std::vector<Method> ownMethods(Class type);
/// The class's own method of that selector; null if it has none or inherits it.
Method ownMethod(Class type, SEL selector);

/// Gives one class a method of its own. GCC's runtime needs this care: where the class inherits the method, its
/// class_replaceMethod replaces that of the superclass, and where a class has the method, derived classes that are in
/// use already keep the old one.
void setMethod(Class type, SEL selector, IMP implementation, const char* types);

}
