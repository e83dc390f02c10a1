// The tables of all interceptions and added methods.
#pragma once

#include "Platform/ObjC/Hook.hpp"

namespace LYR {

/// Installed when `enabled` is on.
std::span<const ObjC::HookRow> mainHooks();
/// Installed when `hideNotifHeader` is on.
std::span<const ObjC::HookRow> notificationHeaderHooks();
/// Installed always; without that extension there is no such class.
std::span<const ObjC::HookRow> axonHooks();

}
