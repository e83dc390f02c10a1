// The editor's two wheels: fonts, and what the date line shows. The cover sheet is their data source and delegate.
#pragma once

#include "Platform/UIKit/UIPickerView.hpp"
#include "Tweak/Editor/EditState.hpp"

namespace LYR {

/// Turns the wheels to the rows that are stored for the element; to the font that it has where none is stored.
void showStoredRows(Tab tab);

// All added.
long CSCoverSheetViewController_numberOfComponentsInPickerView(
    CS::CoverSheetViewController self, SEL cmd, UI::PickerView picker);
/// The font list is gathered anew at every request, so that fonts registered since the last one appear at once.
long CSCoverSheetViewController_pickerView_numberOfRowsInComponent(
    CS::CoverSheetViewController self, SEL cmd, UI::PickerView picker, long component);
UI::View CSCoverSheetViewController_pickerView_viewForRow(
    CS::CoverSheetViewController self, SEL cmd, UI::PickerView picker, long row, long component, UI::View reused);
void CSCoverSheetViewController_pickerView_didSelectRow(
    CS::CoverSheetViewController self, SEL cmd, UI::PickerView picker, long row, long component);

}
