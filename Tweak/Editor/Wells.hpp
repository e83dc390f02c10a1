// The wells: four colours of the wallpaper, and the colour that was chosen last.
#pragma once

#include "Platform/UIKit/UIColor.hpp"
#include "Tweak/Editor/EditState.hpp"

namespace LYR {

/// Lets the wells offer the colours of the wallpaper as it is now, with none of them chosen yet.
void prepareWells();
/// Without a wallpaper the first four wells have none to offer.
bool offersColour(const UI::View& well);
/// Until a colour is chosen, the last well, the preview and the strip of opacities show the element's own.
void showCurrentColour(Tab tab);
/// They show the colour that was chosen until the editor closes, whichever element is edited.
void showChosenColour(const UI::Color& colour);
/// Makes the well's colour that of the edited element. A well that has none to offer changes nothing.
void pressWell(int index);

/// Added, one for each well.
template <int index>
void CSCoverSheetViewController_wellButton(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    pressWell(index);
}
/// Added: opens the colour sheet.
void CSCoverSheetViewController_showWellButton(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);

}
