// Small choices: alignment, case, calendar, and what each slot of the strip shows.
#pragma once

#include "Tweak/Editor/EditState.hpp"
#include "Platform/UIKit/UISegmentedControl.hpp"

namespace LYR {

enum class Choice { alignment, style, calendar, weather, agenda, battery };

/// Small titles, each with as much of the width as it asks for.
void letSegmentsFit(const UI::SegmentedControl& control);
void buildOptionSegments(const CS::CoverSheetViewController& controller);
/// Selects in every control what is stored for the element.
void showStoredOptions(Tab tab);

/// Stores what the selected segment stands for, and shows it.
void chooseSegment(Choice choice, const UI::SegmentedControl& control);

/// Added, one for each choice.
template <Choice choice>
void CSCoverSheetViewController_optionChanged(CS::CoverSheetViewController, SEL, UI::SegmentedControl control)
{
    chooseSegment(choice, control);
}

}
