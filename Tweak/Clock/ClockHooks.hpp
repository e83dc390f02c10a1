// Interceptions of the stock clock, and the refreshes that they set off.
#pragma once

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"

namespace LYR {

SB::FLockScreenDateView SBFLockScreenDateView_initWithFrame(SB::FLockScreenDateView self, SEL cmd, CGRect frame);
void SBFLockScreenDateView_updateLabels(SB::FLockScreenDateView self, SEL cmd);
void SBFLockScreenDateView_layoutSubviews(SB::FLockScreenDateView self, SEL cmd);

SB::FLockScreenDateView SBFLockScreenDateViewController_dateView(SB::FLockScreenDateViewController self, SEL cmd);
void SBFLockScreenDateViewController_viewDidLoad(SB::FLockScreenDateViewController self, SEL cmd);
void SBFLockScreenDateViewController_viewWillAppear(SB::FLockScreenDateViewController self, SEL cmd, bool animated);
void SBFLockScreenDateViewController_viewWillDisappear(SB::FLockScreenDateViewController self, SEL cmd, bool animated);

/// Added: a full refresh of everything on the lock screen, a tenth of a second from now.
void SBFLockScreenDateViewController_updateTime(SB::FLockScreenDateViewController self, SEL cmd);
/// Added: a quick refresh of the time alone, a hundredth of a second from now.
void SBFLockScreenDateViewController_requestUpdateTime(SB::FLockScreenDateViewController self, SEL cmd);

}
