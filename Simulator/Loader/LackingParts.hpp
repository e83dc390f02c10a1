// What of the phone's system the extension does not find, as on a phone with an older or a newer one.
#pragma once

#include "Platform/ObjC/Runtime.hpp"

#include <set>
#include <string>
#include <string_view>

namespace Simulator {

/// Names of classes ("UIColorWell"), of methods and instance variables after their class ("CSQuickActionsViewController
/// hasCamera", "SBScheduledAlarmObserver _alarmManager"), and of methods with other types
/// ("CSQuickActionsViewController hasCamera=@16@0:8"). The stock shell goes on with all of them. To be set before the
/// extension is loaded.
void setLackingParts(const std::set<std::string>& parts);

/// A class.
bool isLacking(std::string_view part);
/// A method of the class or of one that it derives from.
bool isLacking(Class type, SEL selector);

}
