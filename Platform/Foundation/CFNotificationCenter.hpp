// System-wide notifications.
#pragma once

#include "Platform/ObjC/Runtime.hpp"

using CFNotificationCenterRef = struct __CFNotificationCenter*;
using CFNotificationCallback
    = void (*)(CFNotificationCenterRef, void* observer, id name, const void* object, id userInfo);

enum class CFNotificationSuspensionBehavior : long { drop = 1, coalesce = 2, hold = 3, deliverImmediately = 4 };

extern "C" {
CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter();
void CFNotificationCenterAddObserver(CFNotificationCenterRef, const void* observer, CFNotificationCallback, id name,
    const void* object, CFNotificationSuspensionBehavior);
void CFNotificationCenterPostNotification(
    CFNotificationCenterRef, id name, const void* object, id userInfo, bool deliverImmediately);
}
