// Into the editor by a long press on the lock screen, and out of it by Done.
#pragma once

#include "Tweak/Editor/EditState.hpp"

namespace LYR {

/// Lets a long press open the editor, unless it can already.
void installLongPress();
void removeLongPress();
/// The lock screen goes away with the editor on it, and may go dark again.
void leaveEditor();
/// Ends whatever a long press began, without a motion, and lets no other one follow.
void closeEditorAtOnce();

/// Added: called at every state of the long press.
void CSCoverSheetViewController_showLongPress(
    CS::CoverSheetViewController self, SEL cmd, UI::LongPressGestureRecognizer recognizer);
/// Added: closes the editor.
void CSCoverSheetViewController_doneButton(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);

}
