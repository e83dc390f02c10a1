// The system log.
#pragma once

#include "Platform/Foundation/NSString.hpp"

extern "C" void NSLog(id format, ...);

namespace NS {

/// Writes a finished text. It is passed as the format alone, with its percent signs doubled, since calls with a
/// variable number of arguments differ between the platforms.
inline void log(const String& text)
{
    NSLog(text.stringByReplacingOccurrencesOfString("%"_ns, "%%"_ns).raw());
}

}
