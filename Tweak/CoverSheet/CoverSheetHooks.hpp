// Interceptions of the cover sheet's controller.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

void CSCoverSheetViewController_viewDidLoad(CS::CoverSheetViewController self, SEL cmd);
void CSCoverSheetViewController_viewWillAppear(CS::CoverSheetViewController self, SEL cmd, bool animated);
void CSCoverSheetViewController_viewDidAppear(CS::CoverSheetViewController self, SEL cmd, bool animated);
void CSCoverSheetViewController_viewWillDisappear(CS::CoverSheetViewController self, SEL cmd, bool animated);
/// Added: a full refresh of the lock screen one second from now.
void CSCoverSheetViewController_requestUpdateWidget(CS::CoverSheetViewController self, SEL cmd);

}
