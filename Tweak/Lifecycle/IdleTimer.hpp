// What keeps the screen lit while the user edits.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

/// The lock screen's own provider, wherever this system keeps it; nil if nowhere.
SB::DashBoardIdleTimerProvider GetDashBoardIdleTimerProvider();

}
