// The method-interception framework's one function.
#pragma once

#include "Platform/ObjC/Runtime.hpp"

extern "C" void MSHookMessageEx(Class type, SEL selector, IMP replacement, IMP* stock);
