// Small choices: a segment for everything that a setting may be.
#pragma once

#include "Platform/UIKit/UISegmentedControl.hpp"
#include "Product/Choices.hpp"
#include "Tweak/Editor/Control.hpp"
#include "Tweak/Editor/Storing.hpp"

namespace LYR {

/// What the segments stand for, and the setting of each element.
struct Options {
    Product::ChoiceList list;
    EditedSetting settings;
};

/// Small titles, each with as much of the width as it asks for.
void letSegmentsFit(const UI::SegmentedControl& control);

/// A segment for each choice, with its title in the editor or with the symbol of that name.
UI::View makeSegments(const Options& options, bool showsSymbols);
/// Stores what the selected segment stands for, and shows it.
void chooseSegment(const Options& options, const UI::SegmentedControl& control);
/// Selects what is stored for the element; no segment for a code that has none.
void showChoice(const Options& options, const UI::SegmentedControl& control, Tab tab);

template <const Options& options>
void chooseSegmentOf(UI::SegmentedControl control)
{
    chooseSegment(options, control);
}

/// The row of such a control.
template <auto& variable, const Options& options, ObjC::FixedString selectorName, bool showsSymbols = false>
constexpr Control segments(const Placing& placing, bool (*isShown)(const UI::View&, Tab) = nullptr)
{
    return {.slot = variable,
        .make = [] { return makeSegments(options, showsSymbols); },
        .placing = placing,
        .action = action<selectorName, chooseSegmentOf<options>>(ActionGroup::segments),
        .fill = [](Tab tab) { showChoice(options, variable, tab); },
        .isShown = isShown};
}

}
