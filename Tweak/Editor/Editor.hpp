// The editor, as the rest of the extension sees it.
#pragma once

#include "Platform/ObjC/Hook.hpp"
#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"
#include "Platform/UIKit/UIButton.hpp"
#include "Tweak/State.hpp"

#include <span>

namespace LYR {

/// Every method of the editor, to be added to the cover sheet in this order.
std::span<const ObjC::HookRow> editorActionRows();
/// Builds every view of the editor with the cover sheet as the one that answers to them; called again, lets another
/// cover sheet answer. What is open on the one before has been closed.
void bringEditor(const CS::CoverSheetViewController& controller);

/// Lets a long press open the editor, unless it can already.
void installLongPress();
void removeLongPress();
bool isEditing();
/// The lock screen goes away with the editor on it, and may go dark again.
void leaveEditor();
/// Ends whatever a long press began, without a motion, and lets no other one follow. Nothing without an editor.
void closeEditorAtOnce();

/// The panel and its buttons; the one of the widgets goes its own way.
void hideOverlay();
void removeOverlay();
void removeWidgetButton();

/// Low-power mode, on and off.
LYR_EXTERN_VIEW(UI::Button, _buttonCL);
/// Fades and slides the two buttons as the stock clock is.
void moveBatterySaverButtons();
void hideBatterySaverButtons();
/// Shows the one of the two buttons that leads out of the mode that the phone is in.
void showBatterySaverState();

/// Makes `MyCSCoverSheetViewController` known to the runtime. Once is enough, again does no harm.
void registerColourSheet();
/// Takes the sheet away at once.
void closeColourSheet();

}
