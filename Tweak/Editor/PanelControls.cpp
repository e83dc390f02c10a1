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

enum class Condition {
    none,
    /// The widgets have neither opacity nor alignment.
    notForWidgets,
    offersColour,
};

/// A control of an area.
struct SubControl {
    const id* view;
    Area area;
    Condition condition;
};

template <class T>
constexpr SubControl in(Area area, const ObjC::Variable<T>& view, Condition condition = Condition::none)
{
    return {view.address(), area, condition};
}

bool holds(Condition condition, const UI::View& view, Tab tab)
{
    if (condition == Condition::offersColour)
        return offersColour(view);
    return condition == Condition::none || tab != Tab::widget;
}

constexpr SubControl subControls[] = {
    in(Area::font, _pickerView1),
    in(Area::font, _stepperLabel),
    in(Area::font, _stepperLabel2),
    in(Area::font, _stepperView),
    in(Area::font, _stepperButton),
    in(Area::font, _alertOpen),
    in(Area::colour, _colorWheel1, Condition::offersColour),
    in(Area::colour, _colorWheel2, Condition::offersColour),
    in(Area::colour, _colorWheel3, Condition::offersColour),
    in(Area::colour, _colorWheel4, Condition::offersColour),
    in(Area::colour, _colorWheel5),
    in(Area::colour, _showWell),
    in(Area::colour, _alphaCheckBoard, Condition::notForWidgets),
    in(Area::colour, _alphaView, Condition::notForWidgets),
    in(Area::colour, _sliderAlpha, Condition::notForWidgets),
    in(Area::position, _alignLabel, Condition::notForWidgets),
    in(Area::position, _segmentAlign, Condition::notForWidgets),
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
        UI::View view(*control.view);
        view.setHidden(!tab || control.area != areaOf(*tab, segment) || !holds(control.condition, view, *tab));
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
