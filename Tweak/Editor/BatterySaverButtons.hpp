// A button of two states on the lock screen: low-power mode.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

void buildBatterySaverButtons(const CS::CoverSheetViewController& controller);
/// Shows the one of the two that leads out of the mode that the phone is in.
void showBatterySaverState();

// Both added: low-power mode on, and off.
void CSCoverSheetViewController_didPressButtonCL(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);
void CSCoverSheetViewController_didPressButtonCL2(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);

}
