// Numbers as the settings and the editor's labels write them.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace LYR {

/// With so many decimals, rounded to the nearest, half to even. For numbers up to a billion.
NS::String fixedText(double number, int decimals);

}
