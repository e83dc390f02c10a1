// The wells: four colours of the wallpaper, and the colour that was chosen last.
#pragma once

#include "Tweak/Editor/EditState.hpp"
#include "Platform/UIKit/UIColor.hpp"

namespace LYR {

/// Lets the wells offer the colours of the wallpaper as it is now.
void fillWells();
/// Shows the colour that the element has now.
void showCurrentColour(Tab tab);
/// Shows a colour in the last well's source and in the strip of opacities.
void showChosenColour(const UI::Color& colour);
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
