// The texts of the clock: the time, and the date with one item that may follow it.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Tweak/Widgets/Items.hpp"

namespace LYR {

/// The time as `timeFormat` or, with `twentyFourTime`, "H:mm" has it.
NS::String timeText(const NS::Date& moment);
/// The date as `dateFormat` has it.
NS::String dateText(const NS::Date& moment);
/// The date of another calendar as `alternateFormat` has it; nil if `alternateOption` names none.
NS::String alternateDate(const NS::Date& moment);

/// Sets the date line. Settings that name no style or no option leave it as it is; a line that is switched off has no
/// item that somebody would have to be asked for.
void updateDateLine(const NS::Date& moment, Items& items);

}
