#include "Tweak/Editor/Pickers.hpp"

#include "Tweak/Fonts.hpp"

namespace LYR {

constinit ObjC::Variable<UI::View> _pickerView1, _pickerView2;

static constexpr long dateOptionCount = 8;

long CSCoverSheetViewController_numberOfComponentsInPickerView(CS::CoverSheetViewController, SEL, UI::View)
{
    return 1;
}

long CSCoverSheetViewController_pickerView_numberOfRowsInComponent(
    CS::CoverSheetViewController, SEL, UI::View picker, long)
{
    if (picker == _pickerView1.reference())
        return static_cast<long>(rebuildAvailableFonts());
    return picker == _pickerView2.reference() ? dateOptionCount : 0;
}

}
