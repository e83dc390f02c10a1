// Interceptions of the stock subtitle: its labels never show, and its text tells whether a timer runs.
#pragma once

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"

namespace LYR {

void SBFLockScreenDateSubtitleView_didMoveToWindow(SB::FLockScreenDateSubtitleView self, SEL cmd);
void SBFLockScreenDateSubtitleView_setString(SB::FLockScreenDateSubtitleView self, SEL cmd, NS::String text);
void SBFLockScreenDateViewController_updateTimerWithText(
    SB::FLockScreenDateViewController self, SEL cmd, NS::String text);
void SBFLockScreenDateSubtitleDateView_didMoveToWindow(SB::FLockScreenDateSubtitleDateView self, SEL cmd);

}
