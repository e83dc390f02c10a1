// Interceptions of the shell's comings and goings: lock, light, home screen, low memory, front application.
#pragma once

#include "Platform/ObjC/Block.hpp"
#include "Platform/SpringBoard/SBLockScreenManager.hpp"
#include "Platform/UIKit/UIViewController.hpp"

namespace LYR {

void SBHomeScreenViewController_viewWillAppear(UI::ViewController self, SEL cmd, bool animated);
void SpringBoard_didReceiveMemoryWarning(UI::Responder self, SEL cmd);
void SpringBoard_frontDisplayDidChange(UI::Responder self, SEL cmd, NS::Object application);
void SBLockScreenTimerDialView_didMoveToWindow(UI::View self, SEL cmd);

void SBLockScreenManager_lockUIFromSource(SB::LockScreenManager self, SEL cmd, int source, NS::Object options);
void SBLockScreenManager_lockUIFromSourceWithCompletion(
    SB::LockScreenManager self, SEL cmd, int source, NS::Object options, ObjC::BlockArgument completion);
/// Added: the minute's refresh under LastLook, which ends by itself after five hours.
void SBLockScreenManager_requestUpdateWidget(SB::LockScreenManager self, SEL cmd);

void SBBacklightController_turnOnScreenFully(SB::BacklightController self, SEL cmd, long source);
/// Added: the refresh one second after the screen lights up.
void SBBacklightController_requestUpdateWidget(SB::BacklightController self, SEL cmd);

}
