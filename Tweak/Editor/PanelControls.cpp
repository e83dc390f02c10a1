#include "Tweak/Editor/PanelControls.hpp"

#include "Tweak/Editor/EditedSettings.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/NumberText.hpp"
#include "Tweak/Editor/OptionSegments.hpp"
#include "Tweak/Editor/Pickers.hpp"
#include "Tweak/Editor/Wells.hpp"

#include <algorithm>
#include <span>

namespace LYR {

namespace {

constexpr Area timeAreas[] = {Area::font, Area::colour, Area::position};
constexpr Area dateAreas[] = {Area::font, Area::colour, Area::position, Area::dateOption};
constexpr Area widgetAreas[] = {Area::widgetOption, Area::colour, Area::position};
constexpr std::span<const Area> areas[tabCount] = {timeAreas, dateAreas, widgetAreas};

/// A control of an area. Some of them mean nothing to the widgets, which have neither opacity nor alignment.
struct SubControl {
    const id* view;
    Area area;
    bool forWidgets = true;
};

template <class T>
constexpr SubControl in(Area area, const ObjC::Variable<T>& view, bool forWidgets = true)
{
    return {view.address(), area, forWidgets};
}

constexpr SubControl subControls[] = {
    in(Area::font, _pickerView1),
    in(Area::font, _stepperLabel),
    in(Area::font, _stepperLabel2),
    in(Area::font, _stepperView),
    in(Area::font, _stepperButton),
    in(Area::font, _alertOpen),
    in(Area::colour, _colorWheel1),
    in(Area::colour, _colorWheel2),
    in(Area::colour, _colorWheel3),
    in(Area::colour, _colorWheel4),
    in(Area::colour, _colorWheel5),
    in(Area::colour, _showWell),
    in(Area::colour, _alphaCheckBoard, false),
    in(Area::colour, _alphaView, false),
    in(Area::colour, _sliderAlpha, false),
    in(Area::position, _alignLabel, false),
    in(Area::position, _segmentAlign, false),
    in(Area::position, _sliderX),
    in(Area::position, _sliderLabelX),
    in(Area::position, _sliderY),
    in(Area::position, _sliderLabelY),
    in(Area::dateOption, _pickerView2),
    in(Area::dateOption, _segmentStyle),
    in(Area::dateOption, _segmentAlt),
    in(Area::widgetOption, _widget1),
    in(Area::widgetOption, _segmentWidget1),
    in(Area::widgetOption, _widget2),
    in(Area::widgetOption, _segmentWidget2),
    in(Area::widgetOption, _widget3),
    in(Area::widgetOption, _segmentWidget3),
};

void showOffset(const UI::Slider& slider, const UI::Label& label, const EditedSetting& setting)
{
    slider.setValue(static_cast<float>(setting.variable->doubleValue()));
    label.setText(fixedText(slider.value(), 0));
}

}

Area areaOf(Tab tab, long segment)
{
    auto list = areas[static_cast<std::size_t>(tab)];
    return list[segment >= 0 && segment < static_cast<long>(list.size()) ? segment : 0];
}

void showSubControls(std::optional<Tab> tab, long segment)
{
    for (const SubControl& control : subControls) {
        bool shown = tab && control.area == areaOf(*tab, segment) && (control.forWidgets || *tab != Tab::widget);
        UI::View(*control.view).setHidden(!shown);
    }
}

void showStoredValues(Tab tab)
{
    showOffset(_sliderX, _sliderLabelX, editedSetting(Property::x, tab));
    showOffset(_sliderY, _sliderLabelY, editedSetting(Property::y, tab));
    if (auto opacity = editedSetting(Property::opacity, tab))
        _sliderAlpha->setValue(static_cast<float>(opacity.variable->doubleValue()));
    if (auto size = editedSetting(Property::fontSize, tab))
        _stepperView->setValue(size.variable->intValue());
    showStoredOptions(tab);
    showStoredRows(tab);
    showCurrentColour(tab);
}

}
