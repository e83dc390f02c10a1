// Moments by patterns that hold as they are written.
#pragma once

#include "Platform/Foundation/NSDateFormatter.hpp"

namespace LYR {

/// The phone's own 12/24-hour switch rewrites the patterns of formatters in the user's current locale. A locale made of
/// its identifier has the same names and does not know of the switch.
inline NS::DateFormatter fixedFormatter(const NS::String& pattern)
{
    auto formatter = NS::DateFormatter::formatter();
    formatter.setLocale(NS::Locale::withIdentifier(NS::Locale::currentLocale().localeIdentifier()));
    formatter.setDateFormat(pattern);
    return formatter;
}

}
