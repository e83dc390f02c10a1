// The panel: its areas, and which of them shows what.
#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Editor/Areas.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/Editor/Options.hpp"
#include "Tweak/State.hpp"

namespace LYR {

LYR_VIEW(UI::View, _optionView);
LYR_VIEW(UI::SegmentedControl, _segmentedControl);
/// It counted so many when it was built.
LYR_VARIABLE(unsigned long, _initialSegmentCount, 0);

namespace {

/// All that the editor consists of, in the order in which it is built.
constexpr const Area* areas[] = {&batterySaverArea, &editModeArea, &tabArea, &colourSheetArea, &panelArea, &fontArea,
    &colourArea, &positionArea, &dateArea, &widgetArea, &noticeArea};

/// What a segment of a tab's panel shows.
constexpr const Area* timeAreas[] = {&fontArea, &colourArea, &positionArea};
constexpr const Area* dateAreas[] = {&fontArea, &colourArea, &positionArea, &dateArea};
constexpr const Area* widgetAreas[] = {&widgetArea, &colourArea, &positionArea};
constexpr PerTab<std::span<const Area* const>> tabAreas{{timeAreas, dateAreas, widgetAreas}};
constexpr const Area* segmentAreas[] = {&fontArea, &colourArea, &positionArea, &dateArea, &widgetArea};

constexpr CGFloat panelRadius = 18;
constexpr CGFloat borderWidth = 3;
constexpr CGFloat borderRadius = 15;
constexpr CGFloat borderAlpha = 0.7;

/// The first one for a segment that the tab lacks.
const Area& shownArea(Tab tab)
{
    auto list = tabAreas[tab];
    long segment = _segmentedControl->selectedSegmentIndex();
    return *list[segment >= 0 && segment < static_cast<long>(list.size()) ? static_cast<std::size_t>(segment) : 0];
}

/// Font, colour and position; the date has one more, and the widgets another first one.
UI::View mainSegments()
{
    auto control = UI::SegmentedControl::withItems(NS::Array::of("Font"_ns, "Color"_ns, "Position"_ns));
    control.setSelectedSegmentIndex(0);
    letSegmentsFit(control);
    _initialSegmentCount = control.numberOfSegments();
    return control;
}

void changeSegment()
{
    playClick();
    updateButtonAppearance();
}

void fitSegments()
{
    auto count = _segmentedControl->numberOfSegments();
    if (isActive(Tab::date)) {
        if (count <= _initialSegmentCount)
            _segmentedControl->insertSegmentWithTitle("Date Option"_ns, count, false);
    } else {
        while (count > _initialSegmentCount)
            _segmentedControl->removeSegmentAtIndex(--count, false);
    }
    if (_segmentedControl->selectedSegmentIndex() < 0)
        _segmentedControl->setSelectedSegmentIndex(0);
    _segmentedControl->setTitleForSegmentAtIndex(isActive(Tab::widget) ? "Widget Option"_ns : "Font"_ns, 0);
}

bool isDark()
{
    return UI::Screen::mainScreen().traitCollection().userInterfaceStyle() == UI::UserInterfaceStyle::dark;
}

/// Marks the label that is edited.
void showBorder(const UI::View& border, bool shown)
{
    border.setHidden(!shown);
    if (!shown)
        return;
    auto layer = border.layer();
    border.setAlpha(borderAlpha);
    layer.setCornerRadius(borderRadius);
    layer.setBorderWidth(borderWidth);
    layer.setBorderColor((isDark() ? UI::Color::blackColor() : UI::Color::whiteColor()).CGColor());
}

/// Dark letters on a light ground, or the reverse.
void applyPlainLook(const UI::View& view)
{
    const bool dark = isDark();
    view.setTintColor(dark ? UI::Color::whiteColor() : UI::Color::blackColor());
    view.setBackgroundColor(dark ? UI::Color::blackColor().colorWithAlphaComponent(0.4)
                                 : UI::Color::whiteColor().colorWithAlphaComponent(0.5));
}

void applyLook()
{
    auto ground = isDark() ? UI::Color::blackColor() : UI::Color::whiteColor();
    _optionView->setBackgroundColor(ground.colorWithAlphaComponent(0.8));
    _alertView->setBackgroundColor(ground);
    for (const Control& button : tabArea.controls)
        applyPlainLook(button.slot.view());
    if (auto tab = activeTab())
        tabButton(*tab).setBackgroundColor(UI::Color::grayColor().colorWithAlphaComponent(0.85));
}

/// Shows the controls of the selected segment and hides all others; hides all without a tab.
void showControls(std::optional<Tab> tab)
{
    const Area* shown = tab ? &shownArea(*tab) : nullptr;
    for (const Area* area : segmentAreas) {
        for (const Control& row : area->controls) {
            auto view = row.slot.view();
            view.setHidden(area != shown || (row.isShown && !row.isShown(view, *tab)));
        }
    }
}

void fillControls(Tab tab)
{
    for (const Area* area : segmentAreas) {
        for (const Control& row : area->controls)
            if (row.fill)
                row.fill(tab);
    }
}

/// Null for a wheel that is none of the editor's.
const Wheel* wheelOf(const UI::PickerView& picker)
{
    for (const Area* area : segmentAreas) {
        for (const Control& row : area->controls)
            if (row.wheel && row.slot.view() == picker)
                return row.wheel;
    }
    return nullptr;
}

long numberOfComponentsInPickerView(CS::CoverSheetViewController, SEL, UI::PickerView)
{
    return 1;
}

long numberOfRowsInComponent(CS::CoverSheetViewController, SEL, UI::PickerView picker, long)
{
    const Wheel* wheel = wheelOf(picker);
    return wheel ? wheel->rowCount() : 0;
}

UI::View viewForRow(CS::CoverSheetViewController, SEL, UI::PickerView picker, long row, long, UI::View)
{
    const Wheel* wheel = wheelOf(picker);
    return wheel ? wheel->row(row) : makeWheelRow();
}

void didSelectRow(CS::CoverSheetViewController, SEL, UI::PickerView picker, long row, long)
{
    if (const Wheel* wheel = wheelOf(picker))
        wheel->choose(row);
}

UI::View roundedPanel()
{
    auto view = UI::View::make();
    view.layer().setCornerRadius(panelRadius);
    return view;
}

constexpr Control controls[] = {
    {.slot = _segmentedControl,
        .make = mainSegments,
        .placing = throughout(12, 12, 10, 32),
        .action = action<"SegmentChangeViewValueChanged:", changeSegment>(ActionGroup::segments)},
};

constexpr Action actions[] = {
    action<"numberOfComponentsInPickerView:", numberOfComponentsInPickerView>(ActionGroup::wheels),
    action<"pickerView:numberOfRowsInComponent:", numberOfRowsInComponent>(ActionGroup::wheels),
    action<"pickerView:viewForRow:forComponent:reusingView:", viewForRow>(ActionGroup::wheels),
    action<"pickerView:didSelectRow:inComponent:", didSelectRow>(ActionGroup::wheels),
};

void buildEditor(const CS::CoverSheetViewController& controller)
{
    keepView(_optionView, roundedPanel());
    build(panelArea.controls, _optionView, controller);
    for (const Area* area : segmentAreas)
        build(area->controls, _optionView, controller);
    keepView(_alertView, roundedPanel());
    _alertView->setHidden(true);
    build(noticeArea.controls, _alertView, controller);
    _optionView->addSubview(_alertView.reference());
    // These are put onto the cover sheet when the editor opens.
    build(tabArea.controls, {}, controller);
    hideOverlay();
    parkOverlay();
    build(batterySaverArea.controls, controller.view(), controller);
    placeBatterySaverButtons();
    showBatterySaverState();
}

}

constinit const Area panelArea{controls, actions};

void placePanel(const Slot& shown)
{
    place(controls, shown);
    for (const Area* area : segmentAreas)
        place(area->controls, shown);
    _alertView->setFrame(CGRectMake(shown.x, 0, shown.width, panelHeight));
    place(noticeArea.controls, {0, shown.width});
    layOpacityStrip();
}

void updateButtonAppearance()
{
    // While the editor is open a second long press has nothing to open.
    if (isActive(Tab::time))
        removeLongPress();
    fitSegments();
    showBorder(_timeBorderView, isActive(Tab::time));
    showBorder(_dateBorderView, isActive(Tab::date));
    applyLook();
    showControls(activeTab());
    if (auto tab = activeTab())
        fillControls(*tab);
}

std::span<const ObjC::HookRow> editorActionRows()
{
    constexpr std::size_t most = 64;
    static ObjC::HookRow rows[most];
    std::size_t count = 0;
    const auto enterIfOf = [&count](ActionGroup group, const Action& action) {
        if (action && action.group == group && count < most)
            rows[count++] = action.row();
    };
    for (ActionGroup group : allActionGroups) {
        for (const Area* area : areas) {
            for (const Control& row : area->controls)
                enterIfOf(group, row.action);
            for (const Action& action : area->actions)
                enterIfOf(group, action);
        }
    }
    return {rows, count};
}

void bringEditor(const CS::CoverSheetViewController& controller)
{
    if (!_pressLong)
        buildEditor(controller);
    else {
        for (const Area* area : areas)
            redirect(area->controls, _pressLong, controller);
        // These two stand on the cover sheet whether the editor is open or not.
        for (const Control& button : batterySaverArea.controls)
            controller.view().addSubview(button.slot.view());
    }
    _pressLong = controller;
}

}
