// The sheet on which the user picks any colour for time, date and widgets, with the system's colour wells.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Platform/UIKit/UIColorWell.hpp"
#include "Platform/UIKit/UIViewController.hpp"
#include "Tweak/Editor/Tab.hpp"

namespace LYR {

class ColourSheet : public ObjC::Class_<ColourSheet, UI::ViewController, "MyCSCoverSheetViewController"> {
public:
    using Class_::Class_;

    /// Takes the sheet away at once.
    void closeView() const { send<void, "closeView">(); }
};

/// The sheet while it is open, or nil.
extern constinit ObjC::Variable<ColourSheet> _colorWellSheet;

// What is on the sheet: a row for each element, with a well, a swatch and a caption.

/// `colorWellView`, `colorWell`, `wellViewTime` and so on, as instance variables that own what they hold, with
/// accessors.
void addColourSheetProperties(ObjC::ClassBuilder& builder);
void buildColourSheet(const ColourSheet& sheet);
/// Shows a colour on the element's swatch.
void showOnSheet(const ColourSheet& sheet, Tab tab, const UI::Color& colour);
void releaseColourSheetViews(id sheet);

}
