// The notice of where the user's fonts go, and the way there.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

// All added.
void CSCoverSheetViewController_showAlert(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);
void CSCoverSheetViewController_closeAlert(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);
void CSCoverSheetViewController_openFolderButton(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);
/// Opens the folder in the file manager, or looks for a file manager on the web.
void CSCoverSheetViewController_linkTapped(CS::CoverSheetViewController self, SEL cmd);

}
