#include "Tweak/Editor/Appearance.hpp"

#include "Platform/UIKit/UIScreen.hpp"
#include "Tweak/Editor/EditMode.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/Feedback.hpp"
#include "Tweak/Editor/PanelControls.hpp"
#include "Tweak/Views.hpp"

namespace LYR {

namespace {

constexpr CGFloat borderWidth = 3;
constexpr CGFloat borderRadius = 15;
constexpr CGFloat borderAlpha = 0.7;

const NS::String& dateOptionTitle()
{
    return "Date Option"_ns;
}

bool isDark()
{
    return UI::Screen::mainScreen().traitCollection().userInterfaceStyle() == UI::UserInterfaceStyle::dark;
}

/// The date has one segment more than the others.
void fitSegments()
{
    auto count = _segmentedControl->numberOfSegments();
    if (isActive(Tab::date)) {
        if (count <= _initialSegmentCount)
            _segmentedControl->insertSegmentWithTitle(dateOptionTitle(), count, false);
    } else {
        while (count > _initialSegmentCount)
            _segmentedControl->removeSegmentAtIndex(--count, false);
    }
    if (_segmentedControl->selectedSegmentIndex() < 0)
        _segmentedControl->setSelectedSegmentIndex(0);
    _segmentedControl->setTitleForSegmentAtIndex(isActive(Tab::widget) ? "Widget Option"_ns : "Font"_ns, 0);
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

void applyTabLook(const UI::Button& button, bool active)
{
    applyPlainLook(button);
    if (active)
        button.setBackgroundColor(UI::Color::grayColor().colorWithAlphaComponent(0.85));
}

void applyPanelLook()
{
    auto ground = isDark() ? UI::Color::blackColor() : UI::Color::whiteColor();
    _optionView->setBackgroundColor(ground.colorWithAlphaComponent(0.8));
    _alertView->setBackgroundColor(ground);
    applyPlainLook(_done);
    applyTabLook(_timeButton, isActive(Tab::time));
    applyTabLook(_dateButton, isActive(Tab::date));
    applyTabLook(_widgetButton, isActive(Tab::widget));
}

}

void updateButtonAppearance()
{
    // While the editor is open a second long press has nothing to open.
    if (isActive(Tab::time))
        removeLongPress();
    fitSegments();
    showBorder(_timeBorderView, isActive(Tab::time));
    showBorder(_dateBorderView, isActive(Tab::date));
    applyPanelLook();
    _stepperLabel2->setText(""_ns);
    _stepperLabel->setText(isActive(Tab::date) ? "Date Font Size"_ns : "Time Font Size"_ns);
    showSubControls(activeTab(), _segmentedControl->selectedSegmentIndex());
    if (auto tab = activeTab())
        showStoredValues(*tab);
}

void CSCoverSheetViewController_updateButtonAppearance(CS::CoverSheetViewController, SEL)
{
    updateButtonAppearance();
}

void pressTab(Tab tab)
{
    setActiveTab(tab);
    updateButtonAppearance();
    dateView->updateTime();
}

void CSCoverSheetViewController_segmentChanged(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    playClick();
    updateButtonAppearance();
}

}
