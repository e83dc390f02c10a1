// Interceptions of how the shell fades and slides its lock screen: what is ours goes along, where it is.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"
#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"

namespace LYR {

void SBFLockScreenDateView_setContentAlpha(SB::FLockScreenDateView self, SEL cmd, double alpha, bool subtitleVisible);
/// The same on later systems.
void SBFLockScreenDateView_setTimeAlpha(SB::FLockScreenDateView self, SEL cmd, double time, double subtitle);
void CSCoverSheetView_layoutSubviews(CS::CoverSheetView self, SEL cmd);

}
