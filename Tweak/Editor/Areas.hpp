// The areas of the panel, one for each thing that is edited, and what else the editor consists of.
#pragma once

#include "Platform/UIKit/UIGestureRecognizer.hpp"
#include "Tweak/Editor/Control.hpp"

namespace LYR {

/// Controls that show together, and the methods that no control of them asks for.
struct Area {
    std::span<const Control> controls;
    std::span<const Action> actions = {};
};

[[gnu::visibility("hidden")]] extern const Area fontArea;
[[gnu::visibility("hidden")]] extern const Area colourArea;
[[gnu::visibility("hidden")]] extern const Area positionArea;
[[gnu::visibility("hidden")]] extern const Area dateArea;
[[gnu::visibility("hidden")]] extern const Area widgetArea;

/// The panel itself, with its main segments.
[[gnu::visibility("hidden")]] extern const Area panelArea;
/// The buttons above the panel: done, and a tab for each element.
[[gnu::visibility("hidden")]] extern const Area tabArea;
/// The notice of where the user's fonts go. It covers what stands on the panel.
[[gnu::visibility("hidden")]] extern const Area noticeArea;
LYR_EXTERN_VIEW(UI::View, _alertView);
void showNotice(bool shown);
/// Low-power mode, on and off. They stand on the lock screen itself.
[[gnu::visibility("hidden")]] extern const Area batterySaverArea;
/// Into the editor, and out of it.
[[gnu::visibility("hidden")]] extern const Area editModeArea;
/// The sheet of the system's colour wells.
[[gnu::visibility("hidden")]] extern const Area colourSheetArea;

inline constexpr CGFloat panelHeight = 240;
LYR_EXTERN_VIEW(UI::View, _optionView);
LYR_EXTERN_VIEW(UI::Button, _done);
const UI::Button& tabButton(Tab tab);
/// Closes the editor.
void pressDone();

/// The cover sheet that owns the editor, and the long press that opens it: nil while the editor is open.
extern constinit ObjC::Variable<CS::CoverSheetViewController> _pressLong;
extern constinit ObjC::Variable<UI::LongPressGestureRecognizer> _longPress;
/// How far the finger may move meanwhile, in points.
extern constinit double _allowableMovement;

/// Gives every control of the panel its frame, within the part of the panel's width that the screen shows.
void placePanel(const Slot& shown);
void placeBatterySaverButtons();

/// Lays what is not a control of a row: the checkerboard under the opacity.
void layOpacityStrip();
/// Lets the wells offer the colours of the wallpaper as it is now, with none of them chosen yet.
void prepareWells();
/// The last well, the preview and the strip of opacities show the colour that was chosen until the editor closes,
/// whichever element is edited.
void showChosenColour(const UI::Color& colour);

/// Brings controls and buttons in line with the active tab, the selected segment, and the stored values.
void updateButtonAppearance();

/// Half a second, starting slowly.
void animateOverlay(void (*changes)(), void (*completion)(bool finished) = nullptr);
/// Puts the panel and its buttons onto the cover sheet.
void addOverlay();
/// Shows them at their open places.
void showOverlay();
/// Sends them off the bottom of the screen.
void parkOverlay();
/// How much of the panel lies beyond either side of the screen: it is wider than a tablet that is held upright.
CGFloat panelOutsideScreen();

}
