// What of the phone's system the extension does not find, as on a phone with an older or a newer one.
#pragma once

#include "Platform/ObjC/Runtime.hpp"

#include <set>
#include <string>

namespace Simulator {

/// Names of classes ("UIColorWell"), and of methods after their class ("CSQuickActionsViewController hasCamera"). The
/// stock shell goes on with all of them. To be filled before the extension is loaded.
std::set<std::string>& lackingParts();

bool isLacking(Class type, SEL selector);

}
