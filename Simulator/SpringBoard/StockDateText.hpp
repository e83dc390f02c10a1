// Time and date as the system itself writes them on the lock screen.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace Simulator {

/// "9:41" or "21:41", as the locale has it, without the part of the day.
NS::String stockTimeText(const NS::Date& date);
/// "Sunday, November 15"
NS::String stockDateText(const NS::Date& date);
/// "4:59", "1:00:00"
NS::String timerText(double seconds);

}
