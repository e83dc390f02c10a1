// Which controls the panel shows, what they say and how they look.
#pragma once

#include "Tweak/Editor/EditState.hpp"

namespace LYR {

/// Brings controls and buttons in line with the active tab, the selected segment, and the stored values.
void updateButtonAppearance();

/// Added.
void CSCoverSheetViewController_updateButtonAppearance(CS::CoverSheetViewController self, SEL cmd);
/// Added: the buttons above the panel.
template <Tab tab>
void CSCoverSheetViewController_pressTab(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);
/// Added: another part of the element's look is chosen.
void CSCoverSheetViewController_segmentChanged(CS::CoverSheetViewController self, SEL cmd, ObjC::Object sender);

void pressTab(Tab tab);

template <Tab tab>
void CSCoverSheetViewController_pressTab(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    pressTab(tab);
}

}
