// The sheet on which the user picks any colour for time, date and widgets, with the system's colour wells.
#pragma once

#include "Platform/UIKit/UIColorWell.hpp"
#include "Tweak/Editor/EditState.hpp"

namespace LYR {

class ColourSheet : public ObjC::Class_<ColourSheet, UI::ViewController, "MyCSCoverSheetViewController"> {
public:
    using Class_::Class_;

    /// Takes the sheet away at once.
    void closeView() const { send<void, "closeView">(); }
};

/// The sheet while it is open, or nil.
extern constinit ObjC::Variable<ColourSheet> _colorWellSheet;

/// Makes `MyCSCoverSheetViewController` known to the runtime. Once is enough, again does no harm.
void registerColourSheet();

/// Added: puts the sheet in the editor's place.
void CSCoverSheetViewController_pickerShow(CS::CoverSheetViewController self, SEL cmd);

}
