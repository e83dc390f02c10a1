// The editor's two pickers: fonts, and what the date line shows. The cover sheet is their data source.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"

namespace LYR {

/// The picker of fonts and the picker of date-line options; nil until the editor is built.
extern constinit ObjC::Variable<UI::View> _pickerView1, _pickerView2;

long CSCoverSheetViewController_numberOfComponentsInPickerView(
    CS::CoverSheetViewController self, SEL cmd, UI::View picker);
/// The font list is gathered anew at every request, so that fonts registered since the last one appear at once.
long CSCoverSheetViewController_pickerView_numberOfRowsInComponent(
    CS::CoverSheetViewController self, SEL cmd, UI::View picker, long component);

}
